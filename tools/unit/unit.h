#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "unit/faults.h"
#include "unit/firmware.h"
#include "unit/stream.h"
#include "unit/transmitter.h"

namespace unit {

// The text with which a tool asks for remote mode.
inline constexpr std::string_view kRequest = "~~~SOH_REQUEST_EOT~~~k";

// A tool in remote mode sends ENQ far more often than this.
inline constexpr Time kPatience = std::chrono::seconds(30);

// The functions that the unit calls. None may be empty.
struct UnitHooks {
  // The tool did something that a unit does not accept.
  std::function<void(const std::string&)> complain;
  // An event worth knowing that is no mistake of the tool.
  std::function<void(const std::string&)> note;
  // These bytes have left the unit.
  std::function<void(const std::string&)> send;
  // Stores the configuration or the clock, "MM-DD-YY HH:MM:SS". Returns what went wrong, or an empty text.
  std::function<std::string(const std::string& image)> keep_image;
  std::function<std::string(const std::string& clock)> keep_clock;
};

struct UnitSetup {
  const Firmware* firmware = nullptr;  // of the unit; must not be null
  std::string image;                   // its configuration, as many digits as the region holds
  std::string history;                 // lines end in CR LF
  unsigned speed = 0;                  // of its line, for the pacing; 0: characters take no time
  Faults faults{{}, 0};
};

// The unit's side of the conversation: bytes and times go in, bytes come out. It uses no port, no clock and
// no file, so that a whole conversation can be replayed in simulated time.
class Unit {
 public:
  Unit(UnitSetup setup, UnitHooks hooks);

  // A byte arrived at the unit's own speed.
  void Receive(char byte, Time now);

  // Sends the bytes that are due, and leaves remote mode if the program sent nothing for too long.
  void Advance(Time now);

  // When Advance() has to be called next, if nothing arrives before.
  std::optional<Time> NextDue() const;

  bool Remote() const { return state_ != State::kAsleep; }
  const std::string& Image() const { return image_; }

 private:
  enum class State { kAsleep, kListening, kTakingStream, kSending };

  struct Command;
  static std::optional<Command> FindCommand(std::string_view line);

  bool EndsRequest(char byte);
  void Asked(Time now);
  void HearAsleep(char byte, Time now);
  void HearCommand(char byte, Time now);
  void HearStream(char byte, Time now);
  void HearWhileSending(char byte);
  void JudgeLine(Time now);
  void Obey(const Command& command, std::string_view text, Time now);

  void SendConfiguration(Time now);
  void AwaitStream(Time now);
  void SetClock(std::string_view text, Time now);
  void SendHistory(Time now);
  void MasterReset(Time now);

  void EndStream(Time now);
  bool Keep(const std::string& image);
  void SendText(SpoiltText text, Time now);
  void Answer(char byte, Time now);
  void RefuseLine(const std::string& why, Time now);
  void Listen(Time now);
  void Sleep();
  void Leave(const std::string& why);
  void GiveUp(Time now);
  std::optional<Time> Deadline() const;

  const Firmware& firmware_;
  std::string image_;
  std::string history_;
  Faults faults_;
  UnitHooks hooks_;
  Transmitter transmitter_;

  State state_ = State::kAsleep;
  State after_sending_ = State::kAsleep;
  std::string window_;               // the latest characters, as many as a request has
  std::string line_;                 // characters of an incomplete command
  std::string_view skipped_ending_;  // rest of a refused command's ending
  StreamChecker checker_;
  Time heard_{};             // when the tool last sent something that counts in this state
  Time stream_end_watch_{};  // until then a character behind the end mark is a complaint
  bool complained_ = false;  // the present state has made its one complaint
};

}  // namespace unit
