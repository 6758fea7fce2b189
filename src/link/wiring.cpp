#include "link/wiring.h"

#include "core/actions.h"
#include "link/clock.h"
#include "link/link_state.h"
#include "link/port.h"
#include "link/remote_mode.h"
#include "link/transfer.h"

namespace ovl::link {
namespace {

void WireMainForm(controls::MainForm& form) {
  form.cmdConnect.handler = cmdConnect_Click;
  form.cmdDisConnect.handler = cmdDisConnect_Click;
  core::HandleAll(form.CmdUpDow, CmdUpDow_Click);
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
  core::HandleAll(form.ComboDay, ComboDay_Click);
}

void WireLinkForms(core::Application& app) {
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
  scan.form.escape = ScanCancel_Click;
  scan.Command1.handler = ScanCancel_Click;

  auto& end = app.frmOK_buttom;
  end.form.load = frmOK_buttom_Load;
  end.form.shown = frmOK_buttom_Shown;
  end.form.unload = frmOK_buttom_Unload;
  end.form.window_close = TransferEnd_Click;
  end.Command1.handler = TransferEnd_Click;
}

}  // namespace

void WireLink(core::Application& app) {
  WireMainForm(app.frmMain);
  WireLinkForms(app);
  // No further answer of the unit is expected then, so silence is no failure.
  app.on_foreign_stream = StopOperating;
}

}  // namespace ovl::link
