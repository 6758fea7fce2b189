#include "campaign/expectation.h"

#include <algorithm>

namespace ovl::testing {
namespace {

constexpr std::size_t kCommand = 4;
constexpr std::size_t kRecord = 69;

struct Markers {
  std::string_view first, last;
};

Markers MarkersOf(const FirmwareId& firmware) {
  const int release = firmware.Number();
  if (firmware.version == "V1400") return {"$2000", release < 6 ? "$2840" : "$2860"};
  const bool old =
      (firmware.version == "V1300" && release < 26) || (firmware.version == "V1324" && release < 25);
  return old ? Markers{"$7800", "$7FE0"} : Markers{"$77F0", "$7FF0"};
}

// What the program is told when the character at a place of the unit's text meets the fault.
std::string Heard(const std::string& text, std::size_t at, Fault fault) {
  auto heard = text.substr(0, at + 1);
  switch (fault) {
    case Fault::kDropped:
      heard.pop_back();
      break;
    case Fault::kDoubled:
      heard += text[at];
      break;
    case Fault::kGarbled:
      heard.back() = static_cast<char>(static_cast<unsigned char>(heard.back()) ^ GarbleAt(at + kCommand));
      break;
    case Fault::kParity:
      return heard + "?";
    case Fault::kNak:
      heard += '\x15';
      break;
    case Fault::kAck:
      heard += '\x06';
      break;
    default:
      return heard;
  }
  return heard + text.substr(at + 1);
}

Expectation Collect(const FirmwareId& firmware, const std::string& heard) {
  Expectation expected{.ending = Ending::kSilence};
  for (const char character : heard) {
    if (character == '?') {
      expected.parity_behind = !expected.stored.empty();
      if (!expected.parity_behind) expected.ending = Ending::kParity;
      break;
    }
    if (!expected.stored.empty() || (expected.left.empty() && character != '$')) continue;
    expected.left += character;
    if (character != '#') continue;
    expected.stored.swap(expected.left);
    expected.ending = Judge(firmware, expected.stored);
    if (expected.ending == Ending::kBrokenFile) break;
  }
  return expected;
}

// A fault behind a character of the command, by what the unit makes of it.
bool UnitUnderstands(std::size_t at, Fault fault, bool upload) {
  if (fault == Fault::kDoubled) return at == 0 || at == kCommand - 1;
  if (fault == Fault::kStall && upload) return at == kCommand - 1;
  return fault == Fault::kNak || fault == Fault::kAck;
}

Expectation InCommand(std::size_t at, Fault fault, bool upload) {
  if (fault == Fault::kParity) return {.ending = Ending::kParity};
  if (fault >= Fault::kDisconnect) return {.ending = Ending::kDisconnected};
  if (fault == Fault::kStall && !upload && at == kCommand - 1) return {.ending = Ending::kStandsStill};
  // The next character is on its way already; the one behind it cannot be written.
  const bool more_to_send = at + 2 < kCommand;
  return {.ending = Ending::kSilence, .send_failure = fault == Fault::kLost && more_to_send};
}

Expectation ExpectUpload(const Conversation& talk, std::size_t at, Fault fault) {
  if (at < kCommand) {
    return UnitUnderstands(at, fault, true) ? Collect(talk.firmware, talk.stream)
                                            : InCommand(at, fault, talk.upload);
  }
  const auto text = talk.stream + "\r\n";
  // Nothing is left to send, so that a transmitter which stands still goes unseen.
  auto expected = Collect(talk.firmware, fault == Fault::kStall ? text : Heard(text, at - kCommand, fault));
  // With the closing window on the screen "Disconnect" is out of reach.
  if (expected.ending == Ending::kSilence && fault >= Fault::kDisconnect) {
    expected.ending = Ending::kDisconnected;
  }
  return expected;
}

Expectation ExpectDownload(const Conversation& talk, std::size_t at, Fault fault) {
  if (at < kCommand)
    return UnitUnderstands(at, fault, false) ? Expectation{} : InCommand(at, fault, talk.upload);
  if (at == kCommand && (fault == Fault::kDropped || fault == Fault::kGarbled))
    return {.ending = Ending::kSilence};
  const std::size_t sent = at - kCommand;  // characters of the stream that have left
  const bool done = sent >= talk.stream.size();
  if (fault == Fault::kParity)
    return done ? Expectation{.parity_behind = true} : Expectation{.ending = Ending::kParity};
  if (done) return {};
  if (fault >= Fault::kDisconnect) return {.ending = Ending::kDisconnected};
  if (fault == Fault::kStall) return {.ending = Ending::kStandsStill};
  // The next character is on its way already; only one behind it meets the failing write.
  if (fault == Fault::kLost && sent + 1 < talk.stream.size())
    return {.ending = Ending::kStandsStill, .send_failure = true};
  return {};
}

}  // namespace

Ending Judge(const FirmwareId& firmware, std::string_view text) {
  std::string joined;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\r') {
      joined += text[at];
    } else if (at + 1 < text.size() && text[at + 1] == '\n') {
      ++at;
    }
  }
  const auto [first, last] = MarkersOf(firmware);
  const auto start = joined.find(first);
  if (start == std::string::npos) return Ending::kForeign;
  const auto end = joined.find('#', start);
  if (end == std::string::npos) return Ending::kBrokenFile;
  const auto rest = start + (end - start) / kRecord * kRecord;
  return joined.find(last, rest) == std::string::npos ? Ending::kBrokenFile : Ending::kDone;
}

Expectation Expect(const Conversation& talk, std::size_t at, Fault fault) {
  return talk.upload ? ExpectUpload(talk, at, fault) : ExpectDownload(talk, at, fault);
}

}  // namespace ovl::testing
