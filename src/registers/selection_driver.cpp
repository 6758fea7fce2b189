#include "registers/selection_driver.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "core/actions.h"
#include "core/configuration.h"
#include "core/failure.h"
#include "files/files.h"
#include "image/record_stream.h"
#include "registers/options/micros.h"
#include "registers/options/option_handlers.h"
#include "registers/options/sub_menus.h"
#include "registers/register_catalogue.h"
#include "registers/register_table.h"

namespace ovl::registers {
namespace {

// Loads the fields of the register, or the whole image at the first time, and refreshes the panels.
void TakeDefaultImage(core::Application& app) {
  app.StreamText.clear();
  DefaultImagePath(app);
  app.StreamText = files::ReadJoined(app.platform.files, app.CurrentFilePath);
  const bool first = !app.ImageTouched;
  app.ImageTouched = true;
  PrepareCapabilities(app);
  LoadStream(app, app.StreamText);
  for (const auto& routine : app.Setting_Code) {
    if (first || routine.when == core::ApplyWhen::kAfterLoadAndPick) routine.run(app);
  }
}

// The first row of the running firmware whose key is selected in the list.
const RegisterRow* RowOfSelected(const core::Application& app) {
  const int position = app.frmMain.ComboReg.position;
  if (position < 0) return nullptr;
  for (const auto& row : RegisterTable()) {
    const bool served = firmware::IsInReleases(app.firmware, row.Served());
    if (served && RegisterIndexOf(app, row.key) == position) return &row;
  }
  return nullptr;
}

}  // namespace

std::string Check_Slash_Comma(std::string name) {
  std::replace(name.begin(), name.end(), '/', ' ');
  std::replace(name.begin(), name.end(), ',', ' ');
  return name;
}

std::string ImageFileOf(const firmware::FirmwareId& firmware, std::string_view register_name) {
  const bool replaces = firmware::ReplacesSlashesInImageNames(firmware);
  const std::string name(register_name);
  return (replaces ? Check_Slash_Comma(name) : name) + ".bin";
}

std::string DefaultImageOf(const std::string& folder, const firmware::FirmwareId& firmware,
                           const std::string& register_name) {
  const auto name = ImageFileOf(firmware, register_name);
  if (name.find_first_of("/\\") != std::string::npos)
    throw core::Failure(register_name, std::make_error_code(std::errc::invalid_argument));
  return files::PathBelow(folder, "\\" + firmware.version + "\\" + firmware.release + "\\" + name);
}

void DefaultImagePath(core::Application& app) {
  if (!firmware::IsKnownFamily(app.firmware.version)) return;
  app.CurrentFilePath =
      DefaultImageOf(app.platform.program_folder, app.firmware, app.frmMain.ComboReg.Text());
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
    NoteFailure(app, failure);
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
  app.unfit_option.reset();
  for (auto& frame : form.frmAddress) frame.visible = false;
  const auto* row = RowOfSelected(app);
  if (row == nullptr) return;
  auto* frame = row->frame == controls::OptionFrame::kNone ? nullptr : &form.FrameOf(row->frame);
  if (frame != nullptr) frame->caption = row->title.empty() ? form.ComboReg.Text() : std::string(row->title);
  if (row->assign(app, *row) && frame != nullptr) frame->visible = true;
}

// Closes windows of another register: they would write into the options of this one.
void CloseForeignWindows(core::Application& app) {
  using Frame = controls::OptionFrame;
  const auto& form = app.frmMain;
  const bool has_menu = form.FrameOf(Frame::kCasioModels).visible ||
                        form.FrameOf(Frame::kSharpModels).visible || form.FrameOf(Frame::kTecModels).visible;
  if (!has_menu) UnloadForm(app, app.FrmSubMenu.form);
  if (!form.FrameOf(Frame::kMicros).visible) UnloadForm(app, app.frmMicros.form);
}

}  // namespace

bool OptionsAreHidden(const core::Application& app) {
  const auto* row = RowOfSelected(app);
  return row != nullptr && row->frame != controls::OptionFrame::kNone &&
         !app.frmMain.FrameOf(row->frame).visible;
}

const core::UnfitOption* UnfitOptionOf(const core::Application& app) {
  const auto& unfit = app.unfit_option;
  const bool applies =
      unfit && OptionsAreHidden(app) && app.image.at(unfit->field, unfit->entry) == unfit->value;
  return applies ? &*unfit : nullptr;
}

void ShowRegisterOptions(core::Application& app) {
  ShowOptionFrame(app);
  CloseForeignWindows(app);
}

void WireRegisters(core::Application& app) {
  app.frmMain.ComboReg.handler = RegisterSelected;
  WireRegisterOptions(app.frmMain);
  WireSubMenu(app.FrmSubMenu);
  auto& micros = app.frmMicros;
  micros.cmdSetMicros.handler = cmdSetMicros_Click;
  micros.cmdISNset.handler = cmdISNset_Click;
  micros.CMD3700Set.handler = CMD3700Set_Click;
  micros.ECRNumber.leave = ECRNumber_Leave;
  micros.form.unload = frmMicros_Unload;
}

}  // namespace ovl::registers
