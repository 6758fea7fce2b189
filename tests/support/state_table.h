// The states that the link can be in, and what every one of them shows.
#pragma once

#include <string>

#include "core/application.h"

namespace ovl::testing {

enum class State {
  kClosed,
  kOpen,
  kAsked,
  kHeld,
  kUploading,
  kDownloadCommand,
  kDownloadStream,
  kTransferDone,
  kSettingClock,
  kReadingHistory,
  kResetting,
  kScanning,
};

const char* NameOf(State state);

// The names of the link's timers that run, separated by blanks.
std::string RunningTimers(const core::Application& app);

// Where the program is otherwise than the state's row says; empty if nowhere.
std::string DifferenceFrom(State state, const core::Application& app);

}  // namespace ovl::testing
