#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "unit/transmitter.h"

namespace unit {

// The operations of the unit, as faults name them.
enum class Operation { kRequest, kKeepAlive, kUpload, kDownload, kFinalAnswer, kClock, kHistory, kReset };

enum class FaultKind { kRefuse, kSilent, kSilentAfter, kDrop, kGarble, kCut, kStall, kJunk, kLate, kOnce };

// One fault as the command line gives it.
struct Fault {
  FaultKind kind;
  unsigned operations = 0;  // bit set of Operation
  unsigned first = 0;       // per mille, characters or milliseconds, depending on the kind
  unsigned second = 0;      // milliseconds of a stall
  bool spent = false;       // has happened, and may happen only once
};

// Reads "NAME[:ARGUMENT]". If that fails, `fault` is empty and `error` says what was expected.
struct ParsedFault {
  std::optional<Fault> fault;
  std::string error;
};
ParsedFault ParseFault(std::string_view text);

// The table of faults for a help text, one or more lines each.
std::string FaultHelp();

// A small random generator. Unlike those of the standard library, it gives the same bytes on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  // 0 to bound - 1.
  unsigned Below(unsigned bound);

 private:
  std::uint64_t state_;
};

// A text as it is sent, with its faults.
struct SpoiltText {
  std::vector<Segment> segments;
  bool hangs = false;  // the unit stops in the middle and does not end the operation
};

// Decides for each operation which faults happen.
class Faults {
 public:
  Faults(std::vector<Fault> faults, std::uint64_t seed);

  bool Refuses(Operation operation) { return Strikes(FaultKind::kRefuse, operation); }
  bool Silences(Operation operation) { return Strikes(FaultKind::kSilent, operation); }

  // The delay of the next answer.
  Time Lateness();

  // The configuration stream of an upload, with every kind of damage.
  SpoiltText SpoilStream(std::string_view stream);

  // The history text, only with lost and damaged characters.
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
