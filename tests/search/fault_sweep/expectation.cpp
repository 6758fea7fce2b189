#include "search/fault_sweep/expectation.h"

#include "support/firmware_facts.h"

namespace ovl::testing {
namespace {

using enum Fault;
using enum Ending;

constexpr std::size_t kCommand = 4;
constexpr std::size_t kRecord = 69;

// What the program receives when the fault meets the character at a place of the text.
std::string Received(const std::string& text, std::size_t at, Fault fault) {
  auto received = text.substr(0, at + 1);
  if (fault == kDropped) received.pop_back();
  if (fault == kDoubled) received += text[at];
  if (fault == kGarbled)
    received.back() =
        static_cast<char>(static_cast<unsigned char>(received.back()) ^ GarbleAt(at + kCommand));
  received += Inserted(fault);
  return fault >= kDropped && fault <= kAckReceived ? received + text.substr(at + 1) : received;
}

Expectation Collect(const firmware::FirmwareId& firmware, const std::string& received) {
  Expectation expected{.ending = kTimeOut};
  for (const char character : received) {
    if (character == '?') {
      expected.late_parity = !expected.stored.empty();
      if (!expected.late_parity) expected.ending = kParity;
      break;
    }
    if (!expected.stored.empty() || (expected.left.empty() && character != '$')) continue;
    expected.left += character;
    if (character != '#') continue;
    expected.stored.swap(expected.left);
    expected.ending = EndingOfLoad(firmware, expected.stored);
    if (expected.ending == kBrokenFile) break;
  }
  return expected;
}

// A fault in the command: the ending depends on whether the unit still understands it.
Expectation InCommand(const Conversation& talk, std::size_t at, Fault fault) {
  const bool last = at == kCommand - 1;
  const bool understood = fault == kNakReceived || fault == kAckReceived ||
                          (fault == kDoubled && (last || at == 0)) ||
                          (fault == kStall && talk.upload && last);
  if (understood) return talk.upload ? Collect(talk.firmware, talk.stream) : Expectation{};
  if (fault == kQuestionMark) return {.ending = kParity};
  if (fault >= kDisconnect) return {.ending = kDisconnected};
  if (fault == kStall && last) return {.ending = kWaits};
  // The next character is already on the line, and the write of the one after it fails.
  return {.ending = kTimeOut, .send_failure = fault == kLost && at + 2 < kCommand};
}

Expectation InUpload(const Conversation& talk, std::size_t at, Fault fault) {
  const auto text = talk.stream + "\r\n";
  // The program has nothing more to send, so a stalled transmitter changes nothing.
  auto expected = Collect(talk.firmware, fault == kStall ? text : Received(text, at - kCommand, fault));
  // The window at the end of a transfer blocks "Disconnect".
  if (expected.ending == kTimeOut && fault >= kDisconnect) expected.ending = kDisconnected;
  return expected;
}

Expectation InDownload(const Conversation& talk, std::size_t at, Fault fault) {
  if (at == kCommand && (fault == kDropped || fault == kGarbled)) return {.ending = kTimeOut};
  const std::size_t sent = at - kCommand;  // characters of the stream that were sent
  const bool done = sent >= talk.stream.size();
  if (fault == kQuestionMark) return {.ending = done ? kDone : kParity, .late_parity = done};
  if (done) return {};
  if (fault >= kDisconnect) return {.ending = kDisconnected};
  // The next character is already on the line, so the write fails only if another one follows.
  const bool lost = fault == kLost && sent + 1 < talk.stream.size();
  return {.ending = lost || fault == kStall ? kWaits : kDone, .send_failure = lost};
}

}  // namespace

Ending EndingOfLoad(const firmware::FirmwareId& firmware, std::string_view text) {
  std::string joined;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r') joined += text[at];
    if (text.substr(at, 2) == "\r\n") ++at;
  }
  const auto& stream = FactsOf(firmware).stream;
  const auto start = joined.find(stream.first_record);
  if (start == std::string::npos) return kForeign;
  const auto end = joined.find('#', start);
  if (end == std::string::npos) return kBrokenFile;
  const auto rest = start + (end - start) / kRecord * kRecord;
  return joined.find(stream.last_record, rest) == std::string::npos ? kBrokenFile : kDone;
}

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault) {
  if (at < kCommand) return InCommand(talk, at, fault);
  return talk.upload ? InUpload(talk, at, fault) : InDownload(talk, at, fault);
}

}  // namespace ovl::testing
