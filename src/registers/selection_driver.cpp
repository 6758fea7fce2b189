#include "registers/selection_driver.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "core/actions.h"
#include "core/configuration.h"
#include "core/failure.h"
#include "files/files.h"
#include "image/record_stream.h"
#include "registers/register_catalogue.h"
#include "registers/register_table.h"

namespace ovl::registers {
namespace {

// Takes the register's own fields or, the first time, the whole image, and refreshes what shows them.
void TakeDefaultImage(core::Application& app) {
  app.StreamText.clear();
  DefaultImagePath(app);
  app.StreamText = files::ReadJoined(app.platform.files, app.CurrentFilePath);
  const bool first = !app.ImageTouched;
  app.ImageTouched = true;
  PrepareCapabilities(app);
  LoadStream(app, app.StreamText);
  for (const auto& routine : app.Setting_Code) {
    if (first || routine.after_pick) routine.run(app);
  }
}

// The first row of the running family and release whose key stands at the list's position.
const RegisterRow* RowOfSelected(const core::Application& app) {
  const int position = app.frmMain.ComboReg.position;
  if (position < 0) return nullptr;
  const auto family = FamilyOf(app.firmware.version);
  const int release = app.firmware.Number();
  for (const auto& row : RegisterTable()) {
    if ((row.families & family) == 0 || release < row.first_release || release > row.last_release) continue;
    if (RegisterIndexOf(app, row.key) == position) return &row;
  }
  return nullptr;
}

}  // namespace

std::string Check_Slash_Comma(const core::Application& app) {
  auto name = app.frmMain.ComboReg.Text();
  std::replace(name.begin(), name.end(), '/', ' ');
  std::replace(name.begin(), name.end(), ',', ' ');
  return name;
}

void DefaultImagePath(core::Application& app) {
  const auto& firmware = app.firmware;
  if (!firmware::IsKnownFamily(firmware.version)) return;
  const auto name = firmware.IsV1400() ? Check_Slash_Comma(app) : app.frmMain.ComboReg.Text();
  if (name.find_first_of("/\\") != std::string::npos) {
    throw core::Failure(name, std::make_error_code(std::errc::invalid_argument).message());
  }
  app.CurrentFilePath = files::PathBelow(
      app.platform.program_folder, "\\" + firmware.version + "\\" + firmware.release + "\\" + name + ".bin");
}

void RegisterSelected(core::Application& app, int) {
  if (app.UploadApplying) {
    app.UploadApplying = false;
    return;
  }
  const int position = app.frmMain.ComboReg.position;
  if (!app.picks_under_way.insert(position).second) return;
  try {
    TakeDefaultImage(app);
  } catch (const core::Failure& failure) {
    app.StatusNote = failure.Text();
    MsgBox(app, core::Box::kNoDefaultImage, failure.what());
    EndProgram(app);
  }
  app.picks_under_way.erase(position);
}

void ApplyRegisterSelection(core::Application& app) {
  AssignPosition(app, app.frmMain.ComboReg, codecs::HexToInt(app.image[image::FieldId::REGTYPE]));
  app.UploadApplying = false;
  ShowRegisterOptions(app);
}

namespace {

void ShowOptionFrame(core::Application& app) {
  auto& form = app.frmMain;
  for (auto& frame : form.frmAddress) frame.visible = false;
  const auto* row = RowOfSelected(app);
  if (row == nullptr) return;
  const bool has_frame = row->frame != RegisterRow::kNoFrame;
  auto* frame = has_frame ? &form.frmAddress.at(static_cast<std::size_t>(row->frame)) : nullptr;
  if (has_frame) frame->caption = row->title.empty() ? form.ComboReg.Text() : std::string(row->title);
  if (row->assign(app, *row) && has_frame) frame->visible = true;
}

// A window that a register opened must not write into another one's options.
void CloseForeignWindows(core::Application& app) {
  constexpr std::array<std::size_t, 3> kWithSubMenu = {34, 46, 48};
  constexpr std::size_t kMicros = 9;
  const auto& frames = app.frmMain.frmAddress;
  const bool has_menu = std::any_of(kWithSubMenu.begin(), kWithSubMenu.end(),
                                    [&](std::size_t frame) { return frames[frame].visible; });
  if (!has_menu) UnloadForm(app, app.FrmSubMenu.form);
  if (!frames[kMicros].visible) UnloadForm(app, app.frmMicros.form);
}

}  // namespace

void ShowRegisterOptions(core::Application& app) {
  ShowOptionFrame(app);
  CloseForeignWindows(app);
}

}  // namespace ovl::registers
