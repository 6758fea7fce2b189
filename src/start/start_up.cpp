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

namespace ovl {
namespace {

void menuExit_Click(Application& app, int) {
  EndProgram(app);
}

void menuAbout_Click(Application& app, int) {
  ShowForm(app, app.frmAbout.form);
}

// As the tabs name the firmware: as the settings store has it.
void frmAbout_Load(Application& app, int) {
  app.frmAbout.lbFirmware.caption = "Firmware " + app.frmMain.lbVersionID[0].caption;
}

void AboutOk_Click(Application& app, int) {
  UnloadForm(app, app.frmAbout.form);
}

void frmMain_Close(Application& app, int) {
  UnloadForm(app, app.frmMicros.form);
  UnloadForm(app, app.FrmSubMenu.form);
  EndProgram(app);
}

template <class Controls>
void Handle(Controls& controls, Handler handler) {
  for (auto& control : controls) control.handler = handler;
}

void WireMain(MainForm& form) {
  form.form.window_close = frmMain_Close;
  form.OpenMenu.handler = OpenMenu_Click;
  form.menuSave.handler = menuSave_Click;
  form.OpenHistory_menu.handler = OpenHistory_menu_Click;
  form.menuExit.handler = menuExit_Click;
  form.menuAbout.handler = menuAbout_Click;
  form.ComboReg.handler = RegisterSelected;
  form.cmdConnect.handler = cmdConnect_Click;
  form.cmdDisConnect.handler = cmdDisConnect_Click;
  Handle(form.CmdUpDow, CmdUpDow_Click);
  for (auto& button : form.CmdUpDow) button.point = CmdUpDow_Point;
  form.Frame11.point = Frame11_Point;
  form.MSComm1.handler = MSComm1_OnComm;
  form.General_timer.handler = General_timer_Timer;
  form.Time_handcheck.handler = Time_handcheck_Timer;
  form.Timer_Operating.handler = Timer_Operating_Timer;

  form.Timer.handler = Timer_Timer;
  form.CheckTD.handler = CheckTD_Click;
  form.ComboHR.handler = ComboHR_Click;
  form.ComboMin.handler = ComboMin_Click;
  form.ComboSec.handler = ComboSec_Click;
  form.ComboMonth.handler = ComboMonth_Click;
  form.ComboYear.handler = ComboYear_Click;
  Handle(form.ComboDay, ComboDay_Click);
}

void WirePanels(MainForm& form) {
  Handle(form.ComboCOMM, ComboCOMM_Click);
  Handle(form.ComboDIP, ComboDIP_Click);
  Handle(form.ComboTD, ComboTD_Click);
  form.ComboLang.handler = ComboLang_Click;
  Handle(form.ComboExcepRe, ComboExcepRe_Click);
  Handle(form.ComboExcp, ComboExcp_Click);
  form.TextException.handler = TextException_Change;
  form.cmdSetExcpstr.handler = cmdSetExcpstr_Click;
  form.cmdSetRange.handler = cmdSetRange_Click;
  Handle(form.ComboScroll, ComboScroll_Click);
  Handle(form.ComboALM, ComboALM_Click);
  Handle(form.ComboTrigger, ComboTrigger_Click);
  form.TextTrigger.handler = TextTrigger_Change;
  form.cmdSetTrigger.handler = cmdSetTrigger_Click;
  form.Title_Text.handler = Title_Text_Change;
  form.cmdTitle.handler = cmdTitle_Click;
  form.DemoMode.handler = DemoMode_Click;
  form.CharacterList.handler = CharacterList_Click;
  form.DemoType.handler = DemoType_Click;
  form.DemoSpeed.handler = DemoSpeed_Click;
  form.OpDVR.handler = OpDVR_Click;
  Handle(form.ComboKLM4011, ComboKLM4011_Click);
}

void WireAbout(AboutForm& about) {
  about.form.load = frmAbout_Load;
  about.Command1.handler = AboutOk_Click;
}

void WireTextForms(Application& app) {
  auto& text = app.frmSetEXCPSTR;
  text.form.load = frmSetEXCPSTR_Load;
  text.form.unload = frmSetEXCPSTR_Unload;
  text.form.enter = TextEntrySet_Click;
  text.form.escape = TextEntry_Escape;
  text.cmdSET.handler = TextEntrySet_Click;
  text.cmdClr.handler = TextEntryClear_Click;

  auto& range = app.frmSetRange;
  range.form.load = frmSetRange_Load;
  range.form.unload = frmSetRange_Unload;
  int field = 0;
  for (auto* box : {&range.Range_Hi, &range.SubRange_Hi, &range.Range_Low, &range.SubRange_Low}) {
    box->index = field++;
    box->leave = RangeField_Leave;
  }
  range.ComboDec.handler = ComboDec_Click;
  range.cmdSetRange.handler = RangeSet_Click;
  range.cmdClr.handler = RangeClear_Click;
}

void WireRegisterForms(Application& app) {
  WireRegisterOptions(app.frmMain);
  WireSubMenu(app.FrmSubMenu);
  auto& micros = app.frmMicros;
  micros.cmdSetMicros.handler = cmdSetMicros_Click;
  micros.cmdISNset.handler = cmdISNset_Click;
  micros.CMD3700Set.handler = CMD3700Set_Click;
  micros.ECRNumber.leave = ECRNumber_Leave;
  micros.form.unload = frmMicros_Unload;
}

void WireLinkForms(Application& app) {
  auto& port = app.frmSettSR;
  port.form.load = frmSettSR_Load;
  port.form.unload = frmSettSR_Unload;
  port.Comport_Select.handler = Comport_Select_Click;
  port.OpBaud.handler = OpBaud_Click;
  port.OpDataBits.handler = OpDataBits_Click;
  port.OpParity.handler = OpParity_Click;
  port.cmdSET.handler = cmdSET_Click;
  port.BaudrateCMD.handler = BaudrateCMD_Click;
  port.BaudRateScan.handler = BaudRateScan_Timer;

  auto& scan = app.frmScanBProgress;
  scan.form.load = frmScanBProgress_Load;
  scan.form.unload = frmScanBProgress_Unload;
  scan.Command1.handler = ScanCancel_Click;

  auto& end = app.frmOK_buttom;
  end.form.load = frmOK_buttom_Load;
  end.form.shown = frmOK_buttom_Shown;
  end.form.unload = frmOK_buttom_Unload;
  end.form.window_close = TransferEnd_Click;
  end.Command1.handler = TransferEnd_Click;
}

// In the order in which a load refreshes the panels.
void OrderApplyRoutines(Application& app) {
  app.Setting_Code = {
      {ApplyRegisterSelection, true},
      {ApplyCommunication, true},
      {ApplyDemo, true},
      {ApplyDisplay, false},
      {ApplyTimeDate, false},
      {ApplyExceptionPanel, false},
      {ApplyDvr, false},
      {ApplyAlarmGlobals, false},
  };
}

void ReadFirmware(Application& app) {
  app.firmware.version = ReadSetting(app, SettingRoot::kLocalMachine, kSettingsKey, kVersionValue);
  if (!app.firmware.version.empty()) {
    app.firmware.release = ReadSetting(app, SettingRoot::kLocalMachine, kSettingsKey, kReleaseValue);
  }
  if (!app.firmware.version.empty() && !app.firmware.release.empty()) return;
  MsgBox(app, Box::kRegistryError);
  EndProgram(app);
}

void BuildForFirmware(Application& app) {
  MarkFirmwareMenu(app, true);
  for (auto& label : app.frmMain.lbVersionID) label.caption = app.firmware.Joined();
  ApplyCompactFirmware(app);
  ResetRegisterIndexes(app);
  BuildRegisterList(app);
  ApplyFirmwareVariants(app.frmMain, app.firmware);
}

void SelectFirstRegister(Application& app) {
  app.ImageTouched = false;
  AssignPosition(app, app.frmMain.ComboReg, 0);
  app.PanelsReady = true;
}

void ResetLink(Application& app) {
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
  app.LinkMode = kLinkIdle;
}

void frmMain_Load(Application& app) {
  auto& form = app.frmMain;
  ReadFirmware(app);
  BuildForFirmware(app);
  EnableTimer(form.Timer, true);
  form.SSTab1.current = 0;
  SelectFirstRegister(app);
  ResetLink(app);
  form.EnableActions(false);
  for (auto& list : form.ComboDay) list.visible = false;
  form.ComboDay[0].visible = true;
  if (form.ComboExcp[0].position >= 0) LoadExceptionSlot(app, form.ComboExcp[0].position + 1);
  ShowForm(app, form.form);
}

void RefuseStart(Application& app, const std::string& reason) {
  app.StatusNote = reason;
  MsgBox(app, Box::kStartFailed);
  EndProgram(app);
}

void Start(Application& app) {
  try {
    frmMain_Load(app);
  } catch (const Failure& failure) {
    RefuseStart(app, failure.Subject() + ": " + failure.what());
  } catch (const std::exception& error) {
    RefuseStart(app, error.what());
  }
}

}  // namespace

void WireProgram(Application& app) {
  BuildVersionMenu(app);
  WireMain(app.frmMain);
  WirePanels(app.frmMain);
  WireRegisterForms(app);
  WireTextForms(app);
  WireAbout(app.frmAbout);
  WireLinkForms(app);
  OrderApplyRoutines(app);
}

Outcome StartProgram(Application& app) {
  WireProgram(app);
  return DispatchStart(app, Start);
}

}  // namespace ovl
