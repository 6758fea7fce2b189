#include "panels/exceptions/text_entry.h"

#include <algorithm>
#include <array>

#include "core/actions.h"

namespace ovl::panels {
namespace {

constexpr std::size_t kTextLength = 40;
constexpr std::array kCaptions = {"ALARM TRIGGER SETUP", "EXCEPTION SETUP", "TITLE SETUP"};

controls::TextBox& TargetOf(core::Application& app) {
  auto& form = app.frmMain;
  switch (static_cast<TextTarget>(app.TextEntryMode)) {
    case TextTarget::kTrigger:
      return form.TextTrigger;
    case TextTarget::kException:
      return form.TextException;
    default:
      return form.Title_Text;
  }
}

std::string UpToNul(std::string text) {
  text.resize(std::min(text.find('\0'), text.size()));
  return text;
}

}  // namespace

void EnterText(core::Application& app, TextTarget target) {
  auto& dialog = app.frmSetEXCPSTR;
  app.TextEntryMode = static_cast<int>(target);
  dialog.form.caption = kCaptions.at(static_cast<std::size_t>(app.TextEntryMode));
  dialog.Text1.text = TargetOf(app).text;
  ShowForm(app, dialog.form);
  core::SetFocus(dialog.form, dialog.Text1);
}

std::string StoredText(std::string_view digits) {
  return UpToNul(codecs::HexToText(digits)).substr(0, kTextLength);
}

std::string PaddedText(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::string(2 * kTextLength, '0');
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  auto digits = codecs::TextToHex(text.substr(0, kTextLength));
  digits.resize(2 * kTextLength, '0');
  return digits;
}

void frmSetEXCPSTR_Load(core::Application& app, int) {
  app.frmMain.form.enabled = false;
}

void frmSetEXCPSTR_Unload(core::Application& app, int) {
  ReleaseMain(app);
}

void TextEntrySet_Click(core::Application& app, int) {
  AssignText(app, TargetOf(app), UpToNul(app.frmSetEXCPSTR.Text1.text));
  UnloadForm(app, app.frmSetEXCPSTR.form);
}

void TextEntryClear_Click(core::Application& app, int) {
  app.frmSetEXCPSTR.Text1.text.clear();
}

void TextEntry_Escape(core::Application& app, int) {
  UnloadForm(app, app.frmSetEXCPSTR.form);
}

void ApplyTitle(core::Application& app) {
  const auto& digits = app.image[image::FieldId::ONSCRNTITL];
  const auto text = std::string_view(digits).substr(0, std::max<std::size_t>(digits.size(), 2) - 2);
  AssignText(app, app.frmMain.Title_Text, StoredText(text));
}

void Title_Text_Change(core::Application& app, int) {
  app.image[image::FieldId::ONSCRNTITL] = PaddedText(app.frmMain.Title_Text.text) + "00";
}

void cmdTitle_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kTitle);
}

}  // namespace ovl::panels
