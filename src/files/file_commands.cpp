#include "files/file_commands.h"

#include <system_error>

#include "core/actions.h"
#include "core/configuration.h"
#include "core/failure.h"
#include "files/files.h"
#include "files/history.h"
#include "firmware/traits.h"
#include "image/record_stream.h"

namespace ovl::files {
namespace {

constexpr const char* kTextFiles = "Text Files(*.txt)|*.txt";
constexpr const char* kBinFiles = "Bin Files(*bin)|*.bin";
constexpr const char* kAllFiles = "All Files(*.*)|*.*";

std::string SavedStream(core::Application& app) {
  PrepareCapabilities(app);
  if (!firmware::IsKnownFamily(app.firmware.version)) {
    throw core::Failure(app.firmware.Joined(), std::make_error_code(std::errc::not_supported));
  }
  return core::ComposeStream(app, firmware::SavedLayoutOf(app.firmware), image::SavedRegion(app.firmware));
}

std::string AskForPath(core::Application& app, const core::FileDialog& dialog) {
  const auto answer = app.platform.ask_file(dialog);
  if (!answer) throw core::Failure(dialog.file_name, std::make_error_code(std::errc::operation_canceled));
  app.CurrentFilePath = answer->file_name;
  return app.CurrentFilePath;
}

void ReadChosenFile(core::Application& app) {
  core::FileDialog dialog;
  dialog.kind = core::FileDialog::Kind::kOpen;
  dialog.file_name = PathBelow(app.platform.program_folder, "\\*.bin");
  dialog.filter = std::string(kTextFiles) + "|" + kBinFiles + "|" + kAllFiles;
  dialog.filter_index = 2;
  app.StreamText = ReadJoined(app.platform.files, AskForPath(app, dialog));
}

void TakeStream(core::Application& app) {
  PrepareCapabilities(app);
  if (LoadStream(app, app.StreamText)) ++app.files_taken;
  for (const auto& routine : app.Setting_Code) routine.run(app);
  auto& shown = app.frmMain.ComboExcp[controls::Excp::kNumber];
  if (shown.position != 0) return;
  AssignPosition(app, shown, 1);
  AssignPosition(app, shown, 0);
}

}  // namespace

void OpenMenu_Click(core::Application& app, int) {
  app.ImageTouched = true;
  app.UploadApplying = true;
  app.PanelsReady = false;
  try {
    ReadChosenFile(app);
    TakeStream(app);
  } catch (const core::Failure& failure) {
    app.StreamText.clear();
    NoteFailure(app, failure);
  }
  app.PanelsReady = true;
}

void menuSave_Click(core::Application& app, int) {
  core::FileDialog dialog;
  dialog.kind = core::FileDialog::Kind::kSave;
  dialog.file_name = PathBelow(app.platform.program_folder, "\\*.Bin");
  dialog.filter = std::string(kTextFiles) + "|" + kAllFiles;
  dialog.filter_index = 2;
  app.saved_path.clear();
  try {
    const auto stream = SavedStream(app);
    const auto path = AskForPath(app, dialog);
    app.platform.files.replace(path, stream + "\r\n");
    app.saved_path = path;
  } catch (const core::Failure& failure) {
    NoteFailure(app, failure);
    MsgBox(app, core::Box::kNotSaved);
    return;
  }
  MsgBox(app, core::Box::kSaved);
}

void WireFileMenu(controls::MainForm& form) {
  form.OpenMenu.handler = OpenMenu_Click;
  form.menuSave.handler = menuSave_Click;
  form.OpenHistory_menu.handler = OpenHistory_menu_Click;
}

}  // namespace ovl::files
