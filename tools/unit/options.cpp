#include "unit/options.h"

#include <algorithm>
#include <array>
#include <limits>

#include "unit/text.h"

namespace unit {
namespace {

constexpr std::string_view kDefaultFirmware = "V1400R12";
constexpr std::string_view kLinesPrefix = "lines:";
constexpr unsigned kMostLines = 100'000;
constexpr unsigned kFastest = 115200;

using Taker = std::string (*)(Options&, std::string_view value);

struct OptionRow {
  command_line::Option option;
  Taker take;  // gives what is wrong with the value; empty if it is taken
};

std::string TakeFirmware(Options& options, std::string_view value) {
  options.firmware = FindFirmware(value);
  if (options.firmware != nullptr) return {};
  std::string names;
  for (const Firmware& firmware : AllFirmware()) names.append(" ").append(firmware.name);
  return "there is no such firmware. The names are:" + names;
}

std::string TakePath(std::string& path, std::string_view value) {
  path = value;
  return path.empty() ? "expected a path" : "";
}

std::string TakeHistory(Options& options, std::string_view value) {
  if (value.starts_with(kLinesPrefix) && !MadeUpLines(value)) {
    return "expected lines:N with N from 0 to " + std::to_string(kMostLines);
  }
  return TakePath(options.history, value);
}

std::string TakeSeed(Options& options, std::string_view value) {
  const auto seed = Decimal(value, std::numeric_limits<std::uint64_t>::max());
  if (!seed) return "expected a whole number";
  options.seed = *seed;
  return {};
}

std::string TakeFault(Options& options, std::string_view value) {
  ParsedFault parsed = ParseFault(value);
  if (parsed.fault) options.faults.push_back(*parsed.fault);
  return parsed.error;
}

constexpr std::array<OptionRow, 12> kRows{{
    {{"firmware", "NAME", "the firmware of the unit, V1400R12 by default"}, TakeFirmware},
    {{"memory", "FILE",
      "keeps the configuration in FILE, and makes this file at\nthe first start. Without this option the "
      "configuration\nis lost at the end"},
     [](Options& o, std::string_view v) { return TakePath(o.memory, v); }},
    {{"image", "FILE",
      "the configuration of the first start, as a record\nstream. Without this option the unit starts with "
      "the\nfactory configuration"},
     [](Options& o, std::string_view v) { return TakePath(o.image, v); }},
    {{"speed", "1200|2400|4800|9600|14400|19200|28800|38400|57600|115200",
      "the baud rate of the unit, 9600 by default. At another\nbaud rate the unit does not answer"},
     [](Options& o, std::string_view v) {
       o.speed = static_cast<unsigned>(*Decimal(v, kFastest));
       return std::string();
     }},
    {{"pace", "on|off", "sends at the speed of the line (on, the default), or\neverything at once (off)"},
     [](Options& o, std::string_view v) { return o.paced = v == "on", std::string(); }},
    {{"link", "PATH",
      "makes the symbolic link PATH to the port, and removes it\nat the end. With ports/com1 in the program "
      "folder the\nunit is Comport 1"},
     [](Options& o, std::string_view v) { return TakePath(o.link, v); }},
    {{"history", "FILE|lines:N",
      "the history: a text file, or N lines that ovl-unit makes,\n100000 at most; lines:12 by default"},
     TakeHistory},
    {{"clock-file", "FILE",
      "writes the time into FILE when the program sets the clock,\nas \"MM-DD-YY HH:MM:SS\""},
     [](Options& o, std::string_view v) { return TakePath(o.clock_file, v); }},
    {{"log", "FILE|-",
      "writes what both sides send; - is the standard output:\n\"> \" program to unit, \"< \" unit to "
      "program, \"-- \" remarks"},
     [](Options& o, std::string_view v) { return TakePath(o.log, v); }},
    {{"fault", "FAULT", "makes something go wrong, see below. You can give this\noption several times"},
     TakeFault},
    {{"seed", "N", "the seed of the random faults, 1 by default. The same\nseed gives the same bytes"},
     TakeSeed},
    {{"verbose", "", "prints all remarks, not only mistakes of the program"},
     [](Options& o, std::string_view) { return o.verbose = true, std::string(); }},
}};

constexpr auto kOptions = [] {
  std::array<command_line::Option, kRows.size()> options{};
  for (std::size_t at = 0; at < kRows.size(); ++at) options[at] = kRows[at].option;
  return options;
}();

constexpr std::string_view kPurpose =
    "Simulates a unit on a pseudo-terminal, for practice and for tests. The first line\n"
    "on standard output names the port, \"port /dev/pts/3\". Standard error names the\n"
    "mistakes of the program that is connected. The unit checks every record that it\n"
    "receives, and stores only a stream without an error. It ends on an interrupt or\n"
    "termination signal.\n";

constexpr std::string_view kCommands =
    "\n"
    "Commands that the unit accepts, at its baud rate:\n"
    "  ~~~SOH_REQUEST_EOT~~~k  starts remote mode: ACK. Before that, everything else\n"
    "                          is text of the register\n"
    "  ENQ                     FF; remote mode ends after 30 seconds without it\n"
    "  CAN                     leaves remote mode\n"
    "  /LU CR                  sends the configuration and leaves remote mode\n"
    "  /LD CR                  ACK, then receives a configuration; ACK when it is\n"
    "                          stored, else NAK; leaves remote mode\n"
    "  /TDMM-DD-YY HH:MM:SS CR LF CR\n"
    "                          sets the clock: ACK and leaves remote mode, or NAK\n"
    "  /LH CR LF CR            sends the history, then ACK; leaves remote mode\n"
    "  /MR CR LF CR            restores the factory configuration: ACK; leaves\n"
    "                          remote mode\n"
    "\n"
    "Faults:\n";

constexpr std::string_view kExitStatus =
    "\n"
    "Exit status:\n"
    "  0  the program sent nothing wrong\n"
    "  1  the program sent something wrong\n"
    "  2  wrong usage, or the unit could not start\n"
    "\n"
    "Examples:\n"
    "  A unit behind \"Comport 1\" that loses characters of its first upload:\n"
    "\n"
    "  $ ovl-unit --memory unit.bin --link ports/com1 --fault drop:5 --fault once\n";

}  // namespace

command_line::Program Description() {
  return {"ovl-unit", "[OPTION]...", kPurpose, kOptions,
          std::string(kCommands) + FaultHelp() + std::string(kExitStatus)};
}

ParsedOptions ParseOptions(std::span<const std::string_view> arguments) {
  using command_line::Wish;
  auto read = command_line::Read(Description(), arguments);
  if (read.wish != Wish::kRun) return {{}, read.wish, read.error};
  ParsedOptions parsed;
  parsed.options.firmware = FindFirmware(kDefaultFirmware);
  for (const auto& [at, value] : read.options) {
    const auto& [option, take] = kRows.at(at);
    const std::string error = take(parsed.options, value);
    if (!error.empty())
      return {{}, Wish::kWrong, std::string("--").append(option.name) + " " + value + ": " + error};
  }
  if (!read.arguments.empty())
    return {{}, Wish::kWrong, read.arguments.front() + ": only options are expected"};
  return parsed;
}

std::optional<unsigned> MadeUpLines(std::string_view history) {
  if (!history.starts_with(kLinesPrefix)) return std::nullopt;
  const auto lines = Decimal(history.substr(kLinesPrefix.size()), kMostLines);
  return lines ? std::optional<unsigned>(static_cast<unsigned>(*lines)) : std::nullopt;
}

}  // namespace unit
