// The statements of the language, one row each.
#pragma once

#include <span>
#include <string_view>

#include "script/parser.h"
#include "script/session.h"

namespace ovl::script {

struct Statement {
  std::string_view word;
  std::string_view forms;  // how people write it, one form a line
  std::string_view help;   // a line for each form
  void (*run)(Session&, Arguments&);
  bool after_end = false;  // can follow the end of the program
};

std::span<const Statement> Statements();
const Statement* FindStatement(std::string_view word);

}  // namespace ovl::script
