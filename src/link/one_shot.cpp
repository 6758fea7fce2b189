#include "link/one_shot.h"

#include "core/actions.h"
#include "files/history.h"
#include "link/link_state.h"

namespace ovl::link {
namespace {

constexpr const char* kCommandEnd = "\r\n\r";

void EndOneShot(core::Application& app) {
  ShowNoAccess(app);
  StopOperating(app);
  app.RemoteHeld = false;
}

}  // namespace

void BeginSetTime(core::Application& app) {
  StopHandcheck(app);
  StartOperating(app);
  app.SetTimePending = true;
  app.PendingOutput = "/TD" + app.ClockMonth + "-" + app.ClockDay + "-" + app.ClockYear + " " +
                      app.ClockHour + ":" + app.ClockMinute + ":" + app.ClockSecond + kCommandEnd;
}

void BeginLoadHistory(core::Application& app) {
  core::EnableTimer(app.frmMain.Time_handcheck, false);
  app.OperatingCount = 0;
  app.HistoryPending = true;
  app.HistoryText.clear();
  app.PendingOutput = std::string("/LH") + kCommandEnd;
}

void BeginMasterReset(core::Application& app) {
  core::EnableTimer(app.frmMain.Time_handcheck, false);
  app.OperatingCount = 0;
  app.MasterResetPending = true;
  app.PendingOutput = std::string("/MR") + kCommandEnd;
}

void SetTimeStep(core::Application& app) {
  const bool done = app.LastReceived == kAck;
  if (!done && app.LastReceived != kNak) return;
  app.SetTimePending = false;
  if (done) app.frmMain.CmdUpDow[controls::kRemote].enabled = true;
  EndOneShot(app);
  MsgBox(app, done ? core::Box::kClockSet : core::Box::kClockRefused);
}

void HistoryStep(core::Application& app) {
  if (app.LastReceived == kAck) {
    files::SaveHistory(app);
    app.HistoryPending = false;
    app.frmMain.CmdUpDow[controls::kRemote].enabled = true;
    ShowNoAccess(app);
  } else {
    app.HistoryText += app.LastReceived;
  }
  StopOperating(app);
  app.RemoteHeld = false;
}

void MasterResetStep(core::Application& app) {
  app.MasterResetPending = false;
  app.frmMain.CmdUpDow[controls::kRemote].enabled = true;
  EndOneShot(app);
  MsgBox(app, app.LastReceived == kAck ? core::Box::kResetDone : core::Box::kResetRefused);
}

}  // namespace ovl::link
