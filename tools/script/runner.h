// A script from its first line to its last.
#pragma once

#include <istream>
#include <ostream>
#include <string>

#include "command_line/command_line.h"
#include "script/session.h"
#include "script/stop.h"

namespace ovl::script {

// Runs line after line and stops at the first that fails. The reason goes to `errors` as "NAME:LINE: reason".
ExitStatus RunScript(Session& session, std::istream& script, const std::string& name, std::ostream& errors);

command_line::Program Description();

}  // namespace ovl::script
