#include "link/port.h"

#include "core/actions.h"
#include "core/failure.h"
#include "link/link_state.h"
#include "phrases/phrases.h"

namespace ovl::link {
namespace {

constexpr int kFirstBaud = 3;  // "9600"
constexpr int kFirstDataBits = 1;
constexpr int kFirstParity = 0;

std::string SettingsText(const core::Application& app) {
  return app.PortBaud + "," + app.PortParity + "," + app.PortDataBits + ",1";
}

void SetUpComm(core::Application& app) {
  auto& comm = app.frmMain.MSComm1;
  comm.CommPort = app.PortNumber;
  comm.Settings = SettingsText(app);
  comm.SThreshold = 1;
  comm.RThreshold = 1;
  comm.InputLen = 1;
  OpenCommPort(app);
}

void MoveFocusToSet(core::Application& app) {
  core::SetFocus(app.frmSettSR.form, app.frmSettSR.cmdSET);
}

}  // namespace

void OpenPort(core::Application& app) {
  try {
    SetUpComm(app);
  } catch (const core::Failure& failure) {
    NoteFailure(app, failure);
    MsgBox(app, core::Box::kPortFailed, failure.what());
    return;
  }
  auto& form = app.frmMain;
  // What is said about a file stays.
  if (app.noted_failure && app.noted_failure->Subject() == core::PortName(app)) {
    app.StatusNote.clear();
    app.noted_failure.reset();
  }
  form.CmdUpDow[controls::kRemote].enabled = true;
  form.lbConnectting.caption = phrases::Sentence(phrases::Pattern("Form", "Connected at COM %1 %2"),
                                                 {std::to_string(app.PortNumber) + ":", SettingsText(app)});
  form.cmdConnect.caption = "Disconnect";
  form.cmdConnect.visible = false;
  form.cmdDisConnect.visible = true;
}

void Disconnect(core::Application& app) {
  auto& form = app.frmMain;
  form.cmdDisConnect.visible = false;
  form.cmdConnect.visible = true;
  form.cmdConnect.enabled = true;
  SendWhole(app, kCan);
  core::EnableTimer(form.General_timer, false);
  StopHandcheck(app);
  StopOperating(app);
  CloseCommPort(app);
  ShowPortClosed(app);
  ShowNoAccess(app);
  form.CmdUpDow[controls::kRemote].enabled = true;
  app.RemoteHeld = false;

  if (app.LinkMode == core::kLinkUpload) HideTransfer(app, form.Label64[1]);
  if (app.LinkMode == core::kLinkDownload) HideTransfer(app, form.Label64[0]);
  app.DownloadRequested = false;
  app.DownloadActive = false;
  app.SetTimePending = false;
  app.HistoryPending = false;
  app.MasterResetPending = false;
  app.FinalAckExpected = false;
  app.sent_image.reset();
  app.ComboTouched = false;
  app.PendingOutput.clear();
  app.LastReceived.clear();
}

void cmdConnect_Click(core::Application& app, int) {
  if (!app.frmMain.MSComm1.PortOpen) {
    ShowForm(app, app.frmSettSR.form);
    MoveFocusToSet(app);
    return;
  }
  SendWhole(app, kCan);
  StopHandcheck(app);
  CloseCommPort(app);
  ShowPortClosed(app);
  ShowNoAccess(app);
}

void cmdDisConnect_Click(core::Application& app, int) {
  Disconnect(app);
}

void frmSettSR_Load(core::Application& app, int) {
  auto& dialog = app.frmSettSR;
  app.frmMain.form.enabled = false;
  AssignPosition(app, dialog.Comport_Select, app.PortNumber == 0 ? 0 : app.PortNumber - 1,
                 core::Raise::kAlways);
  ChooseElement(app, dialog.OpBaud, kFirstBaud, core::Raise::kAlways);
  ChooseElement(app, dialog.OpDataBits, kFirstDataBits, core::Raise::kAlways);
  ChooseElement(app, dialog.OpParity, kFirstParity, core::Raise::kAlways);
}

void frmSettSR_Unload(core::Application& app, int) {
  ReleaseMain(app);
}

void Comport_Select_Click(core::Application& app, int) {
  app.PortNumber = static_cast<std::uint8_t>(app.frmSettSR.Comport_Select.position + 1);
  MoveFocusToSet(app);
}

void OpBaud_Click(core::Application& app, int element) {
  app.PortBaud = app.frmSettSR.OpBaud.elements.at(static_cast<std::size_t>(element)).caption;
  MoveFocusToSet(app);
}

void OpDataBits_Click(core::Application& app, int element) {
  app.PortDataBits = element == 0 ? "7" : "8";
  MoveFocusToSet(app);
}

void OpParity_Click(core::Application& app, int element) {
  constexpr std::string_view kLetters = "NOE";
  app.PortParity = kLetters.substr(static_cast<std::size_t>(element), 1);
  MoveFocusToSet(app);
}

void cmdSET_Click(core::Application& app, int) {
  OpenPort(app);
  UnloadForm(app, app.frmSettSR.form);
}

}  // namespace ovl::link
