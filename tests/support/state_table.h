// The states that the link can be in, and what every one of them shows.
#pragma once

#include <array>
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
inline constexpr std::array kStates = {State::kClosed,         State::kOpen,         State::kAsked,
                                       State::kHeld,           State::kUploading,    State::kDownloadCommand,
                                       State::kDownloadStream, State::kTransferDone, State::kSettingClock,
                                       State::kReadingHistory, State::kResetting,    State::kScanning};

const char* NameOf(State state);

// The names of the link's timers that run, separated by blanks.
std::string RunningTimers(const Application& app);

// Where the program is otherwise than the state's row says; empty if nowhere.
std::string DifferenceFrom(State state, const Application& app);

}  // namespace ovl::testing
