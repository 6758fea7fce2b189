#include "unit/options.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <limits>

#include "unit/text.h"

namespace unit {
namespace {

constexpr std::string_view kDefaultFirmware = "V1400R12";
constexpr std::string_view kLinesPrefix = "lines:";
constexpr unsigned kMostLines = 100'000;
constexpr std::array<unsigned, 10> kSpeeds{1200, 2400, 4800, 9600, 14400, 19200, 28800, 38400, 57600, 115200};

using Taker = std::string (*)(Options&, std::string_view value);

struct OptionRow {
  const char* name;        // without its dashes
  std::string_view value;  // its form in the help; empty for an option without a value
  std::string_view help;   // lines separated by LF
  Taker take;              // gives what is wrong with the value; empty if it is taken
};

std::string TakeFirmware(Options& options, std::string_view value) {
  options.firmware = FindFirmware(value);
  if (options.firmware != nullptr) return {};
  std::string names;
  for (const Firmware& firmware : AllFirmware()) names.append(" ").append(firmware.name);
  return "no firmware of that name; there are" + names;
}

std::string TakeSpeed(Options& options, std::string_view value) {
  const auto speed = Decimal(value, kSpeeds.back());
  if (speed && std::ranges::find(kSpeeds, *speed) != kSpeeds.end()) {
    options.speed = static_cast<unsigned>(*speed);
    return {};
  }
  std::string speeds;
  for (const unsigned known : kSpeeds) speeds.append(" ").append(std::to_string(known));
  return "no speed of a unit; there are" + speeds;
}

std::string TakePace(Options& options, std::string_view value) {
  options.paced = value == "on";
  return value == "on" || value == "off" ? "" : "expected on or off";
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

constexpr std::array<OptionRow, 13> kRows{{
    {"firmware", "NAME", "the firmware of the unit, V1400R12 for instance; this one is the default",
     TakeFirmware},
    {"memory", "FILE", "keeps the configuration in FILE; made at the first start",
     [](Options& o, std::string_view v) { return TakePath(o.memory, v); }},
    {"image", "FILE",
     "a record stream to begin with when there is no memory file yet;\nelse the factory configuration",
     [](Options& o, std::string_view v) { return TakePath(o.image, v); }},
    {"speed", "N", "the speed of the line, 9600 by default; at any other the unit neither hears nor answers",
     TakeSpeed},
    {"pace", "on|off", "sends as fast as the line carries it (on, the default) or at once", TakePace},
    {"link", "PATH", "makes the symbolic link PATH to the port, removed at the end",
     [](Options& o, std::string_view v) { return TakePath(o.link, v); }},
    {"history", "FILE|lines:N", "the history log, from a text file or N made-up lines; lines:12 by default",
     TakeHistory},
    {"clock-file", "FILE", "the clock, when it is set, goes there as \"MM-DD-YY HH:MM:SS\"",
     [](Options& o, std::string_view v) { return TakePath(o.clock_file, v); }},
    {"log", "FILE|-",
     "writes the conversation down, - for the standard output;\n> tool to unit, < unit to tool, -- remarks",
     [](Options& o, std::string_view v) { return TakePath(o.log, v); }},
    {"fault", "NAME[:ARG]", "makes something go wrong, see below; may be given several times", TakeFault},
    {"seed", "N", "of the faults left to chance, 1 by default; the same seed gives the same bytes", TakeSeed},
    {"verbose", "", "tells also what is nobody's mistake",
     [](Options& o, std::string_view) { return o.verbose = true, std::string(); }},
    {"help", "", "this text", [](Options& o, std::string_view) { return o.help = true, std::string(); }},
}};

constexpr std::string_view kHelpHead =
    "Usage: ovl-unit [OPTION]...\n"
    "\n"
    "Plays an OVL unit on a pseudo-terminal. The first line on standard output names the port, \"port "
    "/dev/pts/3\".\n"
    "What a tool does wrong is told on standard error. The unit checks every record that it receives and "
    "stores only\n"
    "a stream without any error. It ends on an interrupt or termination signal.\n"
    "\n"
    "Options:\n";

constexpr std::string_view kHelpCommands =
    "\n"
    "What the unit hears, at its own speed:\n"
    "  ~~~SOH_REQUEST_EOT~~~k    remote mode: ACK. Everything else is register traffic until then\n"
    "  ENQ                       FF; remote mode ends after 30 seconds without it\n"
    "  CAN                       leaves remote mode\n"
    "  /LU CR                    sends the configuration and leaves remote mode\n"
    "  /LD CR                    ACK, then takes a configuration; ACK when it is stored, else NAK; leaves "
    "remote mode\n"
    "  /TDMM-DD-YY HH:MM:SS CR LF CR\n"
    "                            sets the clock: ACK and leaves remote mode, or NAK\n"
    "  /LH CR LF CR              sends the history log, then ACK; leaves remote mode\n"
    "  /MR CR LF CR              goes back to the factory configuration: ACK; leaves remote mode\n"
    "\n"
    "Faults:\n";

constexpr std::string_view kHelpTail =
    "\n"
    "Exit status: 0 no complaint; 1 the tool gave cause for complaints; 2 wrong usage or the unit could not "
    "start.\n"
    "\n"
    "Example: a unit behind \"Comport 1\" that loses characters of its first upload\n"
    "  ovl-unit --firmware V1310R1 --memory unit.bin --link ports/com1 --fault drop:5 --fault once --log -\n";

std::string OptionHelp(const OptionRow& row) {
  constexpr std::size_t kColumn = 26;
  std::string text = "  --" + std::string(row.name) + (row.value.empty() ? "" : " ") + std::string(row.value);
  text.resize(std::max(kColumn, text.size() + 1), ' ');
  for (const char c : row.help) {
    text += c;
    if (c == '\n') text += std::string(kColumn, ' ');
  }
  return text + "\n";
}

// What getopt_long returns for the first row; no character of a short option is as large.
constexpr int kFirstRow = 256;

std::array<option, kRows.size() + 1> LongOptions() {
  std::array<option, kRows.size() + 1> options{};
  for (std::size_t at = 0; at < kRows.size(); ++at) {
    const int value = kRows[at].value.empty() ? no_argument : required_argument;
    options[at] = {kRows[at].name, value, nullptr, kFirstRow + static_cast<int>(at)};
  }
  return options;
}

const OptionRow& RowOf(int found) {
  return kRows.at(static_cast<std::size_t>(found - kFirstRow));
}

// `word` is the last one that getopt_long took.
std::string WhyNotUnderstood(int found, const std::string& word) {
  if (optopt >= kFirstRow) {
    const std::string name = std::string("--") + RowOf(optopt).name;
    if (found == ':') return name + " needs a value, " + std::string(RowOf(optopt).value);
    return name + " takes no value";
  }
  const std::string name =
      optopt == 0 ? word.substr(0, word.find('=')) : std::string{'-', static_cast<char>(optopt)};
  return name + ": there is no such option";
}

}  // namespace

ParsedOptions ParseOptions(std::span<const std::string_view> arguments) {
  std::vector<std::string> words{"ovl-unit"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const int count = static_cast<int>(words.size());

  ParsedOptions parsed;
  parsed.options.firmware = FindFirmware(kDefaultFirmware);
  const auto known = LongOptions();
  optind = 0;  // getopt_long begins anew
  for (int found = 0; (found = ::getopt_long(count, pointers.data(), "+:", known.data(), nullptr)) != -1;) {
    if (found < kFirstRow)
      return {{}, WhyNotUnderstood(found, words.at(static_cast<std::size_t>(optind - 1)))};
    const OptionRow& row = RowOf(found);
    const std::string value = optarg == nullptr ? "" : optarg;
    const std::string error = row.take(parsed.options, value);
    if (!error.empty()) return {{}, std::string("--") + row.name + " " + value + ": " + error};
  }
  if (optind < count) return {{}, words.at(static_cast<std::size_t>(optind)) + ": only options are expected"};
  return parsed;
}

std::optional<unsigned> MadeUpLines(std::string_view history) {
  if (!history.starts_with(kLinesPrefix)) return std::nullopt;
  const auto lines = Decimal(history.substr(kLinesPrefix.size()), kMostLines);
  return lines ? std::optional<unsigned>(static_cast<unsigned>(*lines)) : std::nullopt;
}

std::string HelpText() {
  std::string text(kHelpHead);
  for (const OptionRow& row : kRows) text += OptionHelp(row);
  text += kHelpCommands;
  text += FaultHelp();
  text += kHelpTail;
  return text;
}

}  // namespace unit
