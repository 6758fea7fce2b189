#include "unit/faults.h"

#include <algorithm>
#include <array>
#include <span>

#include "unit/text.h"

namespace unit {
namespace {

constexpr unsigned Bit(Operation operation) {
  return 1U << static_cast<unsigned>(operation);
}

struct Target {
  std::string_view word;
  Operation operation;
};

constexpr std::array<Target, 6> kRefusable{{
    {"request", Operation::kRequest},
    {"upload", Operation::kUpload},
    {"download", Operation::kDownload},
    {"clock", Operation::kClock},
    {"history", Operation::kHistory},
    {"reset", Operation::kReset},
}};

constexpr std::array<Target, 8> kSilenceable{{
    {"request", Operation::kRequest},
    {"enq", Operation::kKeepAlive},
    {"upload", Operation::kUpload},
    {"download-ack", Operation::kDownload},
    {"final-ack", Operation::kFinalAnswer},
    {"clock", Operation::kClock},
    {"history", Operation::kHistory},
    {"reset", Operation::kReset},
}};

struct FaultRow {
  FaultKind kind;
  std::string_view word;            // as on the command line
  std::string_view argument;        // its form; empty if there is none
  std::span<const Target> targets;  // operations that it can name; without a name it means all of them
  unsigned numbers;                 // how many numbers the argument has
  unsigned highest;                 // value of the first number
  std::string_view help;
};

constexpr unsigned kMostCharacters = 1'000'000;
constexpr unsigned kMostMilliseconds = 3'600'000;

constexpr std::array<FaultRow, 10> kRows{{
    {FaultKind::kRefuse, "refuse", "[:OPERATION]", kRefusable, 0, 0, "answers NAK instead of ACK"},
    {FaultKind::kSilent, "silent", "[:OPERATION]", kSilenceable, 0, 0,
     "does not answer; final-ack: stores the configuration and does not answer"},
    {FaultKind::kSilentAfter,
     "silent:after=",
     "N",
     {},
     1,
     kMostCharacters,
     "sends nothing from the N-th character of an upload on, and stays in remote mode"},
    {FaultKind::kDrop,
     "drop",
     ":P",
     {},
     1,
     1000,
     "loses a character of an upload or a history with a probability of P in 1000"},
    {FaultKind::kGarble,
     "garble",
     ":P",
     {},
     1,
     1000,
     "changes one bit of a character of an upload or a history with a probability of P in 1000"},
    {FaultKind::kCut,
     "cut",
     ":N",
     {},
     1,
     kMostCharacters,
     "ends an upload after N characters, without the end mark, and leaves remote mode"},
    {FaultKind::kStall,
     "stall",
     ":N,MS",
     {},
     2,
     kMostCharacters,
     "pauses for MS milliseconds after N characters of an upload"},
    {FaultKind::kJunk,
     "junk",
     ":N",
     {},
     1,
     kMostCharacters,
     "sends N random bytes before an upload, but no \"$\" and no \"?\""},
    {FaultKind::kLate, "late", ":MS", {}, 1, kMostMilliseconds, "sends every answer MS milliseconds late"},
    {FaultKind::kOnce,
     "once",
     "",
     {},
     0,
     0,
     "applies each other fault only to the first operation that it fits"},
}};

unsigned AllOf(std::span<const Target> targets) {
  unsigned set = 0;
  for (const Target& target : targets) set |= Bit(target.operation);
  return set;
}

std::string Words(std::span<const Target> targets) {
  std::string words;
  for (const Target& target : targets) words += (words.empty() ? "" : ", ") + std::string(target.word);
  return words;
}

ParsedFault Wrong(const std::string& error) {
  return {std::nullopt, error};
}

ParsedFault ReadTarget(const FaultRow& row, std::string_view argument) {
  for (const Target& target : row.targets) {
    if (target.word == argument) return {Fault{row.kind, Bit(target.operation)}, {}};
  }
  return Wrong("the operation of \"" + std::string(row.word) + "\" is one of " + Words(row.targets));
}

ParsedFault ReadNumbers(const FaultRow& row, std::string_view argument) {
  const std::size_t comma = row.numbers == 2 ? argument.find(',') : std::string_view::npos;
  const auto first = Decimal(argument.substr(0, comma), row.highest);
  const auto second = comma == std::string_view::npos
                          ? std::optional<unsigned long long>(0)
                          : Decimal(argument.substr(comma + 1), kMostMilliseconds);
  if (!first || !second || (row.numbers == 2 && comma == std::string_view::npos)) {
    return Wrong("expected \"" + std::string(row.word) + std::string(row.argument) +
                 "\" with whole numbers, 0 to " + std::to_string(row.highest));
  }
  return {Fault{row.kind, 0, static_cast<unsigned>(*first), static_cast<unsigned>(*second)}, {}};
}

const FaultRow* FindRow(std::string_view word) {
  const auto row = std::ranges::find(kRows, word, &FaultRow::word);
  return row == kRows.end() ? nullptr : &*row;
}

}  // namespace

ParsedFault ParseFault(std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals != std::string_view::npos) {
    const FaultRow* const row = FindRow(text.substr(0, equals + 1));
    if (row != nullptr) return ReadNumbers(*row, text.substr(equals + 1));
  }
  const std::size_t colon = text.find(':');
  const FaultRow* const row = FindRow(text.substr(0, colon));
  if (row == nullptr) return Wrong("there is no such fault");
  if (colon == std::string_view::npos) {
    if (row->numbers > 0)
      return Wrong("expected \"" + std::string(row->word) + std::string(row->argument) + "\"");
    return {Fault{row->kind, AllOf(row->targets)}, {}};
  }
  const std::string_view argument = text.substr(colon + 1);
  if (row->numbers > 0) return ReadNumbers(*row, argument);
  if (row->targets.empty()) return Wrong(std::string(row->word) + " takes no argument");
  return ReadTarget(*row, argument);
}

std::string FaultHelp() {
  constexpr std::size_t kColumn = 26;
  std::string help;
  for (const FaultRow& row : kRows) {
    std::string line = "  " + std::string(row.word) + std::string(row.argument);
    line.resize(std::max(kColumn, line.size() + 1), ' ');
    help += line + std::string(row.help) + "\n";
    if (!row.targets.empty())
      help += std::string(kColumn, ' ') + "(the operations: " + Words(row.targets) + ")\n";
  }
  return help;
}

unsigned Random::Below(unsigned bound) {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  mixed ^= mixed >> 31U;
  return static_cast<unsigned>((mixed >> 32U) * bound >> 32U);
}

Faults::Faults(std::vector<Fault> faults, std::uint64_t seed) : faults_(std::move(faults)), random_(seed) {
  once_ = Find(FaultKind::kOnce) != nullptr;
}

Fault* Faults::Find(FaultKind kind) {
  for (Fault& fault : faults_) {
    if (fault.kind == kind && !fault.spent) return &fault;
  }
  return nullptr;
}

bool Faults::Strikes(FaultKind kind, Operation operation) {
  for (Fault& fault : faults_) {
    if (fault.kind != kind || fault.spent || (fault.operations & Bit(operation)) == 0) continue;
    Spend(fault);
    return true;
  }
  return false;
}

Time Faults::Lateness() {
  Fault* const late = Find(FaultKind::kLate);
  if (late == nullptr) return {};
  Spend(*late);
  return std::chrono::milliseconds(late->first);
}

std::string Faults::Junk() {
  Fault* const junk = Find(FaultKind::kJunk);
  if (junk == nullptr) return {};
  Spend(*junk);
  std::string bytes;
  while (bytes.size() < junk->first) {
    const char byte = static_cast<char>(random_.Below(256));
    if (byte != '$' && byte != '?') bytes += byte;
  }
  return bytes;
}

void Faults::Append(std::string& bytes, std::string_view text) {
  constexpr unsigned kPerMille = 1000;
  Fault* const drop = Find(FaultKind::kDrop);
  Fault* const garble = Find(FaultKind::kGarble);
  for (const char c : text) {
    if (drop != nullptr && random_.Below(kPerMille) < drop->first) {
      Spend(*drop);
      continue;
    }
    char sent = c;
    if (garble != nullptr && random_.Below(kPerMille) < garble->first) {
      sent = static_cast<char>(static_cast<unsigned char>(c) ^ (1U << random_.Below(8)));
      Spend(*garble);
    }
    bytes += sent;
  }
}

SpoiltText Faults::SpoilStream(std::string_view stream) {
  SpoiltText spoilt;
  if (Fault* const silent = Find(FaultKind::kSilentAfter)) {
    spoilt.hangs = true;
    stream = stream.substr(0, silent->first == 0 ? 0 : silent->first - 1);
    Spend(*silent);
  }
  if (Fault* const cut = Find(FaultKind::kCut)) {
    stream = stream.substr(0, std::min<std::size_t>(cut->first, stream.size() - (spoilt.hangs ? 0 : 1)));
    Spend(*cut);
  }
  std::size_t stall_at = stream.size();
  Time pause{};
  if (Fault* const stall = Find(FaultKind::kStall); stall != nullptr && stall->first < stream.size()) {
    stall_at = stall->first;
    pause = std::chrono::milliseconds(stall->second);
    Spend(*stall);
  }
  std::string head = Junk();
  std::string tail;
  Append(head, stream.substr(0, stall_at));
  Append(tail, stream.substr(stall_at));
  spoilt.segments.push_back({Time{}, std::move(head)});
  if (!tail.empty()) spoilt.segments.push_back({pause, std::move(tail)});
  return spoilt;
}

SpoiltText Faults::SpoilHistory(std::string_view text) {
  std::string bytes;
  Append(bytes, text);
  return {{{Time{}, std::move(bytes)}}, false};
}

}  // namespace unit
