#include <array>

#include "core/actions.h"
#include "link/link_state.h"
#include "link/port.h"

namespace ovl::link {
namespace {

constexpr std::array<const char*, 10> kScanOrder = {"9600",  "1200",  "2400",  "4800",  "14400",
                                                    "19200", "28800", "38400", "57600", "115200"};

}  // namespace

void BaudrateCMD_Click(core::Application& app, int) {
  if (app.frmMain.MSComm1.PortOpen) CloseCommPort(app);
  app.PortBaud = kScanOrder[0];
  OpenPort(app);
  if (!app.frmMain.MSComm1.PortOpen) return;
  app.RemoteHeld = false;
  app.ScanActive = true;
  SendWhole(app, app.RemoteRequestText);
  app.ScanIndex = 0;
  core::EnableTimer(app.frmSettSR.BaudRateScan, true);
  core::HideForm(app.frmSettSR.form);
  ShowForm(app, app.frmScanBProgress.form);
}

void BaudRateScan_Timer(core::Application& app, int) {
  app.frmScanBProgress.ScanProgressBar1.value = app.ScanIndex;
  if (app.ScanIndex >= kScanOrder.size()) {
    Disconnect(app);
    UnloadForm(app, app.frmScanBProgress.form);
    MsgBox(app, core::Box::kNoResponse);
    return;
  }
  if (app.RemoteHeld) {
    EndScan(app);
    return;
  }
  CloseCommPort(app);
  ClearCommBuffers(app);
  app.PendingOutput.clear();
  app.LastReceived.clear();
  app.PortBaud = kScanOrder[app.ScanIndex];
  OpenPort(app);
  ++app.ScanIndex;
  SendWhole(app, app.RemoteRequestText);
}

void EndScan(core::Application& app) {
  UnloadForm(app, app.frmScanBProgress.form);
}

void frmScanBProgress_Load(core::Application& app, int) {
  app.frmScanBProgress.ScanProgressBar1.value = 0;
  app.frmScanBProgress.form.top_most = true;
  app.platform.SetWindowPos(app.frmScanBProgress.form.name);
}

void frmScanBProgress_Unload(core::Application& app, int) {
  app.ScanActive = false;
  core::EnableTimer(app.frmSettSR.BaudRateScan, false);
  app.ScanIndex = 0;
  UnloadForm(app, app.frmSettSR.form);
}

void ScanCancel_Click(core::Application& app, int) {
  Disconnect(app);
  UnloadForm(app, app.frmScanBProgress.form);
}

}  // namespace ovl::link
