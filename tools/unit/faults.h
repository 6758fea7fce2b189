#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "unit/transmitter.h"

namespace unit {

// What the unit can be asked for; the faults name these.
enum class Operation { kRequest, kKeepAlive, kUpload, kDownload, kFinalAnswer, kClock, kHistory, kReset };

enum class FaultKind { kRefuse, kSilent, kSilentAfter, kDrop, kGarble, kCut, kStall, kJunk, kLate, kOnce };

// One fault that the installer of a test asked for.
struct Fault {
  FaultKind kind;
  unsigned operations = 0;  // bit set of Operation
  unsigned first = 0;       // per mille, characters or milliseconds, as the kind has it
  unsigned second = 0;      // milliseconds of a stall
  bool spent = false;       // has struck, and may strike only once
};

// Reads "NAME[:ARGUMENT]". On failure `fault` is empty and `error` says what was expected.
struct ParsedFault {
  std::optional<Fault> fault;
  std::string error;
};
ParsedFault ParseFault(std::string_view text);

// The table of faults for a help text, one or more lines each.
std::string FaultHelp();

// A small generator of its own, so that a seed gives the same bytes with every library and on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  // 0 to bound - 1.
  unsigned Below(unsigned bound);

 private:
  std::uint64_t state_;
};

// A text as it goes out after the faults had their way with it.
struct SpoiltText {
  std::vector<Segment> segments;
  bool hangs = false;  // the unit falls silent in the middle and does not end the operation
};

// Decides, operation by operation, what goes wrong.
class Faults {
 public:
  Faults(std::vector<Fault> faults, std::uint64_t seed);

  bool Refuses(Operation operation) { return Strikes(FaultKind::kRefuse, operation); }
  bool Silences(Operation operation) { return Strikes(FaultKind::kSilent, operation); }

  // How much later than usual the next answer comes.
  Time Lateness();

  // The configuration stream of an upload: every kind of damage.
  SpoiltText SpoilStream(std::string_view stream);

  // The history text: lost and damaged characters only.
  SpoiltText SpoilHistory(std::string_view text);

 private:
  Fault* Find(FaultKind kind);
  void Spend(Fault& fault) { fault.spent = once_; }
  bool Strikes(FaultKind kind, Operation operation);
  std::string Junk();
  void Append(std::string& bytes, std::string_view text);

  std::vector<Fault> faults_;
  bool once_ = false;
  Random random_;
};

}  // namespace unit
