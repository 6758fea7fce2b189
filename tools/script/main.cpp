#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "command_line/command_line.h"
#include "host/files.h"
#include "host/system/disk.h"
#include "script/runner.h"
#include "script/text_statements.h"

namespace {

using command_line::Wish;
using ovl::script::ExitStatus;

ExitStatus Run(const std::vector<std::string>& words) {
  ovl::script::Session session(std::cout, std::cerr);
  if (words.empty() || words[0] == "-") return RunScript(session, std::cin, "stdin", std::cerr);
  const auto path = ovl::host::PathOf(words[0]);
  std::ifstream file(path, std::ios::binary);
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    file.setstate(std::ios::failbit);
    errno = EISDIR;
  }
  if (!file) {
    std::cerr << words[0] << ": " << std::generic_category().message(errno) << '\n';
    return ExitStatus::kWrongStatement;
  }
  return RunScript(session, file, words[0], std::cerr);
}

}  // namespace

int main(int argc, char** argv) {
  ovl::host::OutliveSizeLimit();
  const auto program = ovl::script::Description();
  const auto read = command_line::Read(program, std::vector<std::string_view>(argv + 1, argv + argc));
  if (read.wish != Wish::kRun) return command_line::Answer(program, read.wish, read.error);
  const auto firmware = read.options.empty() ? std::string() : read.options.back().value;
  if (const auto done = ovl::script::RunTextCommand(read.arguments, firmware, std::cout, std::cerr))
    return static_cast<int>(*done);
  if (read.arguments.size() > 1)
    return command_line::Answer(program, Wish::kWrong, read.arguments[1] + ": one file at most is expected");
  return static_cast<int>(Run(read.arguments));
}
