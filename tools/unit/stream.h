#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "unit/firmware.h"

namespace unit {

// The record stream of `digits`, an image of exactly the region's size: records joined by CR LF, with the end
// mark behind the last one.
std::string ComposeStream(const Region& region, std::string_view digits);

// Checks a record stream character by character as it arrives: marks, the order of the addresses, upper-case
// digits, the length of every record and its line end. After an error it continues with the next record, so
// that one damaged record is one error and the good records behind it are none.
class StreamChecker {
 public:
  explicit StreamChecker(const Region& region);

  // Takes the next character. True if it was the end mark: the stream is complete and takes no more
  // characters.
  bool Feed(char c);

  // The stream ended without its end mark; `why` completes the sentence "the stream stopped ...".
  void BreakOff(std::string_view why);

  // Complete and without any error.
  bool Correct() const { return ended_ && error_count_ == 0; }

  // The stream is correct but has more digits than the region has room for, within the tolerated number.
  bool Oversized() const { return Correct() && digits_.size() > region_.Digits(); }

  // The errors in the order of the stream, one sentence each. Only the first few are listed one by one.
  std::vector<std::string> Errors() const;

  // Characters taken so far.
  std::size_t Count() const { return count_; }

  // The image of the stream, exactly as long as the region. Only meaningful if Correct().
  std::string Image() const { return digits_.substr(0, region_.Digits()); }

 private:
  // Positions count from 1 inside a record, its mark included.
  static constexpr unsigned kNoAddress = 0;
  static constexpr unsigned kAddressAt = 2;
  static constexpr unsigned kPayloadAt = 6;
  static constexpr unsigned kReturnAt = kPayloadAt + kRecordDigits;
  static constexpr unsigned kLineFeedAt = kReturnAt + 1;

  bool InLastRecord() const { return address_ == region_.last; }
  unsigned PayloadTaken() const { return position_ - kPayloadAt; }
  void TakeMark(char c);
  void TakeAddress(char c);
  void JudgeAddress();
  void TakePayload(char c);
  void TakeLineEnd(char c);
  void TakeEnd();
  void NextRecord();
  void Lose(std::string_view expected, char found);
  void Report(unsigned position, std::string_view expected, std::string_view found);
  void AddError(std::string text);

  Region region_;
  std::size_t count_ = 0;
  unsigned record_ = 1;
  unsigned address_;                     // that the present record must have
  unsigned other_address_ = kNoAddress;  // that it may have instead, after a record out of order
  unsigned found_address_ = 0;
  unsigned position_ = 1;   // of the character that is due
  bool lost_ = false;       // skipping to the next record after an error
  bool past_last_ = false;  // the last record is over, only the end mark may come
  bool ended_ = false;
  std::string digits_;
  std::size_t error_count_ = 0;
  std::vector<std::string> errors_;
};

// Reads a stream from a file's text, as on the line. Here any line ends are accepted, and an LF or CR LF
// behind the end mark.
struct StreamText {
  std::string image;
  std::vector<std::string> errors;  // empty: `image` is good
};
StreamText ReadStreamText(const Region& region, std::string_view text);

}  // namespace unit
