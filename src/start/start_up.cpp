#include "start/start_up.h"

#include "core/actions.h"
#include "core/failure.h"
#include "core/settings.h"
#include "files/file_commands.h"
#include "files/history.h"
#include "firmware/variants.h"
#include "link/clock.h"
#include "link/port.h"
#include "link/remote_mode.h"
#include "link/transfer.h"
#include "panels/alarms.h"
#include "panels/communication.h"
#include "panels/demo.h"
#include "panels/exceptions/dvr.h"
#include "panels/exceptions/exception_report.h"
#include "panels/exceptions/exceptions.h"
#include "panels/exceptions/range_editor.h"
#include "panels/exceptions/scroll_matching.h"
#include "panels/exceptions/text_entry.h"
#include "panels/text_display.h"
#include "panels/time_date.h"
#include "registers/micros.h"
#include "registers/option_handlers.h"
#include "registers/register_catalogue.h"
#include "registers/selection_driver.h"
#include "registers/sub_menus.h"
#include "start/version_menu.h"

namespace ovl::start {
namespace {

void menuExit_Click(core::Application& app, int) {
  EndProgram(app);
}

void menuAbout_Click(core::Application& app, int) {
  ShowForm(app, app.frmAbout.form);
}

// As the tabs name the firmware: as the settings store has it.
void frmAbout_Load(core::Application& app, int) {
  app.frmAbout.lbFirmware.caption = "Firmware " + app.frmMain.lbVersionID[0].caption;
}

void AboutOk_Click(core::Application& app, int) {
  UnloadForm(app, app.frmAbout.form);
}

void frmMain_Close(core::Application& app, int) {
  UnloadForm(app, app.frmMicros.form);
  UnloadForm(app, app.FrmSubMenu.form);
  EndProgram(app);
}

template <class Controls>
void Handle(Controls& controls, controls::Handler handler) {
  for (auto& control : controls) control.handler = handler;
}

void WireMain(controls::MainForm& form) {
  form.form.window_close = frmMain_Close;
  form.OpenMenu.handler = files::OpenMenu_Click;
  form.menuSave.handler = files::menuSave_Click;
  form.OpenHistory_menu.handler = files::OpenHistory_menu_Click;
  form.menuExit.handler = menuExit_Click;
  form.menuAbout.handler = menuAbout_Click;
  form.ComboReg.handler = registers::RegisterSelected;
  form.cmdConnect.handler = link::cmdConnect_Click;
  form.cmdDisConnect.handler = link::cmdDisConnect_Click;
  Handle(form.CmdUpDow, link::CmdUpDow_Click);
  for (auto& button : form.CmdUpDow) button.point = link::CmdUpDow_Point;
  form.Frame11.point = link::Frame11_Point;
  form.MSComm1.handler = link::MSComm1_OnComm;
  form.General_timer.handler = link::General_timer_Timer;
  form.Time_handcheck.handler = link::Time_handcheck_Timer;
  form.Timer_Operating.handler = link::Timer_Operating_Timer;

  form.Timer.handler = link::Timer_Timer;
  form.CheckTD.handler = link::CheckTD_Click;
  form.ComboHR.handler = link::ComboHR_Click;
  form.ComboMin.handler = link::ComboMin_Click;
  form.ComboSec.handler = link::ComboSec_Click;
  form.ComboMonth.handler = link::ComboMonth_Click;
  form.ComboYear.handler = link::ComboYear_Click;
  Handle(form.ComboDay, link::ComboDay_Click);
}

void WirePanels(controls::MainForm& form) {
  Handle(form.ComboCOMM, panels::ComboCOMM_Click);
  Handle(form.ComboDIP, panels::ComboDIP_Click);
  Handle(form.ComboTD, panels::ComboTD_Click);
  form.ComboLang.handler = panels::ComboLang_Click;
  Handle(form.ComboExcepRe, panels::ComboExcepRe_Click);
  Handle(form.ComboExcp, panels::ComboExcp_Click);
  form.TextException.handler = panels::TextException_Change;
  form.cmdSetExcpstr.handler = panels::cmdSetExcpstr_Click;
  form.cmdSetRange.handler = panels::cmdSetRange_Click;
  Handle(form.ComboScroll, panels::ComboScroll_Click);
  Handle(form.ComboALM, panels::ComboALM_Click);
  Handle(form.ComboTrigger, panels::ComboTrigger_Click);
  form.TextTrigger.handler = panels::TextTrigger_Change;
  form.cmdSetTrigger.handler = panels::cmdSetTrigger_Click;
  form.Title_Text.handler = panels::Title_Text_Change;
  form.cmdTitle.handler = panels::cmdTitle_Click;
  form.DemoMode.handler = panels::DemoMode_Click;
  form.CharacterList.handler = panels::CharacterList_Click;
  form.DemoType.handler = panels::DemoType_Click;
  form.DemoSpeed.handler = panels::DemoSpeed_Click;
  form.OpDVR.handler = panels::OpDVR_Click;
  Handle(form.ComboKLM4011, panels::ComboKLM4011_Click);
}

void WireAbout(controls::AboutForm& about) {
  about.form.load = frmAbout_Load;
  about.Command1.handler = AboutOk_Click;
}

void WireTextForms(core::Application& app) {
  auto& text = app.frmSetEXCPSTR;
  text.form.load = panels::frmSetEXCPSTR_Load;
  text.form.unload = panels::frmSetEXCPSTR_Unload;
  text.form.enter = panels::TextEntrySet_Click;
  text.form.escape = panels::TextEntry_Escape;
  text.cmdSET.handler = panels::TextEntrySet_Click;
  text.cmdClr.handler = panels::TextEntryClear_Click;

  auto& range = app.frmSetRange;
  range.form.load = panels::frmSetRange_Load;
  range.form.unload = panels::frmSetRange_Unload;
  int field = 0;
  for (auto* box : {&range.Range_Hi, &range.SubRange_Hi, &range.Range_Low, &range.SubRange_Low}) {
    box->index = field++;
    box->leave = panels::RangeField_Leave;
  }
  range.ComboDec.handler = panels::ComboDec_Click;
  range.cmdSetRange.handler = panels::RangeSet_Click;
  range.cmdClr.handler = panels::RangeClear_Click;
}

void WireRegisterForms(core::Application& app) {
  registers::WireRegisterOptions(app.frmMain);
  registers::WireSubMenu(app.FrmSubMenu);
  auto& micros = app.frmMicros;
  micros.cmdSetMicros.handler = registers::cmdSetMicros_Click;
  micros.cmdISNset.handler = registers::cmdISNset_Click;
  micros.CMD3700Set.handler = registers::CMD3700Set_Click;
  micros.ECRNumber.leave = registers::ECRNumber_Leave;
  micros.form.unload = registers::frmMicros_Unload;
}

void WireLinkForms(core::Application& app) {
  auto& port = app.frmSettSR;
  port.form.load = link::frmSettSR_Load;
  port.form.unload = link::frmSettSR_Unload;
  port.Comport_Select.handler = link::Comport_Select_Click;
  port.OpBaud.handler = link::OpBaud_Click;
  port.OpDataBits.handler = link::OpDataBits_Click;
  port.OpParity.handler = link::OpParity_Click;
  port.cmdSET.handler = link::cmdSET_Click;
  port.BaudrateCMD.handler = link::BaudrateCMD_Click;
  port.BaudRateScan.handler = link::BaudRateScan_Timer;

  auto& scan = app.frmScanBProgress;
  scan.form.load = link::frmScanBProgress_Load;
  scan.form.unload = link::frmScanBProgress_Unload;
  scan.Command1.handler = link::ScanCancel_Click;

  auto& end = app.frmOK_buttom;
  end.form.load = link::frmOK_buttom_Load;
  end.form.shown = link::frmOK_buttom_Shown;
  end.form.unload = link::frmOK_buttom_Unload;
  end.form.window_close = link::TransferEnd_Click;
  end.Command1.handler = link::TransferEnd_Click;
}

// In the order in which a load refreshes the panels.
void OrderApplyRoutines(core::Application& app) {
  app.Setting_Code = {
      {registers::ApplyRegisterSelection, true},
      {panels::ApplyCommunication, true},
      {panels::ApplyDemo, true},
      {panels::ApplyDisplay, false},
      {panels::ApplyTimeDate, false},
      {panels::ApplyExceptionPanel, false},
      {panels::ApplyDvr, false},
      {panels::ApplyAlarmGlobals, false},
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
  if (form.ComboExcp[0].position >= 0) panels::LoadExceptionSlot(app, form.ComboExcp[0].position + 1);
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
  WireMain(app.frmMain);
  WirePanels(app.frmMain);
  WireRegisterForms(app);
  WireTextForms(app);
  WireAbout(app.frmAbout);
  WireLinkForms(app);
  OrderApplyRoutines(app);
}

core::Outcome StartProgram(core::Application& app) {
  WireProgram(app);
  return DispatchStart(app, Start);
}

}  // namespace ovl::start
