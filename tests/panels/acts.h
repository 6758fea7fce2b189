// A program on its settings panels, and what a person does there.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "image/record_stream.h"
#include "support/installed.h"

namespace ovl::testing {

// The image that a firmware's first register brings in whole. A firmware's images are written once.
inline const std::string& FirstImage(const FirmwareId& firmware) {
  static std::map<std::string, std::string> images;
  auto& image = images[firmware.Joined()];
  if (image.empty()) {
    const TemporaryFolder folder;
    WriteDefaultImages(folder.Path().string(), firmware);
    image = ReadWhole(folder.File(firmware.version + "/" + firmware.release + "/GENERIC.bin"));
  }
  return image;
}

inline std::string Member(std::string_view array, int member) {
  return std::string(array) + "(" + std::to_string(member) + ")";
}

inline std::string Repeat(std::string_view text, int count) {
  std::string repeated;
  for (int time = 0; time < count; ++time) repeated += text;
  return repeated;
}

inline std::string Digits(std::string_view text) {
  std::string digits;
  for (const char character : text) digits += ByteToHex(static_cast<unsigned char>(character));
  return digits;
}

// The characters first to last.
inline std::string Characters(int first, int last) {
  std::string text;
  for (int code = first; code <= last; ++code) text += static_cast<char>(code);
  return text;
}

class PanelProgram : public Installed {
 public:
  explicit PanelProgram(const FirmwareId& firmware) : Installed(firmware, Images::kOwn) {
    WriteWhole(PathOf("GENERIC"), FirstImage(firmware));
    EXPECT_EQ(Start(), Outcome::kDone);
    Mark();
  }

  Outcome Type(TextBox& box, std::string text) { return Dispatch(app, TypeEvent{&box, std::move(text)}); }
  Outcome Leave(TextBox& box) { return Dispatch(app, LeaveEvent{&box}); }
  Outcome Press(Form& form, Key key) { return Dispatch(app, KeyEvent{&form, key}); }
  Outcome Close(Form& form) { return Dispatch(app, CloseEvent{&form}); }

  int At(std::string_view name) { return ListOf(name).position; }
  bool Visible(std::string_view name) { return Control(name).visible; }
  bool Enabled(std::string_view name) { return Control(name).enabled; }
  std::string& Byte(FieldId field, int entry = 1) { return app.image.at(field, entry); }

  Outcome Open(std::string_view stream) {
    const auto path = folder.File("opened.bin");
    WriteWhole(path, std::string(stream) + "\r\n");
    file_answers.emplace_back(path);
    return Click("OpenMenu");
  }
  Outcome Upload(const std::string& stream) {
    Click("cmdConnect");
    Click("frmSettSR.cmdSET");
    Click("CmdUpDow(4)");
    Unit("\x06");
    Tick(app.frmMain.General_timer);
    Click("CmdUpDow(0)");
    Unit(stream);
    return Close(app.frmOK_buttom.form);
  }
  // Sends the image out and takes it in again.
  Outcome Reload(bool by_upload = false) {
    const auto stream = SectionsToStream(app);
    return by_upload ? Upload(stream) : Open(stream);
  }

  // Through the text dialog that the button opens.
  Outcome EnterText(std::string_view button, std::string text) {
    Click(button);
    Type(app.frmSetEXCPSTR.Text1, std::move(text));
    return Press(app.frmSetEXCPSTR.form, Key::kEnter);
  }
};

}  // namespace ovl::testing
