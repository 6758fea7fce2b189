#include "link/link_state.h"

#include <algorithm>

#include "core/actions.h"
#include "phrases/phrases.h"

namespace ovl::link {
namespace {

constexpr std::int16_t kCharsBeforeStep = 50;

}  // namespace

void ShowNoAccess(core::Application& app) {
  auto& form = app.frmMain;
  form.EnableActions(false);
  form.lbRemoteAccess.caption = "No Access";
  form.Picture1[3].visible = false;
  form.Picture1[0].visible = true;
}

void ShowAccess(core::Application& app) {
  auto& form = app.frmMain;
  form.EnableActions(true);
  form.lbRemoteAccess.caption = phrases::Marked("Form", "ACCESS");
  form.Picture1[0].visible = false;
  form.Picture1[3].visible = true;
}

void ShowPortClosed(core::Application& app) {
  app.frmMain.cmdConnect.caption = "Set Comport";
  app.frmMain.lbConnectting.caption = "Not Connected";
}

void StopHandcheck(core::Application& app) {
  core::EnableTimer(app.frmMain.Time_handcheck, false);
  app.HandcheckCount = 0;
}

void StopOperating(core::Application& app) {
  core::EnableTimer(app.frmMain.Timer_Operating, false);
  app.OperatingCount = 0;
}

void StartOperating(core::Application& app) {
  core::EnableTimer(app.frmMain.Timer_Operating, true);
  app.OperatingCount = 0;
}

void ShowBarFull(core::Application& app) {
  auto& bar = app.frmMain.vbalProgressBar1;
  bar.value = bar.maximum;
  bar.text = "100%";
}

void ResetProgress(core::Application& app) {
  auto& bar = app.frmMain.vbalProgressBar1;
  bar.value = 0;
  bar.text.clear();
  app.ProgressChars = 0;
  app.ProgressValue = 0;
}

void HideTransfer(core::Application& app, controls::Label& label) {
  app.frmMain.vbalProgressBar1.visible = false;
  label.visible = false;
  ResetProgress(app);
}

void CountProgress(core::Application& app) {
  if (app.ProgressChars != kCharsBeforeStep) {
    Increment(app.ProgressChars);
    return;
  }
  Increment(app.ProgressValue);
  app.ProgressChars = 0;
  auto& bar = app.frmMain.vbalProgressBar1;
  bar.value = std::min<int>(app.ProgressValue, bar.maximum);
  bar.text = std::to_string(bar.value) + "%";
}

void SendWhole(core::Application& app, const std::string& text) {
  app.PendingOutput = text;
  OutputOrSkip(app, text);
}

void ReportSendFailure(core::Application& app, const core::Failure& failure) {
  NoteFailure(app, failure);
  ClearDownload(app);
  MsgBox(app, core::Box::kSendFailed, failure.what());
}

void ClearDownload(core::Application& app) {
  app.DownloadRequested = false;
  app.DownloadActive = false;
}

}  // namespace ovl::link
