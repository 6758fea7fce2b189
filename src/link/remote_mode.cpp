#include "link/remote_mode.h"

#include "core/actions.h"
#include "core/failure.h"
#include "link/link_state.h"
#include "link/one_shot.h"
#include "link/port.h"
#include "link/transfer.h"

namespace ovl::link {
namespace {

// Ticks of the keep-alive. The program asks at the first one. The answer resets the count at a later tick, so
// it asks every kEnqAt + 1 ticks. Without an answer the connection ends at kHandcheckLimit.
constexpr std::int16_t kEnqAt = 5;
constexpr std::int16_t kHandcheckLimit = 30;
constexpr std::int16_t kSilenceLimit = 6;  // ticks of the watchdog

void ShowConnectionFailure(core::Application& app) {
  MsgBox(app, core::Box::kConnectionFail);
}

void FailWrongParity(core::Application& app) {
  app.LastReceived.clear();
  core::EnableTimer(app.frmMain.General_timer, false);
  SendWhole(app, kCan);
  CloseLink(app);
  StopOperating(app);
  ClearDownload(app);
  AssignPosition(app, app.frmMain.ComboReg, 0);
  MsgBox(app, core::Box::kWrongParity);
}

void FailRefused(core::Application& app) {
  SendWhole(app, kCan);
  CloseLink(app);
  ClearDownload(app);
  ShowConnectionFailure(app);
  StopOperating(app);
}

void FailKeepAlive(core::Application& app) {
  auto& form = app.frmMain;
  CloseCommPort(app);
  ShowNoAccess(app);
  ShowPortClosed(app);
  form.CmdUpDow[controls::kRemote].enabled = true;
  form.cmdDisConnect.visible = false;
  form.cmdConnect.visible = true;
  form.cmdConnect.enabled = true;
  ClearDownload(app);
  MsgBox(app, core::Box::kTimeOut);
  StopHandcheck(app);
  app.RemoteHeld = false;
}

void Grant(core::Application& app) {
  ShowAccess(app);
  core::EnableTimer(app.frmMain.Time_handcheck, true);
  app.HandcheckCount = 0;
  app.RemoteHeld = true;
  if (app.ScanActive) EndScan(app);
}

void LeaveRemoteMode(core::Application& app) {
  app.RemoteHeld = false;
  app.LinkMode = core::kLinkIdle;
  SendWhole(app, kCan);
  StopHandcheck(app);
  StopOperating(app);
  ShowNoAccess(app);
}

void Remote(core::Application& app) {
  if (!app.frmMain.MSComm1.PortOpen) {
    MsgBox(app, core::Box::kSelectComport);
    return;
  }
  if (app.RemoteHeld) {
    LeaveRemoteMode(app);
    return;
  }
  app.LastReceived.clear();
  core::EnableTimer(app.frmMain.General_timer, true);
  app.LinkMode = core::kLinkRemote;
  SendWhole(app, app.RemoteRequestText);
}

// Sends the first character. Each send event then sends the next one.
void SendFirstChar(core::Application& app) {
  app.LastSent = app.PendingOutput.substr(0, 1);
  app.PendingOutput.erase(0, app.LastSent.size());
  OutputOrSkip(app, app.LastSent);
}

void ShowHints(core::Application& app, bool upload, bool download) {
  app.frmMain.Picture1[1].visible = upload;
  app.frmMain.Picture1[2].visible = download;
}

void TickHandcheck(core::Application& app) {
  Increment(app.HandcheckCount);
  if (app.HandcheckCount == kEnqAt) {
    app.PendingOutput = kEnq;
    Output(app, app.PendingOutput);
    return;
  }
  if (app.HandcheckCount < kEnqAt) return;
  if (app.HandcheckCount >= kHandcheckLimit) {
    FailKeepAlive(app);
    return;
  }
  if (app.LastReceived == kFormFeed) {
    app.LastReceived.clear();
    app.HandcheckCount = 0;
  }
}

}  // namespace

void MSComm1_OnComm(core::Application& app, int) {
  const int event = app.frmMain.MSComm1.CommEvent;
  if (event != controls::kCommSend && event != controls::kCommReceive) return;
  app.OperatingCount = 0;
  if (event == controls::kCommSend) {
    OnSendDrained(app);
  } else {
    OnCharReceived(app);
  }
}

void OnSendDrained(core::Application& app) {
  const bool one_shot = app.SetTimePending || app.HistoryPending || app.MasterResetPending;
  if (!one_shot && app.LinkMode == core::kLinkRemote) return;
  try {
    if (!app.PendingOutput.empty()) {
      SendNextChar(app);
      return;
    }
    if (app.DownloadRequested) {
      app.LinkMode = core::kLinkDownload;
      app.DownloadRequested = false;
    }
    if (app.DownloadActive) FinishDownload(app);
  } catch (const core::Failure& failure) {
    ReportSendFailure(app, failure);
  }
}

void OnCharReceived(core::Application& app) {
  app.LastReceived = Input(app);
  if (!app.ScanActive) {
    if (app.LastReceived == kBadParity) return FailWrongParity(app);
    if (app.LastReceived == kNak && app.LinkMode == core::kLinkRemote) return FailRefused(app);
    if (app.HistoryPending) return HistoryStep(app);
    if (app.MasterResetPending) return MasterResetStep(app);
    if (app.SetTimePending) return SetTimeStep(app);
  }
  const bool acknowledged = app.LastReceived == kAck;
  if (acknowledged) ConfirmDownload(app);
  switch (app.LinkMode) {
    case core::kLinkRemote:
      if (acknowledged) Grant(app);
      break;
    case core::kLinkUpload:
      CollectUploadChar(app);
      break;
    case core::kLinkDownload:
      if (acknowledged) DownloadAcknowledged(app);
      break;
    default:
      break;
  }
}

void SendNextChar(core::Application& app) {
  app.LastSent = app.PendingOutput.substr(0, 1);
  app.PendingOutput.erase(0, app.LastSent.size());
  Output(app, app.LastSent);
  if (app.DownloadActive) CountProgress(app);
}

void CloseLink(core::Application& app) {
  auto& form = app.frmMain;
  if (form.MSComm1.PortOpen) CloseCommPort(app);
  ShowNoAccess(app);
  ShowPortClosed(app);
  form.cmdDisConnect.visible = false;
  form.cmdConnect.visible = true;
  form.cmdConnect.enabled = true;
  form.CmdUpDow[controls::kRemote].enabled = true;
  app.RemoteHeld = false;
  core::EnableTimer(form.General_timer, false);
  StopHandcheck(app);
  app.LinkMode = core::kLinkIdle;
  app.PendingOutput.clear();
  app.LastReceived.clear();
  app.sent_image.reset();
}

void CmdUpDow_Click(core::Application& app, int index) {
  app.FinalAckExpected = false;
  app.sent_image.reset();
  switch (index) {
    case controls::kUpload:
      BeginUpload(app);
      break;
    case controls::kDownload:
      BeginDownload(app);
      break;
    case controls::kSetTime:
      BeginSetTime(app);
      break;
    case controls::kLoadHistory:
      BeginLoadHistory(app);
      break;
    case controls::kMasterReset:
      BeginMasterReset(app);
      break;
    default:
      Remote(app);
      return;
  }
  SendFirstChar(app);
}

void CmdUpDow_Point(core::Application& app, int index) {
  ShowHints(app, index == controls::kUpload, index == controls::kDownload);
}

void Frame11_Point(core::Application& app, int) {
  ShowHints(app, false, false);
}

void General_timer_Timer(core::Application& app, int) {
  if (app.LastReceived != kAck) {
    SendWhole(app, kCan);
    CloseLink(app);
    ClearDownload(app);
    ShowConnectionFailure(app);
  }
  app.LastReceived.clear();
  core::EnableTimer(app.frmMain.General_timer, false);
}

void Time_handcheck_Timer(core::Application& app, int) {
  try {
    TickHandcheck(app);
  } catch (const core::Failure& failure) {
    NoteFailure(app, failure);
    MsgBox(app, core::Box::kKeepAliveFailed, failure.what());
  }
}

void Timer_Operating_Timer(core::Application& app, int) {
  Increment(app.OperatingCount);
  if (app.OperatingCount != kSilenceLimit) return;
  CloseLink(app);
  StopOperating(app);
  ClearDownload(app);
  ShowConnectionFailure(app);
}

}  // namespace ovl::link
