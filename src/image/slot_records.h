// Where the parts of an exception slot, an alarm record, a triggered text and the line settings are, and how
// to read and replace them. Panels, windows and comparisons use these functions and count no digits
// themselves.
//
//   exception slot    flags, two range values, length of the text, 40 characters, 00
//   alarm record      trigger, duration counter, place of the duration in its list; in V1400 also video loss
//   triggered text    flags, 40 characters, 00
//
// Records can be shorter than they should be, when a file or an upload ended early. What is missing reads as
// empty or zero.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::image {

// ---- Texts in records

// The text of some digits: up to the first NUL, at most 40 characters.
std::string StoredText(std::string_view digits);

// The digits of a text, without blanks at both ends, filled with 00 up to 40 characters.
std::string PaddedText(std::string_view text);

// The digits of a text without the 00 after its last character.
std::string WithoutEndMark(std::string_view digits);

std::string UpToNul(std::string text);

// Replaces the first byte of a record: the flags of an exception slot or of a triggered text.
void StoreFirstByte(std::string& record, int byte);

// ---- The line settings COMMCFG_BAK

inline constexpr int kReportBit = 4;  // exceptions are also sent out on the line

// The place in the parity list: none, even, odd. Bit 1 switches parity on, bit 0 makes it even.
int ParityEntry(int flags);
int WithParityEntry(int flags, int entry);

// ---- The display settings DSPCFG_BAK

inline constexpr int kTitlerBit = 4;
inline constexpr int kTextBit = 5;  // the text of the register is shown at all
inline constexpr int kClockBit = 7;

// ---- Exception slots

// Bits of the flags.
inline constexpr int kDisplayBit = 0;
inline constexpr int kOutputBit = 1;
inline constexpr int kFreeBit = 4;
inline constexpr int kHistoryBit = 5;
inline constexpr int kScrollBit = 6;

// Bits 2 and 3 of the flags, the place in the list of operators: none, IN, OUT. Both bits name no entry.
int OperatorOf(int flags);
int WithOperator(int flags, int entry);

// A range value as its digits. The integer digits depend on the firmware.
inline constexpr std::size_t kRangeDecimals = 2;
struct RangeValue {
  std::string integers;
  std::string decimals;
};

// Value 0 is the first one of the range window, value 1 the second.
RangeValue RangeValueOf(std::string_view slot, const firmware::FirmwareId& firmware, std::size_t value);
void StoreRange(std::string& slot, const firmware::FirmwareId& firmware, std::string_view digits);

// The pattern. A slot holds its "?" as 7F.
std::string ExceptionText(std::string_view slot, const firmware::FirmwareId& firmware);

// Stores the pattern with its length. A blank one marks the slot as free.
void StoreExceptionText(std::string& slot, const firmware::FirmwareId& firmware, std::string text);

// The flags say that the slot is free. An empty slot says nothing.
bool IsFreeException(std::string_view slot);

// The slot of a unit that was never configured.
std::string FreeExceptionSlot(const firmware::FirmwareId& firmware);

// Where a part of a record is. A count of npos means up to the end.
struct DigitSpan {
  std::size_t first = 0;
  std::size_t count = std::string_view::npos;
};

// Both range values; the pattern with its length and the 00.
DigitSpan RangeDigits(const firmware::FirmwareId& firmware);
DigitSpan PatternDigits(const firmware::FirmwareId& firmware);

// The flags of an exception slot or of a triggered text, or what triggers an alarm.
inline constexpr DigitSpan kFirstByteDigits = {0, 2};

// ---- Alarm records

// What triggers an alarm: nothing, an input or exception, the RTS line of the register.
inline constexpr int kNoTrigger = 0;
inline constexpr int kRtsTrigger = 28;

// The exceptions that a trigger means, from first to last: one, a half of them, or all. None for the other
// triggers.
struct TriggeringExceptions {
  int first = 1;
  int last = 0;
};
TriggeringExceptions ExceptionsOfTrigger(int trigger);

int AlarmTrigger(std::string_view record);
int AlarmCounter(std::string_view record);

// The time of a duration counter: it runs up to 256. Nothing for a pulse.
std::optional<int> AlarmTime(int counter);

int AlarmVideoLoss(std::string_view record);

// The two bytes of the duration, and those after them.
inline constexpr DigitSpan kAlarmDurationDigits = {2, 4};
inline constexpr DigitSpan kAlarmVideoLossDigits = {6};
std::string_view AlarmVideoLossDigits(std::string_view record);

void StoreAlarmTrigger(std::string& record, int trigger);
void StoreAlarmDuration(std::string& record, const firmware::FirmwareId& firmware, int counter, int entry);
void StoreAlarmVideoLoss(std::string& record, int entry);

// Whether the output of an alarm, 1 to 16, is closed while nothing triggers it.
bool IsNormallyClosed(const ConfigImage& image, int number);

// ---- Triggered texts

// The characters and the 00.
inline constexpr DigitSpan kTriggeredDigits = {2};
std::string_view TriggeredDigits(std::string_view record);

}  // namespace ovl::image
