#include "unit/factory.h"

#include <string_view>

namespace unit {
namespace {

constexpr int kExceptions = 24;
constexpr int kAlarms = 16;
constexpr int kTextLength = 40;
constexpr std::size_t kShortSectionDigits = 96 * 2;

bool IsLarge(Layout layout) {
  return layout == Layout::kEarly || layout == Layout::kEarlyWithAlarmModes || layout == Layout::kLate ||
         layout == Layout::kLateWithRts;
}

bool HasRegisterOptions(Layout layout) {
  return layout == Layout::kLate || layout == Layout::kLateWithRts || layout == Layout::kNew;
}

std::string Repeat(std::string_view pair, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += pair;
  return text;
}

std::string Zeros(int bytes) {
  return Repeat("00", bytes);
}

std::string LineSection(const Firmware& firmware) {
  std::string text = "00";  // no entry to execute
  text += "04";             // 8 data bits, no parity
  text += firmware.rs232;   // interface
  text += "0303";           // receive and transmit at 9600
  text += Zeros(24);        // network identities
  text += "000101";         // history: no recorder, ids 1
  if (!IsLarge(firmware.layout)) text += Zeros(16);
  return text;
}

std::string DisplayFields() {
  std::string text = Zeros(5);  // picture positions
  text += "08";                 // lines
  text += "20";                 // display on
  text += Zeros(4);             // hardware, flag type, normal states
  text += "000B";               // screen blank: none
  text += Zeros(2);             // flag duration
  return text;
}

std::string LargeUnitFields() {
  std::string text = "28";  // 40 characters a line
  text += Zeros(7);         // network off, transmit protocol, duplicate line, scroll matching, language
  text += "03";             // network at 9600
  text += Zeros(1);         // software handshake
  return text;
}

std::string SettingsSection(const Firmware& firmware) {
  const Layout layout = firmware.layout;
  const bool large = IsLarge(layout);
  std::string text = Zeros(2);  // register and variant
  if (HasRegisterOptions(layout)) text += Zeros(2);
  text += DisplayFields();
  text += Repeat(large ? "00FF0000" : "00FF00", kAlarms);  // not triggered, lasting 1
  if (layout != Layout::kOldWithoutNetwork) text += Zeros(4);
  text += Zeros(5);  // separator, time and date formats, locking, time stamp
  text += "01";      // no daylight saving
  text += firmware.demo;
  text += Zeros(1);  // space compression
  if (large) text += LargeUnitFields();
  if (layout == Layout::kLate || layout == Layout::kLateWithRts) text += Zeros(7);
  if (layout == Layout::kLateWithRts || layout == Layout::kNew) text += Zeros(1);
  if (!large) text.resize(kShortSectionDigits, '0');
  return text;
}

std::string FreeException(bool large) {
  return "10" + Zeros(large ? 10 : 6) + "00" + Repeat("20", kTextLength) + "00";
}

std::string TextSection(const Firmware& firmware) {
  const Layout layout = firmware.layout;
  const bool large = IsLarge(layout);
  std::string text = Zeros(kTextLength + 1);  // title
  text += Repeat(FreeException(large), kExceptions);
  text += Zeros(kAlarms * (kTextLength + 2));  // triggered texts
  if (large) text += Zeros(kAlarms);           // their delays
  const bool has_alarm_modes =
      layout != Layout::kEarly && layout != Layout::kOld && layout != Layout::kOldWithoutNetwork;
  if (has_alarm_modes) text += Zeros(kAlarms);
  return text;
}

}  // namespace

std::string FactoryImage(const Firmware& firmware) {
  return LineSection(firmware) + SettingsSection(firmware) + TextSection(firmware);
}

}  // namespace unit
