// A program with its settings panels, and what a user does there.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "codecs/codecs.h"
#include "core/configuration.h"
#include "image/record_stream.h"
#include "support/firmware_facts.h"
#include "support/installed.h"
#include "support/panel_facts.h"

namespace ovl::testing {

using enum image::FieldId;

// The default image of the first register, which the start loads completely. It is made once for each
// firmware.
inline const std::string& FirstImage(const firmware::FirmwareId& firmware) {
  static std::map<std::string, std::string> images;
  auto& image = images[firmware.Joined()];
  if (image.empty()) {
    const TemporaryFolder folder;
    images::WriteDefaultImages(folder.Path().string(), firmware);
    image = ReadFile(folder.File(firmware.version + "/" + firmware.release + "/GENERIC.bin"));
  }
  return image;
}

inline std::string Member(std::string_view array, int member) {
  return std::string(array) + "(" + std::to_string(member) + ")";
}

// The slots of the first have a wide range, those of the second a narrow one.
inline const firmware::FirmwareId kFamilies[] = {kLatest, {"V1300", "R14"}};

// A range of ten or six bytes in which each place has another digit.
inline std::string RangeOf(const firmware::FirmwareId& firmware) {
  return firmware.IsV1400() ? "01234567899876543210" : "012345678987";
}

// The record of an exception as the unit needs it.
inline std::string Slot(int flags, const std::string& range, std::string text) {
  text.resize(40, ' ');
  const auto last = text.find_last_not_of(' ', 38);
  std::replace(text.begin(), text.end(), '?', '\x7F');
  const int length = last == std::string::npos ? 0 : static_cast<int>(last) + 1;
  return codecs::ByteToHex(flags) + range + codecs::ByteToHex(length) + codecs::TextToHex(text) + "00";
}

// The bytes from which the unit counts up, for the entries "1", "3" and so on to "240", and for the last
// entry.
constexpr const char* kDurations[] = {"FF", "FD", "FB", "F6", "F1", "EC", "E2", "C4", "88", "4C", "10", "00"};

class PanelProgram : public Installed {
 public:
  explicit PanelProgram(const firmware::FirmwareId& firmware) : Installed(firmware, Images::kOwn) {
    WriteFile(PathOf("GENERIC"), FirstImage(firmware));
    EXPECT_EQ(Start(), core::Outcome::kDone);
    Mark();
  }

  core::Outcome Press(controls::Form& form, core::Key key) {
    return Dispatch(app, core::KeyEvent{&form, key});
  }

  int At(std::string_view name) { return ListOf(name).position; }
  bool Visible(std::string_view name) { return Control(name).visible; }
  bool Enabled(std::string_view name) { return Control(name).enabled; }
  std::string& Byte(image::FieldId field, int entry = 1) { return app.image.at(field, entry); }
  core::Outcome ShowAlarm(int alarm) { return Pick("ComboALM(0)", alarm - 1); }
  core::Outcome ShowSlot(int slot) { return Pick("ComboExcp(0)", slot - 1); }

  core::Outcome Open(std::string_view stream) {
    const auto path = folder.File("opened.bin");
    WriteFile(path, std::string(stream) + "\r\n");
    return Installed::Open(path);
  }
  // Loads the image again, from a file or by an upload.
  core::Outcome Reload(bool by_upload = false) {
    const auto stream = SectionsToStream(app);
    if (!by_upload) return Open(stream);
    Click("cmdDisConnect");
    OpenAndHold();
    Click("CmdUpDow(0)");
    Unit(stream);
    return Close(app.frmOK_buttom.form);
  }
  // Loads the image with these bytes in it, and returns what the load changed.
  std::string Load(Bytes bytes) {
    for (const auto& [field, byte] : bytes) app.image[field] = byte;
    Mark();
    EXPECT_EQ(Reload(), core::Outcome::kDone);
    return Written();
  }

  // Types a text in the dialog that the button opens.
  core::Outcome EnterText(std::string_view button, std::string text) {
    Click(button);
    Type(app.frmSetEXCPSTR.Text1, std::move(text));
    return Press(app.frmSetEXCPSTR.form, core::Key::kEnter);
  }
};

}  // namespace ovl::testing
