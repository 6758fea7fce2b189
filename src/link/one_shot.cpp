#include "link/one_shot.h"

#include "core/actions.h"
#include "files/history.h"
#include "link/link_state.h"

namespace ovl {
namespace {

constexpr const char* kCommandEnd = "\r\n\r";

void EndOneShot(Application& app) {
  ShowNoAccess(app);
  StopOperating(app);
  app.RemoteHeld = false;
}

}  // namespace

void BeginSetTime(Application& app) {
  StopHandcheck(app);
  StartOperating(app);
  app.SetTimePending = true;
  app.PendingOutput = "/TD" + app.ClockMonth + "-" + app.ClockDay + "-" + app.ClockYear + " " +
                      app.ClockHour + ":" + app.ClockMinute + ":" + app.ClockSecond + kCommandEnd;
}

void BeginLoadHistory(Application& app) {
  EnableTimer(app.frmMain.Time_handcheck, false);
  app.OperatingCount = 0;
  app.HistoryPending = true;
  app.HistoryText.clear();
  app.PendingOutput = std::string("/LH") + kCommandEnd;
}

void BeginMasterReset(Application& app) {
  EnableTimer(app.frmMain.Time_handcheck, false);
  app.OperatingCount = 0;
  app.MasterResetPending = true;
  app.PendingOutput = std::string("/MR") + kCommandEnd;
}

void SetTimeStep(Application& app) {
  const bool done = app.LastReceived == kAck;
  if (!done && app.LastReceived != kNak) return;
  app.SetTimePending = false;
  if (done) app.frmMain.CmdUpDow[kRemote].enabled = true;
  EndOneShot(app);
  MsgBox(app, done ? Box::kClockSet : Box::kClockRefused);
}

void HistoryStep(Application& app) {
  if (app.LastReceived == kAck) {
    SaveHistory(app);
    app.HistoryPending = false;
    app.frmMain.CmdUpDow[kRemote].enabled = true;
    ShowNoAccess(app);
  } else {
    app.HistoryText += app.LastReceived;
  }
  StopOperating(app);
  app.RemoteHeld = false;
}

void MasterResetStep(Application& app) {
  app.MasterResetPending = false;
  app.frmMain.CmdUpDow[kRemote].enabled = true;
  EndOneShot(app);
  MsgBox(app, app.LastReceived == kAck ? Box::kResetDone : Box::kResetRefused);
}

}  // namespace ovl
