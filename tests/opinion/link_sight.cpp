#include "opinion/link_table.h"

namespace ovl::testing {
namespace {

using enum LinkEvent;

// What must hold for an event to happen at all, and its name.
struct Possible {
  LinkEvent event;
  std::string_view name;
  int Link::*one;
  int Link::*other;
};
constexpr Possible kPossible[] = {
    {kRemote, "Remote", &Link::main_free, &Link::remote},
    {kUpload, "Upload", &Link::main_free, &Link::actions},
    {kDownload, "Download", &Link::main_free, &Link::actions},
    {kSetTime, "SET TIME", &Link::main_free, &Link::actions},
    {kLoadHistory, "LOAD HISTORY", &Link::main_free, &Link::actions},
    {kMasterReset, "MASTER RESET", &Link::main_free, &Link::actions},
    {kSetComport, "Set Comport", &Link::main_free, &Link::connect},
    {kSet, "SET", &Link::dialog_shown, nullptr},
    {kBaudrateScan, "Baudrate Scan", &Link::dialog_shown, nullptr},
    {kCloseDialog, "close the dialog", &Link::dialog_shown, nullptr},
    {kCancelScan, "Cancel", &Link::scan_window, nullptr},
    {kCloseScan, "close the scan", &Link::scan_window, nullptr},
    {kDisconnect, "Disconnect", &Link::main_free, &Link::disconnect_shown},
    {kOk, "OK", &Link::end_window, nullptr},
    {kCloseOk, "close the end", &Link::end_window, nullptr},
    {kAck, "ACK", &Link::open, nullptr},
    {kNak, "NAK", &Link::open, nullptr},
    {kBad, "?", &Link::open, nullptr},
    {kFormFeed, "FF", &Link::open, nullptr},
    {kStart, "$", &Link::open, nullptr},
    {kEnd, "#", &Link::open, nullptr},
    {kOther, "0", &Link::open, nullptr},
    {kGeneralTick, "General_timer", &Link::general, nullptr},
    {kKeepAliveTick, "Time_handcheck", &Link::keep_alive, nullptr},
    {kWatchdogTick, "Timer_Operating", &Link::watchdog, nullptr},
    {kScanTick, "BaudRateScan", &Link::scan, nullptr},
    {kDrained, "drained", &Link::open, nullptr},
    {kLineLost, "line lost", nullptr, nullptr},
    {kLineRefused, "line refused", nullptr, nullptr},
    {kLineWell, "line well", nullptr, nullptr},
};
static_assert(std::size(kPossible) == kLinkEvents);

}  // namespace

std::string_view NameOf(LinkEvent event) {
  return kPossible[static_cast<std::size_t>(event)].name;
}

bool CanHappen(const Link& link, LinkEvent event) {
  const auto holds = [&](int Link::*variable) { return variable == nullptr || link.*variable != 0; };
  const auto& possible = kPossible[static_cast<std::size_t>(event)];
  if (event == kSetComport && link.connect_shown == 0) return false;
  return holds(possible.one) && holds(possible.other);
}

std::string Difference(const Link& link, const Application& app) {
  std::string found;
  const auto text = [&](const char* name, const std::string& theirs, const std::string& ours) {
    if (theirs == ours) return;
    found.append(name).append(" is ").append(theirs).append(", by the table ").append(ours).append("\n");
  };
  const auto same = [&](const char* name, int theirs, int ours) {
    if (theirs != ours) text(name, std::to_string(theirs), std::to_string(ours));
  };
  const auto& main = app.frmMain;
  same("ended", app.ended, link.ended);
  if (app.ended) return found;
  same("LinkMode", app.LinkMode, link.mode);
  same("RemoteHeld", app.RemoteHeld, link.held);
  same("PortOpen", main.MSComm1.PortOpen, link.open);
  same("FrameState", app.FrameState, link.frame);
  same("ProgressChars", app.ProgressChars, link.chars);
  same("ProgressValue", app.ProgressValue, link.steps);
  same("DownloadRequested", app.DownloadRequested, link.requested);
  same("DownloadActive", app.DownloadActive, link.active);
  same("FinalAckExpected", app.FinalAckExpected, link.final_ack);
  same("SetTimePending", app.SetTimePending, link.time);
  same("HistoryPending", app.HistoryPending, link.history);
  same("MasterResetPending", app.MasterResetPending, link.reset);
  same("HandcheckCount", app.HandcheckCount, link.keep_alive_count);
  same("OperatingCount", app.OperatingCount, link.silence_count);
  same("ScanActive", app.ScanActive, link.scanning);
  same("ScanIndex", app.ScanIndex, link.scan_place);
  same("General_timer", main.General_timer.enabled, link.general);
  same("Time_handcheck", main.Time_handcheck.enabled, link.keep_alive);
  same("Timer_Operating", main.Timer_Operating.enabled, link.watchdog);
  same("BaudRateScan", app.frmSettSR.BaudRateScan.enabled, link.scan);
  for (const auto action : {0U, 1U, 2U, 3U, 5U})
    same("CmdUpDow", main.CmdUpDow[action].enabled, link.actions);
  same("CmdUpDow(4)", main.CmdUpDow[4].enabled, link.remote);
  same("cmdConnect", main.cmdConnect.enabled, link.connect);
  same("cmdConnect shown", main.cmdConnect.visible, link.connect_shown);
  same("cmdDisConnect shown", main.cmdDisConnect.visible, link.disconnect_shown);
  same("lbRemoteAccess", main.lbRemoteAccess.caption == "ACCESS", link.access);
  same("Picture1(3)", main.Picture1[3].visible, link.access);
  same("Picture1(0)", !main.Picture1[0].visible, link.access);
  same("bar shown", main.vbalProgressBar1.visible, link.bar_shown);
  same("bar", main.vbalProgressBar1.value, link.bar);
  same("Label64(0)", main.Label64[0].visible, link.downloading);
  same("Label64(1)", main.Label64[1].visible, link.uploading);
  same("ScanProgressBar1", app.frmScanBProgress.ScanProgressBar1.value, link.scan_bar);
  same("frmSettSR", app.frmSettSR.form.loaded, link.dialog);
  same("frmSettSR shown", app.frmSettSR.form.visible, link.dialog_shown);
  same("frmScanBProgress", app.frmScanBProgress.form.visible, link.scan_window);
  same("frmOK_buttom", app.frmOK_buttom.form.visible, link.end_window);
  same("frmMain", main.form.enabled, link.main_free);
  text("PendingOutput", app.PendingOutput, link.out);
  text("LastReceived", app.LastReceived, link.last);
  text("StreamBuffer", app.StreamBuffer, link.text);
  text("HistoryText", app.HistoryText, link.history_text);
  text("bar text", main.vbalProgressBar1.text, link.bar_text);
  text("lbConnectting", main.lbConnectting.caption, link.connection);
  text("cmdConnect's caption", main.cmdConnect.caption, link.button);
  if (link.end_window != 0) text("frmOK_buttom's text", app.frmOK_buttom.Label1.caption, link.end_text);
  return found;
}

}  // namespace ovl::testing
