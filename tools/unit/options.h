#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "command_line/command_line.h"
#include "unit/faults.h"
#include "unit/firmware.h"

namespace unit {

struct Options {
  const Firmware* firmware = nullptr;
  unsigned speed = 9600;
  bool paced = true;
  std::string memory;
  std::string image;
  std::string link;
  std::string history = "lines:12";
  std::string clock_file;
  std::string log;
  std::uint64_t seed = 1;
  std::vector<Fault> faults;
  bool verbose = false;
};

// Reads a command line without the program's name. `error` names the wrong option and value, or is empty.
struct ParsedOptions {
  Options options;
  command_line::Wish wish = command_line::Wish::kRun;
  std::string error;
};
ParsedOptions ParseOptions(std::span<const std::string_view> arguments);

// The number of lines if `history` asks for made-up ones, "lines:N". Nothing if it names a file.
std::optional<unsigned> MadeUpLines(std::string_view history);

command_line::Program Description();

}  // namespace unit
