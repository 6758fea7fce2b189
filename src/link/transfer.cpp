#include "link/transfer.h"

#include <utility>

#include "core/actions.h"
#include "core/configuration.h"
#include "core/failure.h"
#include "files/files.h"
#include "image/record_stream.h"
#include "link/link_state.h"
#include "phrases/phrases.h"

namespace ovl::link {
namespace {

// The position of the register list after an upload that could not be read.
constexpr int kRegisterAfterFailure = 1;

void BeginTransfer(core::Application& app, std::int16_t mode, const std::string& command,
                   controls::Label& label) {
  auto& form = app.frmMain;
  StopHandcheck(app);
  StartOperating(app);
  app.LinkMode = mode;
  app.PendingOutput = command;
  form.EnableActions(false);
  form.CmdUpDow[controls::kRemote].enabled = false;
  form.cmdConnect.enabled = false;
  form.vbalProgressBar1.visible = true;
  label.visible = true;
}

// The unit leaves remote mode by itself at the end of a transfer.
void EndRemoteMode(core::Application& app) {
  ShowNoAccess(app);
  app.RemoteHeld = false;
}

// Nothing of the upload reaches the image. Panels and register list get a defined state.
void AbandonUpload(core::Application& app, const core::Failure& failure) {
  NoteFailure(app, failure);
  app.UploadApplying = true;
  AssignPosition(app, app.frmMain.ComboReg, kRegisterAfterFailure);
  app.UploadApplying = false;
  app.PanelsReady = true;
}

// False if the stream does not fit the running firmware.
bool TakeUpload(core::Application& app) {
  app.ImageTouched = true;
  app.UploadApplying = true;
  app.PanelsReady = false;
  app.StreamText.clear();
  if (!firmware::IsKnownFamily(app.firmware.version)) {
    PrepareCapabilities(app);
    return true;
  }
  app.StreamText = files::ReadJoined(app.platform.files, app.CurrentFilePath);
  PrepareCapabilities(app);
  return LoadStream(app, app.StreamText);
}

void StoreUpload(core::Application& app) {
  if (!firmware::IsKnownFamily(app.firmware.version)) return;
  const auto& version = app.firmware.version;
  app.CurrentFilePath = files::PathBelow(app.platform.program_folder, "\\" + version + "\\upload.bin");
  app.platform.files.replace(app.CurrentFilePath, app.StreamBuffer + "\r\n");
}

void FinishStream(core::Application& app) {
  app.FrameState = 0;
  try {
    StoreUpload(app);
  } catch (const core::Failure& failure) {
    app.StreamBuffer.clear();
    AbandonUpload(app, failure);
    return;
  }
  app.StreamBuffer.clear();
  ShowBarFull(app);
  FinishUpload(app);
}

}  // namespace

void BeginUpload(core::Application& app) {
  BeginTransfer(app, core::kLinkUpload, app.UploadCommandText, app.frmMain.Label64[1]);
}

void BeginDownload(core::Application& app) {
  app.DownloadRequested = true;
  BeginTransfer(app, core::kLinkDownload, app.DownloadCommandText, app.frmMain.Label64[0]);
}

void CollectUploadChar(core::Application& app) {
  if (!app.RemoteHeld) return;
  if (app.FrameState == 0) {
    if (app.LastReceived != "$") return;
    app.StreamBuffer = app.LastReceived;
    app.FrameState = 1;
    app.ProgressChars = 0;
    app.ProgressValue = 0;
    return;
  }
  app.StreamBuffer += app.LastReceived;
  if (app.LastReceived == "#") {
    FinishStream(app);
  } else {
    CountProgress(app);
  }
}

void FinishUpload(core::Application& app) {
  bool taken = false;
  try {
    taken = TakeUpload(app);
    if (taken) {
      for (const auto& routine : app.Setting_Code) routine.run(app);
      AssignPosition(app, app.frmMain.ComboExcp[controls::Excp::kNumber], 0, core::Raise::kAlways);
    }
    if (taken) ++app.uploads_taken;
  } catch (const core::Failure& failure) {
    AbandonUpload(app, failure);
    return;
  }
  app.PanelsReady = true;
  ShowBarFull(app);
  LoadForm(app, app.frmOK_buttom.form);
  app.frmOK_buttom.Label1.caption =
      taken ? phrases::Marked("Form", "Upload Completed.") : phrases::Marked("Form", "Upload Incompleted.");
  ShowForm(app, app.frmOK_buttom.form);
  HideTransfer(app, app.frmMain.Label64[1]);
  EndRemoteMode(app);
  StopOperating(app);
  app.UploadApplying = false;
}

void ConfirmDownload(core::Application& app) {
  if (!app.sent_image || !app.PendingOutput.empty()) return;
  app.known_image = *std::exchange(app.sent_image, std::nullopt);
  ++app.downloads_confirmed;
}

void DownloadAcknowledged(core::Application& app) {
  if (app.on_download_acknowledged != nullptr) app.on_download_acknowledged(app);
  if (app.FinalAckExpected) {
    app.FinalAckExpected = false;
    return;
  }
  if (!app.RemoteHeld || app.DownloadActive) return;
  try {
    StartDownload(app);
  } catch (const core::Failure& failure) {
    ReportSendFailure(app, failure);
  }
}

void StartDownload(core::Application& app) {
  app.SYSCFG.clear();
  app.SYSFIXED.clear();
  app.SYSSTR.clear();
  if (firmware::IsKnownFamily(app.firmware.version)) app.StreamBuffer = SectionsToStream(app);
  app.PendingOutput = app.StreamBuffer;
  if (app.PendingOutput.empty()) return;  // nothing is sent, so the watchdog reports the failure
  app.sent_image = app.image;
  app.LastSent = app.PendingOutput.substr(0, 1);
  app.PendingOutput.erase(0, app.LastSent.size());
  Output(app, app.LastSent);
  app.ProgressChars = 0;
  app.ProgressValue = 0;
  app.DownloadActive = true;
  StopOperating(app);
  app.StreamBuffer.clear();
}

void FinishDownload(core::Application& app) {
  ShowBarFull(app);
  ShowForm(app, app.frmOK_buttom.form);
  app.FinalAckExpected = true;
  HideTransfer(app, app.frmMain.Label64[0]);
  app.DownloadActive = false;
  EndRemoteMode(app);
}

void frmOK_buttom_Load(core::Application& app, int) {
  app.frmOK_buttom.Label1.caption = controls::TransferEndForm::kDesignText;
  app.frmOK_buttom.form.top_most = true;
  app.platform.SetWindowPos(app.frmOK_buttom.form.name);
}

void frmOK_buttom_Shown(core::Application& app, int) {
  app.frmMain.form.enabled = false;
}

void frmOK_buttom_Unload(core::Application& app, int) {
  ReleaseMain(app);
  app.frmMain.cmdConnect.enabled = true;
  app.frmMain.CmdUpDow[controls::kRemote].enabled = true;
}

void TransferEnd_Click(core::Application& app, int) {
  app.LinkMode = core::kLinkIdle;
  UnloadForm(app, app.frmOK_buttom.form);
}

}  // namespace ovl::link
