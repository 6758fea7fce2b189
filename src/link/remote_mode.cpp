#include "link/remote_mode.h"

#include "core/actions.h"
#include "core/failure.h"
#include "link/link_state.h"
#include "link/one_shot.h"
#include "link/port.h"
#include "link/transfer.h"

namespace ovl {
namespace {

constexpr int kCommSend = 1;
constexpr int kCommReceive = 2;
constexpr std::int16_t kEnqAt = 5;  // ticks of the keep-alive
constexpr std::int16_t kHandcheckLimit = 30;
constexpr std::int16_t kSilenceLimit = 6;  // ticks of the watchdog

void ShowConnectionFailure(Application& app) {
  MsgBox(app, Box::kConnectionFail);
}

void FailWrongParity(Application& app) {
  app.LastReceived.clear();
  EnableTimer(app.frmMain.General_timer, false);
  SendWhole(app, kCan);
  CloseLink(app);
  StopOperating(app);
  ClearDownload(app);
  AssignPosition(app, app.frmMain.ComboReg, 0);
  MsgBox(app, Box::kWrongParity);
}

void FailRefused(Application& app) {
  SendWhole(app, kCan);
  CloseLink(app);
  ClearDownload(app);
  ShowConnectionFailure(app);
  StopOperating(app);
}

void FailKeepAlive(Application& app) {
  auto& form = app.frmMain;
  CloseCommPort(app);
  ShowNoAccess(app);
  ShowPortClosed(app);
  form.CmdUpDow[kRemote].enabled = true;
  form.cmdDisConnect.visible = false;
  form.cmdConnect.visible = true;
  ClearDownload(app);
  MsgBox(app, Box::kTimeOut);
  StopHandcheck(app);
  app.RemoteHeld = false;
}

void Grant(Application& app) {
  ShowAccess(app);
  EnableTimer(app.frmMain.Time_handcheck, true);
  app.HandcheckCount = 0;
  app.RemoteHeld = true;
  if (app.ScanActive) EndScan(app);
}

void LeaveRemoteMode(Application& app) {
  app.RemoteHeld = false;
  app.LinkMode = kLinkIdle;
  SendWhole(app, kCan);
  StopHandcheck(app);
  StopOperating(app);
  ShowNoAccess(app);
}

void Remote(Application& app) {
  if (!app.frmMain.MSComm1.PortOpen) {
    MsgBox(app, Box::kSelectComport);
    return;
  }
  if (app.RemoteHeld) {
    LeaveRemoteMode(app);
    return;
  }
  app.LastReceived.clear();
  EnableTimer(app.frmMain.General_timer, true);
  app.LinkMode = kLinkRemote;
  SendWhole(app, app.RemoteRequestText);
}

// Takes the first character off what is to be sent; the send event pulls out the rest.
void SendFirstChar(Application& app) {
  app.LastSent = app.PendingOutput.substr(0, 1);
  app.PendingOutput.erase(0, app.LastSent.size());
  OutputOrSkip(app, app.LastSent);
}

void ShowHints(Application& app, bool upload, bool download) {
  app.frmMain.Picture1[1].visible = upload;
  app.frmMain.Picture1[2].visible = download;
}

void TickHandcheck(Application& app) {
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

void MSComm1_OnComm(Application& app, int) {
  const int event = app.frmMain.MSComm1.CommEvent;
  if (event != kCommSend && event != kCommReceive) return;
  app.OperatingCount = 0;
  if (event == kCommSend) {
    OnSendDrained(app);
  } else {
    OnCharReceived(app);
  }
}

void OnSendDrained(Application& app) {
  const bool one_shot = app.SetTimePending || app.HistoryPending || app.MasterResetPending;
  if (!one_shot && app.LinkMode == kLinkRemote) return;
  try {
    if (!app.PendingOutput.empty()) {
      SendNextChar(app);
      return;
    }
    if (app.DownloadRequested) {
      app.LinkMode = kLinkDownload;
      app.DownloadRequested = false;
    }
    if (app.DownloadActive) FinishDownload(app);
  } catch (const Failure& failure) {
    TellSendFailure(app, failure);
  }
}

void OnCharReceived(Application& app) {
  app.LastReceived = Input(app);
  if (!app.ScanActive) {
    if (app.LastReceived == kBadParity) return FailWrongParity(app);
    if (app.LastReceived == kNak && app.LinkMode == kLinkRemote) return FailRefused(app);
    if (app.HistoryPending) return HistoryStep(app);
    if (app.MasterResetPending) return MasterResetStep(app);
    if (app.SetTimePending) return SetTimeStep(app);
  }
  const bool acknowledged = app.LastReceived == kAck;
  switch (app.LinkMode) {
    case kLinkRemote:
      if (acknowledged) Grant(app);
      break;
    case kLinkUpload:
      CollectUploadChar(app);
      break;
    case kLinkDownload:
      if (acknowledged) DownloadAcknowledged(app);
      break;
    default:
      break;
  }
}

void SendNextChar(Application& app) {
  app.LastSent = app.PendingOutput.substr(0, 1);
  app.PendingOutput.erase(0, app.LastSent.size());
  Output(app, app.LastSent);
  if (app.DownloadActive) CountProgress(app);
}

void CloseLink(Application& app) {
  auto& form = app.frmMain;
  if (form.MSComm1.PortOpen) CloseCommPort(app);
  ShowNoAccess(app);
  ShowPortClosed(app);
  form.cmdDisConnect.visible = false;
  form.cmdConnect.visible = true;
  form.cmdConnect.enabled = true;
  form.CmdUpDow[kRemote].enabled = true;
  app.RemoteHeld = false;
  EnableTimer(form.General_timer, false);
  StopHandcheck(app);
  app.LinkMode = kLinkIdle;
  app.PendingOutput.clear();
  app.LastReceived.clear();
}

void CmdUpDow_Click(Application& app, int index) {
  app.FinalAckExpected = false;
  switch (index) {
    case kUpload:
      BeginUpload(app);
      break;
    case kDownload:
      BeginDownload(app);
      break;
    case kSetTime:
      BeginSetTime(app);
      break;
    case kLoadHistory:
      BeginLoadHistory(app);
      break;
    case kMasterReset:
      BeginMasterReset(app);
      break;
    default:
      Remote(app);
      return;
  }
  SendFirstChar(app);
}

void CmdUpDow_Point(Application& app, int index) {
  ShowHints(app, index == kUpload, index == kDownload);
}

void Frame11_Point(Application& app, int) {
  ShowHints(app, false, false);
}

void General_timer_Timer(Application& app, int) {
  if (app.LastReceived != kAck) {
    SendWhole(app, kCan);
    CloseLink(app);
    ClearDownload(app);
    ShowConnectionFailure(app);
  }
  app.LastReceived.clear();
  EnableTimer(app.frmMain.General_timer, false);
}

void Time_handcheck_Timer(Application& app, int) {
  try {
    TickHandcheck(app);
  } catch (const Failure& failure) {
    app.StatusNote = failure.Subject() + ": " + failure.what();
    MsgBox(app, Box::kKeepAliveFailed, failure.what());
  }
}

void Timer_Operating_Timer(Application& app, int) {
  Increment(app.OperatingCount);
  if (app.OperatingCount != kSilenceLimit) return;
  CloseLink(app);
  StopOperating(app);
  ClearDownload(app);
  ShowConnectionFailure(app);
}

}  // namespace ovl
