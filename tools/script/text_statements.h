// Statements and commands for configurations as text: export, import, diff, checksum.
#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "script/statements.h"
#include "script/stop.h"

namespace ovl::script {

std::span<const Statement> TextStatements();

// `ovl-script diff ONE OTHER`, `ovl-script export FILE`, `ovl-script import TEXT FILE`,
// `ovl-script checksum FILE`, without a script.
// Nothing: the words are no such command.
std::optional<ExitStatus> RunTextCommand(const std::vector<std::string>& words, const std::string& firmware,
                                         std::ostream& output, std::ostream& errors);

}  // namespace ovl::script
