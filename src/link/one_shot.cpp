#include "link/one_shot.h"

#include "core/actions.h"
#include "core/failure.h"
#include "image/files.h"
#include "link/link_state.h"

namespace ovl {
namespace {

constexpr const char* kCommandEnd = "\r\n\r";

void EndOneShot(Application& app) {
  ShowNoAccess(app);
  StopOperating(app);
  app.RemoteHeld = false;
}

// On a cancel the file goes to the name that was offered.
void SaveHistory(Application& app) {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.file_name = PathBelow(app.platform.program_folder, "\\History.txt");
  dialog.filter = "Text Files(*.txt)|*.txt|All Files(*.*)|*.*";
  dialog.filter_index = 2;
  const auto answer = app.platform.ask_file(dialog);
  app.CurrentFilePath = answer ? answer->file_name : dialog.file_name;
  try {
    WriteWhole(app.CurrentFilePath, "OVLH\r\n" + app.HistoryText + "\r\n");
  } catch (const Failure& failure) {
    app.StatusNote = failure.Subject() + ": " + failure.what();
  }
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
  MsgBox(app, done ? "SET TIME DATE FINISHED." : "Please Send Time Date agian.");
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
  MsgBox(app, app.LastReceived == kAck ? "       Master Reset Done." : "Cannot Master Reset to Device.");
}

}  // namespace ovl
