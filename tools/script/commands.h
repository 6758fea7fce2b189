// What ovl-script does with files without a script: "ovl-script diff ONE OTHER".
#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string>

#include "command_line/command_line.h"
#include "script/stop.h"

namespace ovl::script {

struct Command {
  std::function<ExitStatus(std::ostream& output, std::ostream& errors)> run;  // empty: it is a script
  std::string error;  // what is wrong with the words; empty if nothing is
};

Command CommandOf(const command_line::CommandLine& read);

std::span<const command_line::Option> CommandOptions();

// The commands with their explanations, for the help.
std::string CommandsHelp();

}  // namespace ovl::script
