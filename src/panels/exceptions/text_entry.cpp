#include "panels/exceptions/text_entry.h"

#include <array>

#include "core/actions.h"
#include "image/slot_records.h"
#include "phrases/phrases.h"

namespace ovl::panels {
namespace {

using phrases::Marked;

constexpr std::array kCaptions = {Marked("Form", "ALARM TRIGGER SETUP"), Marked("Form", "EXCEPTION SETUP"),
                                  Marked("Form", "TITLE SETUP")};

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

}  // namespace

void EnterText(core::Application& app, TextTarget target) {
  auto& dialog = app.frmSetEXCPSTR;
  app.TextEntryMode = static_cast<int>(target);
  dialog.form.caption = kCaptions.at(static_cast<std::size_t>(app.TextEntryMode));
  dialog.Text1.text = TargetOf(app).text;
  ShowForm(app, dialog.form);
  core::SetFocus(dialog.form, dialog.Text1);
}

void frmSetEXCPSTR_Load(core::Application& app, int) {
  app.frmMain.form.enabled = false;
}

void frmSetEXCPSTR_Unload(core::Application& app, int) {
  ReleaseMain(app);
}

void TextEntrySet_Click(core::Application& app, int) {
  AssignText(app, TargetOf(app), image::UpToNul(app.frmSetEXCPSTR.Text1.text));
  UnloadForm(app, app.frmSetEXCPSTR.form);
}

void TextEntryClear_Click(core::Application& app, int) {
  app.frmSetEXCPSTR.Text1.text.clear();
}

void TextEntry_Escape(core::Application& app, int) {
  UnloadForm(app, app.frmSetEXCPSTR.form);
}

void ApplyTitle(core::Application& app) {
  const auto text = image::WithoutEndMark(app.image[image::FieldId::ONSCRNTITL]);
  AssignText(app, app.frmMain.Title_Text, image::StoredText(text));
}

void Title_Text_Change(core::Application& app, int) {
  app.image[image::FieldId::ONSCRNTITL] = image::PaddedText(app.frmMain.Title_Text.text) + "00";
}

void cmdTitle_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kTitle);
}

}  // namespace ovl::panels
