#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "unit/firmware.h"

namespace unit {

// The record stream that carries `digits`, an image of exactly the region's size: records joined by CR LF,
// the last one closed by the end mark and nothing behind it.
std::string ComposeStream(const Region& region, std::string_view digits);

// Judges a record stream character by character, as it comes in. Nothing is forgiven: marks, the order of the
// addresses, upper-case digits, the length of every record and its line end. After an error it goes on at the
// next record, so that one damaged record is told once and the sound ones behind it are not.
class StreamChecker {
 public:
  explicit StreamChecker(const Region& region);

  // Takes the next character. True when it was the end mark: the stream is complete and must not be fed
  // further.
  bool Feed(char c);

  // The stream ended without its end mark; `why` completes the sentence "the stream broke off ...".
  void BreakOff(std::string_view why);

  // Complete and without any error.
  bool Correct() const { return ended_ && error_count_ == 0; }

  // The stream is correct but carries more digits than the region has room for, as far as that is tolerated.
  bool Oversized() const { return Correct() && digits_.size() > region_.Digits(); }

  // What is wrong, one sentence each, in the order of the stream. Only the first few are told one by one.
  std::vector<std::string> Errors() const;

  // Characters taken so far.
  std::size_t Count() const { return count_; }

  // The image that the stream carried, exactly as long as the region. Only meaningful when Correct().
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

// Reads a stream from a file's text: as on the line, but any line ends and an LF or CR LF behind the end mark
// are accepted. The image of the region's size, or what is wrong.
struct StreamText {
  std::string image;
  std::vector<std::string> errors;  // empty: `image` is good
};
StreamText ReadStreamText(const Region& region, std::string_view text);

}  // namespace unit
