#include "search/fault_sweep/expectation.h"

#include <algorithm>

namespace ovl::testing {
namespace {

using enum Fault;
using enum Ending;

constexpr std::size_t kCommand = 4;
constexpr std::size_t kRecord = 69;

// The heads of the first and the last record.
std::pair<std::string_view, std::string_view> MarkersOf(const firmware::FirmwareId& firmware) {
  const int release = firmware.Number();
  if (firmware.version == "V1400") return {"$2000", release < 6 ? "$2840" : "$2860"};
  const bool old = release < (firmware.version == "V1300" ? 26 : firmware.version == "V1324" ? 25 : 0);
  return old ? std::pair("$7800", "$7FE0") : std::pair("$77F0", "$7FF0");
}

// What the program is told when the character at a place of the unit's text meets the fault.
std::string Heard(const std::string& text, std::size_t at, Fault fault) {
  auto heard = text.substr(0, at + 1);
  if (fault == kDropped) heard.pop_back();
  if (fault == kDoubled) heard += text[at];
  if (fault == kGarbled)
    heard.back() = static_cast<char>(static_cast<unsigned char>(heard.back()) ^ GarbleAt(at + kCommand));
  heard += PutIn(fault);
  return fault >= kDropped && fault <= kAck ? heard + text.substr(at + 1) : heard;
}

Expectation Collect(const firmware::FirmwareId& firmware, const std::string& heard) {
  Expectation expected{.ending = kTimeOut};
  for (const char character : heard) {
    if (character == '?') {
      expected.parity_behind = !expected.stored.empty();
      if (!expected.parity_behind) expected.ending = kParity;
      break;
    }
    if (!expected.stored.empty() || (expected.left.empty() && character != '$')) continue;
    expected.left += character;
    if (character != '#') continue;
    expected.stored.swap(expected.left);
    expected.ending = Judge(firmware, expected.stored);
    if (expected.ending == kBrokenFile) break;
  }
  return expected;
}

// A fault behind a character of the command, by what the unit makes of it.
Expectation InCommand(const Conversation& talk, std::size_t at, Fault fault) {
  const bool last = at == kCommand - 1;
  const bool understood = fault == kNak || fault == kAck || (fault == kDoubled && (last || at == 0)) ||
                          (fault == kStall && talk.upload && last);
  if (understood) return talk.upload ? Collect(talk.firmware, talk.stream) : Expectation{};
  if (fault == kBad) return {.ending = kParity};
  if (fault >= kHangUp) return {.ending = kHungUp};
  if (fault == kStall && last) return {.ending = kStandsStill};
  // The next character is on its way already; the one behind it cannot be written.
  return {.ending = kTimeOut, .send_failure = fault == kLost && at + 2 < kCommand};
}

Expectation InUpload(const Conversation& talk, std::size_t at, Fault fault) {
  const auto text = talk.stream + "\r\n";
  // Nothing is left to send, so that a transmitter which stands still goes unseen.
  auto expected = Collect(talk.firmware, fault == kStall ? text : Heard(text, at - kCommand, fault));
  // With the closing window on the screen "Disconnect" is out of reach.
  if (expected.ending == kTimeOut && fault >= kHangUp) expected.ending = kHungUp;
  return expected;
}

Expectation InDownload(const Conversation& talk, std::size_t at, Fault fault) {
  if (at == kCommand && (fault == kDropped || fault == kGarbled)) return {.ending = kTimeOut};
  const std::size_t sent = at - kCommand;  // characters of the stream that have left
  const bool done = sent >= talk.stream.size();
  if (fault == kBad) return {.ending = done ? kDone : kParity, .parity_behind = done};
  if (done) return {};
  if (fault >= kHangUp) return {.ending = kHungUp};
  // The next character is on its way already; only one behind it meets the failing write.
  const bool lost = fault == kLost && sent + 1 < talk.stream.size();
  return {.ending = lost || fault == kStall ? kStandsStill : kDone, .send_failure = lost};
}

}  // namespace

Ending Judge(const firmware::FirmwareId& firmware, std::string_view text) {
  std::string joined;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r') joined += text[at];
    if (text.substr(at, 2) == "\r\n") ++at;
  }
  const auto [first, last] = MarkersOf(firmware);
  const auto start = joined.find(first);
  if (start == std::string::npos) return kForeign;
  const auto end = joined.find('#', start);
  if (end == std::string::npos) return kBrokenFile;
  const auto rest = start + (end - start) / kRecord * kRecord;
  return joined.find(last, rest) == std::string::npos ? kBrokenFile : kDone;
}

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault) {
  if (at < kCommand) return InCommand(talk, at, fault);
  return talk.upload ? InUpload(talk, at, fault) : InDownload(talk, at, fault);
}

}  // namespace ovl::testing
