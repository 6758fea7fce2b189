// The states of the link, and what each of them shows.
#pragma once

#include <string>

#include "core/application.h"

namespace ovl::testing {

enum class State {
  kClosed,
  kOpen,
  kHeld,
  kUploading,
  kDownloadCommand,
  kDownloadStream,
  kTransferDone,
  kScanning,
};

const char* NameOf(State state);

// The names of the running timers of the link, separated by blanks.
std::string RunningTimers(const core::Application& app);

// How the program differs from the state, or an empty text.
std::string DifferenceFrom(State state, const core::Application& app);

}  // namespace ovl::testing
