#include "unit/unit.h"

#include <algorithm>
#include <array>
#include <utility>

#include "unit/clock.h"
#include "unit/factory.h"
#include "unit/text.h"

namespace unit {
namespace {

constexpr std::size_t kLongestLine = 80;
constexpr std::string_view kShortEnding = "\r";
constexpr std::string_view kLongEnding = "\r\n\r";
constexpr std::string_view kRestOfLongEnding = "\n\r";

// A tool that sends more than the stream does so at once. Later characters belong to something else.
constexpr Time kStreamEndWatch = std::chrono::milliseconds(100);

std::string Characters(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " character" : " characters");
}

}  // namespace

struct Unit::Command {
  std::string_view word;
  bool has_text;
  std::string_view ending;
  Operation operation;
};

std::optional<Unit::Command> Unit::FindCommand(std::string_view line) {
  static constexpr std::array<Command, 5> kCommands{{
      {"/LU", false, kShortEnding, Operation::kUpload},
      {"/LD", false, kShortEnding, Operation::kDownload},
      {"/TD", true, kLongEnding, Operation::kClock},
      {"/LH", false, kLongEnding, Operation::kHistory},
      {"/MR", false, kLongEnding, Operation::kReset},
  }};
  const std::string_view body = line.substr(0, line.find('\r'));
  for (const Command& command : kCommands) {
    if (command.has_text ? body.starts_with(command.word) : body == command.word) return command;
  }
  return std::nullopt;
}

Unit::Unit(UnitSetup setup, UnitHooks hooks)
    : firmware_(*setup.firmware),
      image_(std::move(setup.image)),
      history_(std::move(setup.history)),
      faults_(std::move(setup.faults)),
      hooks_(std::move(hooks)),
      transmitter_(setup.speed),
      checker_(RegionOf(firmware_)) {}

void Unit::Receive(char byte, Time now) {
  GiveUp(now);
  if (EndsRequest(byte)) return Asked(now);
  switch (state_) {
    case State::kAsleep:
      return HearAsleep(byte, now);
    case State::kListening:
      return HearCommand(byte, now);
    case State::kTakingStream:
      return HearStream(byte, now);
    case State::kSending:
      return HearWhileSending(byte);
  }
}

void Unit::Advance(Time now) {
  GiveUp(now);
  const std::string bytes = transmitter_.TakeDue(now);
  if (!bytes.empty()) hooks_.send(bytes);
  if (state_ == State::kSending && transmitter_.Idle()) {
    if (after_sending_ == State::kListening) {
      Listen(now);
    } else {
      Leave("everything is sent");
    }
  }
}

std::optional<Time> Unit::NextDue() const {
  const auto due = transmitter_.NextDue();
  const auto deadline = Deadline();
  if (!due || !deadline) return due ? due : deadline;
  return std::min(*due, *deadline);
}

bool Unit::EndsRequest(char byte) {
  window_ += byte;
  if (window_.size() > kRequest.size()) window_.erase(0, 1);
  return window_ == kRequest;
}

void Unit::Asked(Time now) {
  const std::string_view earlier = kRequest.substr(0, kRequest.size() - 1);
  if (state_ == State::kListening && line_ != earlier) {
    const std::size_t extra = line_.size() < earlier.size() ? 0 : line_.size() - earlier.size();
    hooks_.complain("unexpected before the request for remote mode: \"" + Printable(line_.substr(0, extra)) +
                    "\"");
  }
  if (state_ == State::kTakingStream) {
    checker_.BreakOff("the program asks for remote mode");
    for (const std::string& error : checker_.Errors()) hooks_.complain(error);
  }
  if (state_ == State::kSending) {
    transmitter_.Clear();
    hooks_.note("stops sending, because the program asks for remote mode");
  }
  if (faults_.Refuses(Operation::kRequest)) {
    hooks_.note("fault: refuses the request");
    Answer(kNak, now);
    return Sleep();
  }
  if (faults_.Silences(Operation::kRequest)) {
    hooks_.note("fault: ignores the request");
    return Sleep();
  }
  hooks_.note("remote mode begins");
  Listen(now);
  Answer(kAck, now);
}

void Unit::HearAsleep(char byte, Time now) {
  const bool watching = now < std::exchange(stream_end_watch_, Time{});
  const bool expected = byte == kCan || byte == kRequest.front();
  if (!watching || expected) return;
  hooks_.complain("a character after the end mark of the stream: " + Quoted(byte));
}

void Unit::HearCommand(char byte, Time now) {
  if (byte == kCan) return Leave("the program sent CAN");
  if (byte == kEnq) {
    if (!line_.empty()) hooks_.complain("ENQ within \"" + Printable(line_) + "\"");
    heard_ = now;
    if (faults_.Silences(Operation::kKeepAlive)) return hooks_.note("fault: does not answer ENQ");
    return Answer(kFormFeed, now);
  }
  if (!skipped_ending_.empty() && byte == skipped_ending_.front()) {
    skipped_ending_.remove_prefix(1);
    return;
  }
  skipped_ending_ = {};
  line_ += byte;
  if (line_.find('\r') != std::string::npos) return JudgeLine(now);
  if (line_.size() > kLongestLine) RefuseLine("a command of more than " + Characters(kLongestLine), now);
}

void Unit::JudgeLine(Time now) {
  const std::size_t end = line_.find('\r');
  const auto command = FindCommand(line_);
  if (!command) {
    RefuseLine("unknown command: \"" + Printable(line_.substr(0, end)) + "\"", now);
    skipped_ending_ = kRestOfLongEnding;
    return;
  }
  const std::string_view ending = std::string_view(line_).substr(end);
  if (ending != command->ending) {
    if (command->ending.starts_with(ending)) return;
    return RefuseLine("the command " + std::string(command->word) + " must end with " +
                          Printable(command->ending) + ", found " + Printable(ending),
                      now);
  }
  const std::string text = line_.substr(command->word.size(), end - command->word.size());
  line_.clear();
  Obey(*command, text, now);
}

void Unit::Obey(const Command& command, std::string_view text, Time now) {
  heard_ = now;
  if (faults_.Refuses(command.operation)) {
    hooks_.note("fault: refuses " + std::string(command.word));
    return Answer(kNak, now);
  }
  if (faults_.Silences(command.operation)) {
    return hooks_.note("fault: ignores " + std::string(command.word));
  }
  switch (command.operation) {
    case Operation::kUpload:
      return SendConfiguration(now);
    case Operation::kDownload:
      return AwaitStream(now);
    case Operation::kClock:
      return SetClock(text, now);
    case Operation::kHistory:
      return SendHistory(now);
    default:
      return MasterReset(now);
  }
}

void Unit::SendConfiguration(Time now) {
  SpoiltText stream = faults_.SpoilStream(ComposeStream(RegionOf(firmware_), image_));
  stream.segments.front().pause += faults_.Lateness();
  SendText(std::move(stream), now);
}

void Unit::SendHistory(Time now) {
  SpoiltText text = faults_.SpoilHistory(history_);
  text.segments.push_back({Time{}, {kAck}});
  const bool empty = text.segments.front().bytes.empty();
  (empty ? text.segments.back() : text.segments.front()).pause += faults_.Lateness();
  SendText(std::move(text), now);
}

void Unit::SendText(SpoiltText text, Time now) {
  for (Segment& segment : text.segments) transmitter_.Queue(std::move(segment), now);
  state_ = State::kSending;
  after_sending_ = text.hangs ? State::kListening : State::kAsleep;
  complained_ = false;
}

void Unit::AwaitStream(Time now) {
  checker_ = StreamChecker(RegionOf(firmware_));
  state_ = State::kTakingStream;
  Answer(kAck, now);
}

void Unit::SetClock(std::string_view text, Time now) {
  std::string error = ClockError(text);
  if (!error.empty()) {
    hooks_.complain("the command /TD: " + error);
    return Answer(kNak, now);
  }
  error = hooks_.keep_clock(std::string(text));
  if (!error.empty()) {
    hooks_.complain(error);
    return Answer(kNak, now);
  }
  Answer(kAck, now);
  Leave("the clock is set to " + std::string(text));
}

void Unit::MasterReset(Time now) {
  if (!Keep(FactoryImage(firmware_))) return Answer(kNak, now);
  Answer(kAck, now);
  Leave("the unit has its factory configuration again");
}

void Unit::HearStream(char byte, Time now) {
  heard_ = now;
  if (byte == kCan)
    return Leave("the program ended its stream with CAN after " + Characters(checker_.Count()));
  line_ += byte;
  if (kRequest.starts_with(line_)) return;
  const std::string due = std::move(line_);
  line_.clear();
  for (const char c : due) {
    if (checker_.Feed(c)) EndStream(now);
  }
}

void Unit::EndStream(Time now) {
  for (const std::string& error : checker_.Errors()) hooks_.complain(error);
  if (checker_.Oversized()) {
    hooks_.complain("the stream has more digits than the " + std::to_string(RegionOf(firmware_).Digits()) +
                    " of " + std::string(firmware_.name) +
                    ". The unit accepts the stream and ignores the rest");
  }
  const bool kept = checker_.Correct() && Keep(checker_.Image());
  if (faults_.Silences(Operation::kFinalAnswer)) {
    hooks_.note("fault: does not confirm the stream");
  } else {
    Answer(kept ? kAck : kNak, now);
  }
  stream_end_watch_ = now + kStreamEndWatch;
  Leave(kept ? "the configuration is stored" : "the configuration has not changed");
}

bool Unit::Keep(const std::string& image) {
  const std::string error = hooks_.keep_image(image);
  if (!error.empty()) {
    hooks_.complain(error);
    return false;
  }
  image_ = image;
  return true;
}

void Unit::HearWhileSending(char byte) {
  if (byte == kCan) {
    transmitter_.Clear();
    return Leave("the program sent CAN, so the unit did not send the rest");
  }
  if (complained_) return;
  line_ += byte;
  if (kRequest.starts_with(line_)) return;
  hooks_.complain("a character while the unit is sending: " + Quoted(line_.front()));
  complained_ = true;
}

void Unit::Answer(char byte, Time now) {
  transmitter_.Queue({faults_.Lateness(), {byte}}, now);
}

void Unit::RefuseLine(const std::string& why, Time now) {
  hooks_.complain(why);
  line_.clear();
  Answer(kNak, now);
}

void Unit::Listen(Time now) {
  state_ = State::kListening;
  line_.clear();
  skipped_ending_ = {};
  heard_ = now;
}

void Unit::Sleep() {
  state_ = State::kAsleep;
  line_.clear();
}

void Unit::Leave(const std::string& why) {
  Sleep();
  hooks_.note("remote mode ends: " + why);
}

std::optional<Time> Unit::Deadline() const {
  const bool waits = state_ == State::kListening || state_ == State::kTakingStream;
  return waits ? std::optional<Time>(heard_ + kPatience) : std::nullopt;
}

void Unit::GiveUp(Time now) {
  const auto deadline = Deadline();
  if (!deadline || now < *deadline) return;
  if (state_ == State::kTakingStream) {
    checker_.BreakOff("the program sent nothing more");
    for (const std::string& error : checker_.Errors()) hooks_.complain(error);
    Answer(kNak, now);
  } else if (!line_.empty()) {
    hooks_.complain("a command without its end: \"" + Printable(line_) + "\"");
  }
  Leave("the program sent nothing for too long");
}

}  // namespace unit
