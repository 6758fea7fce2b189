// The words of every message box, in one table. A box is asked for by its name; there is no other way to show
// one, so what explains the boxes can be checked against the table.
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

// The place in a text where the detail of the case stands: the system's reason, or a firmware.
inline constexpr std::string_view kDetail = "%1";

struct BoxWords {
  Box box;
  std::string_view topic;  // under which the help explains it
  std::string_view title;  // empty: none of its own
  std::string_view text;
  BoxIcon icon = BoxIcon::kNone;
  bool tells_note = false;  // the program ends with it: nobody will read the status bar
};

// In the order of the names.
std::span<const BoxWords> BoxTable();

MessageBox BoxOf(Box box, std::string_view detail);

}  // namespace ovl::core
