#include "unit/stream.h"

#include <algorithm>
#include <utility>

#include "unit/text.h"

namespace unit {
namespace {

constexpr std::size_t kErrorsListed = 5;
constexpr std::string_view kDigitExpected = "an upper-case hexadecimal digit";

}  // namespace

std::string ComposeStream(const Region& region, std::string_view digits) {
  std::string text;
  for (unsigned address = region.first; address < region.last; address += kRecordBytes) {
    text += '$';
    text += Hex4(address);
    text += digits.substr(0, kRecordDigits);
    text += "\r\n";
    digits.remove_prefix(kRecordDigits);
  }
  text += '$';
  text += Hex4(region.last);
  text += digits;
  text += "#";
  return text;
}

StreamChecker::StreamChecker(const Region& region) : region_(region), address_(region.first) {}

bool StreamChecker::Feed(char c) {
  ++count_;
  if (c == '#') {
    TakeEnd();
    ended_ = true;
    return true;
  }
  if (lost_ && c != '$') return false;
  if (position_ == 1) {
    TakeMark(c);
  } else if (position_ < kPayloadAt) {
    TakeAddress(c);
  } else if (position_ < kReturnAt) {
    TakePayload(c);
  } else {
    TakeLineEnd(c);
  }
  return false;
}

void StreamChecker::TakeMark(char c) {
  if (past_last_) {
    Report(1, "\"#\", the end of the stream", Quoted(c));
    lost_ = true;
    return;
  }
  if (c != '$') return Lose("\"$\"", c);
  lost_ = false;
  found_address_ = 0;
  position_ = kAddressAt;
}

void StreamChecker::TakeAddress(char c) {
  const auto digit = UpperHexDigit(c);
  if (!digit) return Lose(kDigitExpected, c);
  found_address_ = found_address_ * 16 + *digit;
  ++position_;
  if (position_ == kPayloadAt) JudgeAddress();
}

void StreamChecker::JudgeAddress() {
  const unsigned other = std::exchange(other_address_, kNoAddress);
  if (found_address_ == other) address_ = other;
  if (found_address_ == address_) return;
  Report(kAddressAt, "address " + Hex4(address_), Hex4(found_address_));
  // One wrong address must not make the later records wrong, so they may continue from either address.
  const bool in_region = found_address_ >= region_.first && found_address_ <= region_.last;
  if (!in_region || (found_address_ - region_.first) % kRecordBytes != 0) return;
  other_address_ = std::exchange(address_, found_address_);
}

void StreamChecker::TakePayload(char c) {
  const bool room = !InLastRecord() || PayloadTaken() < region_.last_digits + region_.tolerated_digits;
  if (!room) return Lose("\"#\", the end of the stream", c);
  if (!UpperHexDigit(c)) return Lose(kDigitExpected, c);
  digits_ += c;
  ++position_;
}

void StreamChecker::TakeLineEnd(char c) {
  if (position_ == kReturnAt && c != '\r') return Lose("<CR>", c);
  if (position_ == kLineFeedAt && c != '\n') return Lose("<LF>", c);
  ++position_;
  if (position_ > kLineFeedAt) NextRecord();
}

void StreamChecker::TakeEnd() {
  if (past_last_) return;
  if (!InLastRecord() || lost_ || position_ < kPayloadAt) {
    return Report(position_, "more, up to address " + Hex4(region_.last), "\"#\", the end of the stream");
  }
  const unsigned taken = PayloadTaken();
  const bool fits = taken == region_.last_digits || taken == region_.last_digits + region_.tolerated_digits;
  if (fits) return;
  Report(position_, std::to_string(region_.last_digits) + " digits in the last record",
         "\"#\" after " + std::to_string(taken));
}

void StreamChecker::NextRecord() {
  if (InLastRecord()) {
    past_last_ = true;
  } else {
    ++record_;
    address_ += kRecordBytes;
    if (other_address_ != kNoAddress) other_address_ += kRecordBytes;
  }
  position_ = 1;
}

void StreamChecker::Lose(std::string_view expected, char found) {
  Report(position_, expected, Quoted(found));
  if (position_ > 1) NextRecord();
  lost_ = true;
  if (found == '$' && !past_last_) TakeMark(found);
}

void StreamChecker::Report(unsigned position, std::string_view expected, std::string_view found) {
  AddError("record " + std::to_string(record_) + ", address " + Hex4(address_) + ", position " +
           std::to_string(position) + ": expected " + std::string(expected) + ", found " +
           std::string(found));
}

void StreamChecker::AddError(std::string text) {
  ++error_count_;
  if (errors_.size() < kErrorsListed) errors_.push_back(std::move(text));
}

void StreamChecker::BreakOff(std::string_view why) {
  ++error_count_;
  const std::string place = count_ == 0 ? "before its first character"
                                        : "after " + std::to_string(count_) + " characters, in record " +
                                              std::to_string(record_) + ", address " + Hex4(address_);
  errors_.push_back("the stream stopped " + place + ": " + std::string(why));
}

std::vector<std::string> StreamChecker::Errors() const {
  std::vector<std::string> reported = errors_;
  if (error_count_ > errors_.size()) {
    reported.push_back("and " + std::to_string(error_count_ - errors_.size()) + " more errors");
  }
  return reported;
}

StreamText ReadStreamText(const Region& region, std::string_view text) {
  StreamChecker checker(region);
  std::size_t taken = 0;
  bool ended = false;
  for (const char c : text) {
    ++taken;
    if (c == '\r' || c == '\n') continue;
    if (c == '$' && checker.Count() > 0) {
      checker.Feed('\r');
      checker.Feed('\n');
    }
    ended = checker.Feed(c);
    if (ended) break;
  }
  if (!ended) checker.BreakOff("there is no end mark \"#\"");
  StreamText result{checker.Image(), checker.Errors()};
  const std::string_view rest = text.substr(taken);
  const bool only_line_ends = std::ranges::all_of(rest, [](char c) { return c == '\r' || c == '\n'; });
  if (!only_line_ends) {
    result.errors.push_back(std::to_string(rest.size()) + " characters after the end mark \"#\"");
  }
  return result;
}

}  // namespace unit
