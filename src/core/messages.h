// The texts of all message boxes in one table. A message box is shown by its name only, so a test can check
// that the help explains each of them.
#pragma once

#include <span>
#include <string_view>

#include "core/platform.h"

namespace ovl::core {

enum class Box {
  kRegistryError,
  kStartFailed,
  kFirmwareChosen,
  kNoDefaultImage,
  kOtherFirmware,
  kSystemFile,
  kSaved,
  kNotSaved,
  kNotHistory,
  kPortFailed,
  kSelectComport,
  kNoResponse,
  kConnectionFail,
  kTimeOut,
  kWrongParity,
  kSendFailed,
  kKeepAliveFailed,
  kClockSet,
  kClockRefused,
  kResetDone,
  kResetRefused,
};

// The detail, such as the system's reason or a firmware, replaces this in the text.
inline constexpr std::string_view kDetail = "%1";

struct BoxWords {
  Box box;
  std::string_view topic;  // under which the help explains it
  std::string_view title;  // empty: none of its own
  std::string_view text;
  BoxIcon icon = BoxIcon::kNone;
  bool shows_note = false;  // the program ends with this box, so its status bar cannot be read any more
};

// In the order of Box.
std::span<const BoxWords> BoxTable();

MessageBox BoxOf(Box box, std::string_view detail);

}  // namespace ovl::core
