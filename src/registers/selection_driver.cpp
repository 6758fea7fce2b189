#include "registers/selection_driver.h"

#include <algorithm>
#include <system_error>

#include "core/actions.h"
#include "core/failure.h"
#include "image/files.h"
#include "image/record_stream.h"

namespace ovl {
namespace {

constexpr std::size_t kFailureIndent = 19;

// Takes the register's own fields or, the first time, the whole image, and refreshes what shows them.
void TakeDefaultImage(Application& app) {
  app.StreamText.clear();
  DefaultImagePath(app);
  app.StreamText = ReadJoined(app.CurrentFilePath);
  const bool first = !app.ImageTouched;
  app.ImageTouched = true;
  PrepareCapabilities(app);
  LoadStream(app, app.StreamText);
  for (const auto& routine : app.Setting_Code) {
    if (first || routine.after_pick) routine.run(app);
  }
}

}  // namespace

std::string Check_Slash_Comma(const Application& app) {
  auto name = app.frmMain.ComboReg.Text();
  std::replace(name.begin(), name.end(), '/', ' ');
  std::replace(name.begin(), name.end(), ',', ' ');
  return name;
}

void DefaultImagePath(Application& app) {
  const auto& firmware = app.firmware;
  if (!IsKnownFamily(firmware.version)) return;
  const auto name = firmware.IsV1400() ? Check_Slash_Comma(app) : app.frmMain.ComboReg.Text();
  if (name.find_first_of("/\\") != std::string::npos) {
    throw Failure(name, std::make_error_code(std::errc::invalid_argument).message());
  }
  app.CurrentFilePath = PathBelow(app.platform.program_folder,
                                  "\\" + firmware.version + "\\" + firmware.release + "\\" + name + ".bin");
}

void RegisterSelected(Application& app, int) {
  if (app.UploadApplying) {
    app.UploadApplying = false;
    return;
  }
  const int position = app.frmMain.ComboReg.position;
  if (!app.picks_under_way.insert(position).second) return;
  try {
    TakeDefaultImage(app);
  } catch (const Failure& failure) {
    app.StatusNote = failure.Subject() + ": " + failure.what();
    MsgBox(app,
           std::string(kFailureIndent, ' ') + failure.what() + "\nPlease ReInstall Ovalon PC Software !!");
    EndProgram(app);
  }
  app.picks_under_way.erase(position);
}

void ApplyRegisterSelection(Application& app) {
  AssignPosition(app, app.frmMain.ComboReg, HexToInt(app.image[FieldId::REGTYPE]));
  app.UploadApplying = false;
  ShowRegisterOptions(app);
}

void ShowRegisterOptions(Application& app) {
  for (auto& frame : app.frmMain.frmAddress) frame.visible = false;
}

}  // namespace ovl
