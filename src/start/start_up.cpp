#include "start/start_up.h"

#include "core/actions.h"
#include "core/failure.h"
#include "core/settings.h"
#include "files/file_commands.h"
#include "firmware/variants.h"
#include "link/wiring.h"
#include "panels/alarms.h"
#include "panels/communication.h"
#include "panels/demo.h"
#include "panels/exceptions/dvr.h"
#include "panels/exceptions/exceptions.h"
#include "panels/text_display.h"
#include "panels/time_date.h"
#include "panels/wiring.h"
#include "phrases/phrases.h"
#include "registers/register_catalogue.h"
#include "registers/selection_driver.h"
#include "start/version_menu.h"

namespace ovl::start {
namespace {

void menuExit_Click(core::Application& app, int) {
  EndProgram(app);
}

void menuAbout_Click(core::Application& app, int) {
  ShowForm(app, app.frmAbout.form);
}

// The firmware as the settings store names it, which the tabs show too.
void frmAbout_Load(core::Application& app, int) {
  app.frmAbout.lbFirmware.caption =
      phrases::Sentence(phrases::Pattern("Form", "Firmware %1"), {app.frmMain.lbVersionID[0].caption});
}

void AboutOk_Click(core::Application& app, int) {
  UnloadForm(app, app.frmAbout.form);
}

void frmMain_Close(core::Application& app, int) {
  UnloadForm(app, app.frmMicros.form);
  UnloadForm(app, app.FrmSubMenu.form);
  EndProgram(app);
}

void WireOwnControls(core::Application& app) {
  app.frmMain.form.window_close = frmMain_Close;
  app.frmMain.menuExit.handler = menuExit_Click;
  app.frmMain.menuAbout.handler = menuAbout_Click;
  app.frmAbout.form.load = frmAbout_Load;
  app.frmAbout.Command1.handler = AboutOk_Click;
}

// The register comes first, because its options force selections whose bytes the other panels then show.
void OrderApplyRoutines(core::Application& app) {
  using enum core::ApplyWhen;
  app.Setting_Code = {
      {registers::ApplyRegisterSelection, kAfterLoadAndPick},
      {panels::ApplyCommunication, kAfterLoadAndPick},
      {panels::ApplyDemo, kAfterLoadAndPick},
      {panels::ApplyDisplay, kAfterLoad},
      {panels::ApplyTimeDate, kAfterLoad},
      {panels::ApplyExceptionPanel, kAfterLoad},
      {panels::ApplyDvr, kAfterLoad},
      {panels::ApplyAlarmGlobals, kAfterLoad},
  };
}

void ReadFirmware(core::Application& app) {
  app.firmware.version =
      ReadSetting(app, core::SettingRoot::kLocalMachine, core::kSettingsKey, core::kVersionValue);
  if (!app.firmware.version.empty()) {
    app.firmware.release =
        ReadSetting(app, core::SettingRoot::kLocalMachine, core::kSettingsKey, core::kReleaseValue);
  }
  if (!app.firmware.version.empty() && !app.firmware.release.empty()) return;
  MsgBox(app, core::Box::kRegistryError);
  EndProgram(app);
}

void BuildForFirmware(core::Application& app) {
  MarkFirmwareMenu(app, true);
  for (auto& label : app.frmMain.lbVersionID) label.caption = app.firmware.Joined();
  ApplyCompactFirmware(app);
  app.image_firmware = app.firmware;
  registers::ResetRegisterIndexes(app);
  registers::BuildRegisterList(app);
  firmware::ApplyFirmwareVariants(app.frmMain, app.firmware);
}

void SelectFirstRegister(core::Application& app) {
  app.ImageTouched = false;
  AssignPosition(app, app.frmMain.ComboReg, 0);
  app.PanelsReady = true;
}

void ResetLink(core::Application& app) {
  app.RemoteRequestText = "~~~SOH_REQUEST_EOT~~~k";
  app.UploadCommandText = "/LU\r";
  app.DownloadCommandText = "/LD\r";
  app.DownloadRequested = false;
  app.DownloadActive = false;
  app.SetTimePending = false;
  app.HistoryPending = false;
  app.MasterResetPending = false;
  app.FinalAckExpected = false;
  app.ComboTouched = false;
  app.RemoteHeld = false;
  app.ScanActive = false;
  app.LinkMode = core::kLinkIdle;
}

void frmMain_Load(core::Application& app) {
  auto& form = app.frmMain;
  ReadFirmware(app);
  BuildForFirmware(app);
  core::EnableTimer(form.Timer, true);
  form.SSTab1.current = 0;
  SelectFirstRegister(app);
  ResetLink(app);
  form.EnableActions(false);
  for (auto& list : form.ComboDay) list.visible = false;
  form.ComboDay[0].visible = true;
  if (form.ComboExcp[controls::Excp::kNumber].position >= 0)
    panels::LoadExceptionSlot(app, form.ComboExcp[controls::Excp::kNumber].position + 1);
  ShowForm(app, form.form);
}

void RefuseStart(core::Application& app, const std::string& reason) {
  app.StatusNote = reason;
  MsgBox(app, core::Box::kStartFailed);
  EndProgram(app);
}

void Start(core::Application& app) {
  try {
    frmMain_Load(app);
  } catch (const core::Failure& failure) {
    RefuseStart(app, failure.Text());
  } catch (const std::exception& error) {
    RefuseStart(app, error.what());
  }
}

}  // namespace

void WireProgram(core::Application& app) {
  BuildVersionMenu(app);
  WireOwnControls(app);
  files::WireFileMenu(app.frmMain);
  panels::WirePanels(app);
  registers::WireRegisters(app);
  link::WireLink(app);
  OrderApplyRoutines(app);
}

void ServeFirmware(core::Application& app, const firmware::FirmwareId& firmware) {
  WireProgram(app);
  app.firmware = firmware;
  BuildForFirmware(app);
}

core::Outcome StartProgram(core::Application& app) {
  WireProgram(app);
  return DispatchStart(app, Start);
}

}  // namespace ovl::start
