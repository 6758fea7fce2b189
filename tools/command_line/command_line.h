// The command line of a program without windows: one table of options is what the program understands and
// what `--help` prints. Every program has `--help`, `-h` and `--version` without listing them.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace command_line {

struct Option {
  std::string_view name;  // without its dashes
  // Its form in the help: "FILE", or "on|off" if only these words are allowed. Empty without a value.
  std::string_view value;
  std::string_view help;  // lines separated by LF
};

// The text of `--help` in its order. The manual page and the completion of the shell are made from it.
struct Program {
  std::string_view name;
  std::string_view arguments;  // of the usage line
  std::string_view purpose;
  std::span<const Option> options = {};
  std::string further = {};  // what follows the options
};

enum class Wish { kRun, kHelp, kVersion, kWrong };

struct Given {
  std::size_t option;  // its place in the table
  std::string value;
};

struct CommandLine {
  Wish wish = Wish::kRun;
  std::string error;  // names what is wrong
  std::vector<Given> options;
  std::vector<std::string> arguments;
};

// Reads the words behind the program's name.
CommandLine Read(const Program& program, std::span<const std::string_view> words);

// Does what is wished for instead of a run, and returns the exit status.
int Answer(const Program& program, Wish wish, const std::string& error);

}  // namespace command_line
