// A second, simple model of the link: plain variables and the actions that change them. It shares nothing
// with the program except the names of what a user sees. The table of events says when an action happens.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "search/fault_sweep/expectation.h"
#include "support/harness.h"

namespace ovl::testing {

struct LinkModel {
  // what the program holds
  int mode = 255, held = 0, open = 0, frame = 0, chars = 0, steps = 0;
  int requested = 0, active = 0, final_ack = 0, time = 0, history = 0, reset = 0;
  int keep_alive_count = 0, silence_count = 0, scanning = 0, scan_place = 0;
  int general = 0, keep_alive = 0, watchdog = 0, scan = 0;  // timers
  // what the program shows
  int actions = 0, remote = 1, connect = 1, connect_shown = 1, disconnect_shown = 0, access = 0;
  int bar_shown = 0, bar = 0, uploading = 0, downloading = 0, scan_bar = 0;
  int dialog = 0, dialog_shown = 0, scan_window = 0, end_window = 0, main_enabled = 1;
  int ended = 0;
  std::string out, last, text, bar_text, history_text;
  std::string connection = "Not Connected", button = "Set Comport", end_text, baud;

  // what was sent and shown since the last comparison
  std::string sent, boxes;

  // the state of the line, and the stream of a download
  enum class Line { kWell, kLost, kRefused } line = Line::kWell;
  std::function<std::string()> stream;
  firmware::FirmwareId firmware;

  // Parts of several actions.
  void ShowBox(std::string_view box, std::string_view title = "") {
    boxes.append(title).append("|").append(box).append("\n");
  }
  bool Write(std::string_view characters) {
    if (open != 0 && line != Line::kLost) sent += characters;
    return open == 0 || line != Line::kLost;
  }
  void SendWhole(const char* characters) {
    out = characters;
    Write(out);
  }
  bool SendOne() {
    const auto character = out.substr(0, 1);
    out.erase(0, 1);
    return Write(character);
  }
  void Forget() { requested = active = 0; }
  void KeepAliveOff() { keep_alive = keep_alive_count = 0; }
  void WatchdogOff() { watchdog = silence_count = 0; }
  void NoAccess() { actions = access = held = 0; }
  void EndOneShot() {
    NoAccess();
    WatchdogOff();
  }
  void NotConnected() {
    button = "Set Comport";
    connection = "Not Connected";
    connect_shown = remote = 1;
    open = disconnect_shown = 0;
    NoAccess();
  }
  void ClosePort() {
    NotConnected();
    connect = 1;
    general = 0;
    KeepAliveOff();
    out.clear();
    last.clear();
  }
  void Fail(std::string_view box, std::string_view title = "") {
    ClosePort();
    mode = 255;
    Forget();
    ShowBox(box, title);
  }
  void FailRemote() { Fail(kFailBox, "- Connection Fail -"); }
  void FailToSend() {
    Forget();
    ShowBox(kSendBox);
  }
  void ResetBar() {
    chars = steps = bar = bar_shown = 0;
    bar_text.clear();
  }
  void Count() {
    if (++chars <= 50) return;
    chars = 0;
    bar = std::min(++steps, 100);
    bar_text = std::to_string(bar) + "%";
  }
  void EnableMainIfAlone() { main_enabled = dialog == 0 && end_window == 0 ? 1 : 0; }
  void ShowEnd(const char* message) {
    end_window = 1;
    end_text = message;
    main_enabled = 0;
    ResetBar();
  }
  void Command(const char* characters) {
    final_ack = silence_count = keep_alive = 0;
    out = characters;
    SendOne();
  }
  void BeginTransfer(int transfer, const char* characters) {
    keep_alive_count = actions = remote = connect = 0;
    watchdog = bar_shown = 1;
    mode = transfer;
    Command(characters);
  }

  // Actions of a click.
  void EnterOrLeaveRemoteMode() {
    final_ack = 0;
    if (open == 0) return ShowBox("        Please Select Comport.");
    mode = held != 0 ? 255 : 0;
    SendWhole(held != 0 ? kCan : kRemoteRequest);
    if (held != 0) {
      KeepAliveOff();
      EndOneShot();
    } else {
      last.clear();
      general = 1;
    }
  }
  void BeginUpload() {
    uploading = 1;
    BeginTransfer(1, "/LU\r");
  }
  void BeginDownload() {
    downloading = requested = 1;
    BeginTransfer(2, "/LD\r");
  }
  void BeginSetTime() {
    keep_alive_count = 0;
    watchdog = time = 1;
    Command("/TD03-05-26 14:07:09\r\n\r");
  }
  void BeginHistory() {
    history = 1;
    history_text.clear();
    Command("/LH\r\n\r");
  }
  void BeginReset() {
    reset = 1;
    Command("/MR\r\n\r");
  }
  void ShowDialog() {
    dialog = dialog_shown = 1;
    main_enabled = 0;
    baud = "9600";
  }
  void CloseDialog() {
    dialog = dialog_shown = 0;
    EnableMainIfAlone();
  }
  void Open() {
    if (line == Line::kRefused) return ShowBox("           No such device");
    open = remote = disconnect_shown = 1;
    connect_shown = 0;
    button = "Disconnect";
    connection = "Connected at COM 1: " + baud + ",N,8,1";
  }
  void Set() {
    Open();
    CloseDialog();
  }
  void BeginScan() {
    Open();
    if (line == Line::kRefused) return;
    held = scan_place = scan_bar = dialog_shown = 0;
    scanning = scan = scan_window = 1;
    SendWhole(kRemoteRequest);
  }
  void CloseScanWindow() {
    scan_window = scanning = scan = scan_place = 0;
    CloseDialog();
  }
  void Disconnect() {
    SendWhole(kCan);
    ClosePort();
    WatchdogOff();
    if (mode == 1) uploading = 0;
    if (mode == 2) downloading = 0;
    if (mode == 1 || mode == 2) ResetBar();
    Forget();
    time = history = reset = final_ack = 0;
  }
  void CancelScan() {
    Disconnect();
    CloseScanWindow();
  }
  void CloseEndWindow() {
    mode = 255;
    connect = remote = 1;
    end_window = 0;
    EnableMainIfAlone();
  }

  // Actions of a timer.
  void CheckGrant() {
    if (last != kAck) {
      SendWhole(kCan);
      FailRemote();
    }
    last.clear();
    general = 0;
  }
  void KeepAlive() {
    ++keep_alive_count;
    if (keep_alive_count == 5) {
      out = kEnq;
      if (!Write(out)) ShowBox(kNoDevice);
    } else if (keep_alive_count == 30) {
      NotConnected();
      connect = 1;
      KeepAliveOff();
      Forget();
      ShowBox("!!! Remote Connection Time out. !!!", "- Connection Time Out -");
    } else if (keep_alive_count > 5 && last == kFormFeed) {
      last.clear();
      keep_alive_count = 0;
    }
  }
  void CountSilence() {
    if (++silence_count <= 5) return;
    WatchdogOff();
    FailRemote();
  }
  void ContinueScan() {
    constexpr std::array kRates = {"9600",  "1200",  "2400",  "4800",  "14400",
                                   "19200", "28800", "38400", "57600", "115200"};
    if (held != 0 && scan_place < 10) return CloseScanWindow();
    scan_bar = scan_place;
    if (scan_bar == 10) {
      CancelScan();
      return ShowBox(kScanBox);
    }
    open = 0;
    last.clear();
    baud = kRates.at(static_cast<std::size_t>(scan_place++));
    Open();
    SendWhole(kRemoteRequest);
  }

  // Action of the transmitter when it becomes empty.
  void Drained() {
    silence_count = 0;
    if (mode == 0 && time + history + reset == 0) return;
    if (!out.empty()) {
      if (!SendOne()) return FailToSend();
      if (active != 0) Count();
      return;
    }
    if (requested != 0) mode = 2;
    requested = 0;
    if (active == 0) return;
    ShowEnd("Download Completed.");
    final_ack = 1;
    downloading = active = 0;
    NoAccess();
  }

  // Actions of a received character.
  void HistoryStep() {
    WatchdogOff();
    held = 0;
    if (last != kAck) {
      history_text += last;
      return;
    }
    history = 0;
    remote = 1;
    NoAccess();
  }
  void EndReset() {
    reset = 0;
    remote = 1;
    EndOneShot();
    ShowBox(last == kAck ? "       Master Reset Done." : "Cannot Master Reset to Device.");
  }
  void ClockStep() {
    const bool set = last == kAck;
    if (!set && last != kNak) return;
    time = 0;
    if (set) remote = 1;
    EndOneShot();
    ShowBox(set ? "SET TIME DATE FINISHED." : "Please Send Time Date agian.");
  }
  void Grant() {
    actions = access = held = keep_alive = 1;
    keep_alive_count = 0;
    if (scanning != 0) CloseScanWindow();
  }
  void EndUpload() {
    const auto ending = EndingOfLoad(firmware, text);
    frame = 0;
    text.clear();
    if (ending == Ending::kForeign) ShowBox(kForeignBox);
    ended = ending == Ending::kBrokenFile ? 1 : 0;
    if (ended != 0) return ShowBox(kBrokenBox);
    ShowEnd(ending == Ending::kDone ? "Upload Completed." : "Upload Incompleted.");
    uploading = 0;
    EndOneShot();
  }
  void Collect() {
    if (held == 0) return;
    if (frame == 1) {
      text += last;
      return last == "#" ? EndUpload() : Count();
    }
    if (last != "$") return;
    text = "$";
    frame = 1;
    chars = steps = 0;
  }
  void Acknowledged() {
    const bool due = final_ack == 0 && held != 0 && active == 0;
    final_ack = 0;
    if (!due) return;
    text = out = stream();
    if (!SendOne()) return FailToSend();
    chars = steps = 0;
    active = 1;
    WatchdogOff();
    text.clear();
  }
  // During a scan only the mode counts.
  void Receive(char character) {
    silence_count = 0;
    last = character;
    if (scanning == 0) {
      const bool parity = last == "?";
      if (parity || (last == kNak && mode == 0)) {
        SendWhole(kCan);
        WatchdogOff();
        return parity ? Fail(kParityBox) : FailRemote();
      }
      if (history != 0) return HistoryStep();
      if (reset != 0) return EndReset();
      if (time != 0) return ClockStep();
    }
    if (mode == 0 && last == kAck) Grant();
    if (mode == 1) Collect();
    if (mode == 2 && last == kAck) Acknowledged();
  }

  void LineLost() { line = Line::kLost; }
  void LineRefused() { line = Line::kRefused; }
  void LineWell() { line = Line::kWell; }
};

}  // namespace ovl::testing
