// "ovl-script check": checks configuration files without a script.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "command_line/command_line.h"
#include "script/stop.h"

namespace ovl::script {

// What the command line asks for. The options in front of the files have a meaning for the check only.
struct FileCheck {
  bool json = false;
  std::string firmware;  // "V1400R12"; empty: that of the machine's settings
  std::string folder;    // with the default images
  std::vector<std::string> paths;
};

// Nothing if the words do not begin with "check". `error` says what is wrong with them.
std::optional<FileCheck> FileCheckOf(const command_line::CommandLine& read, std::string& error);

// kDone without an error or a warning, kExpectationFailed with one, kWrongStatement if a file could not be
// checked; the others are checked all the same.
ExitStatus RunFileCheck(const FileCheck& check, std::ostream& output, std::ostream& errors);

std::span<const command_line::Option> CheckOptions();

}  // namespace ovl::script
