#include "opinion/link_table.h"

#include <algorithm>
#include <array>

#include "campaign/expectation.h"

namespace ovl::testing {
namespace {

using enum LinkEvent;

constexpr const char* kRequest = "~~~SOH_REQUEST_EOT~~~k";
constexpr const char* kCan = "\x18";
constexpr std::string_view kAckByte = "\x06", kNakByte = "\x15";
constexpr const char* kConnectionFail =
    "[- Connection Fail -|                            !!! Remote Connection Fail. !!!\n"
    "Cable Disconnected Or Communication Setting Wrong ,Try Again]";
constexpr const char* kWrongParity = "[|Check Parity and Data Bit Setting that Same OVL ,Try again !!!]";
constexpr std::array kRates = {"9600",  "1200",  "2400",  "4800",  "14400",
                               "19200", "28800", "38400", "57600", "115200"};

bool Write(Link& link, std::string_view text) {
  if (link.open == 0) return true;
  if (link.lost != 0) return false;
  link.sent += text;
  return true;
}

void SendWhole(Link& link, const char* text) {
  link.out = text;
  Write(link, text);
}

bool SendOne(Link& link) {
  const auto character = link.out.substr(0, 1);
  link.out.erase(0, 1);
  return Write(link, character);
}

void NoAccess(Link& link) {
  link.actions = link.access = 0;
}

void WatchdogOff(Link& link) {
  link.watchdog = link.silence_count = 0;
}

void KeepAliveOff(Link& link) {
  link.keep_alive = link.keep_alive_count = 0;
}

void NotConnected(Link& link) {
  link.open = 0;
  link.button = "Set Comport";
  link.connection = "Not Connected";
  link.connect_shown = 1;
  link.disconnect_shown = 0;
  link.remote = 1;
  NoAccess(link);
  link.held = 0;
}

void Forget(Link& link) {
  link.requested = link.active = 0;
}

void CloseLink(Link& link) {
  NotConnected(link);
  link.connect = 1;
  link.general = 0;
  KeepAliveOff(link);
  link.mode = 255;
  link.out.clear();
  link.last.clear();
}

void Fail(Link& link, const char* box) {
  CloseLink(link);
  WatchdogOff(link);
  Forget(link);
  link.boxes += box;
}

void ResetBar(Link& link) {
  link.chars = link.steps = link.bar = link.bar_shown = 0;
  link.bar_text.clear();
}

void Count(Link& link) {
  if (++link.chars <= 50) return;
  link.chars = 0;
  ++link.steps;
  link.bar = std::min(link.steps, 100);
  link.bar_text = std::to_string(link.bar) + "%";
}

void FreeMain(Link& link) {
  link.main_free = link.dialog == 0 && link.end_window == 0 ? 1 : 0;
}

void DialogGone(Link& link) {
  link.dialog = link.dialog_shown = 0;
  FreeMain(link);
}

void ScanGone(Link& link) {
  link.scan_window = link.scanning = link.scan = link.scan_place = 0;
  DialogGone(link);
}

void ShowEnd(Link& link, const char* text) {
  link.end_window = 1;
  link.end_text = text;
  link.main_free = 0;
}

void Disconnect(Link& link) {
  SendWhole(link, kCan);
  NotConnected(link);
  link.connect = 1;
  link.general = 0;
  KeepAliveOff(link);
  WatchdogOff(link);
  if (link.mode == 1) link.uploading = 0;
  if (link.mode == 2) link.downloading = 0;
  if (link.mode == 1 || link.mode == 2) ResetBar(link);
  Forget(link);
  link.time = link.history = link.reset = link.final_ack = 0;
  link.out.clear();
  link.last.clear();
}

void Open(Link& link) {
  if (link.refused != 0) {
    link.boxes += "[|           refused]";
    return;
  }
  link.open = link.remote = link.disconnect_shown = 1;
  link.connect_shown = 0;
  link.button = "Disconnect";
  link.connection = "Connected at COM 1: " + link.baud + ",N,8,1";
}

void Ask(Link& link) {
  link.final_ack = 0;
  link.last.clear();
  link.general = 1;
  link.mode = 0;
  SendWhole(link, kRequest);
}

void Leave(Link& link) {
  link.final_ack = 0;
  link.held = 0;
  link.mode = 255;
  SendWhole(link, kCan);
  KeepAliveOff(link);
  WatchdogOff(link);
  NoAccess(link);
}

void Command(Link& link, const char* text) {
  link.final_ack = 0;
  link.silence_count = 0;
  link.keep_alive = 0;
  link.out = text;
  SendOne(link);
}

void BeginTransfer(Link& link, int mode, const char* text) {
  link.keep_alive_count = 0;
  link.watchdog = link.bar_shown = 1;
  link.mode = mode;
  link.actions = link.remote = link.connect = 0;
  Command(link, text);
}

void Grant(Link& link) {
  link.actions = link.access = link.held = link.keep_alive = 1;
  link.keep_alive_count = 0;
  if (link.scanning != 0) ScanGone(link);
}

void EndOneShot(Link& link) {
  NoAccess(link);
  WatchdogOff(link);
  link.held = 0;
}

void EndUpload(Link& link) {
  link.frame = 0;
  link.text += '#';
  const auto ending = Judge(link.firmware, link.text);
  link.text.clear();
  link.bar = 100;
  link.bar_text = "100%";
  if (ending == Ending::kForeign) {
    link.boxes += "[|The Ovalon Version is not compatible !!!\n       Try with the same version again.]";
  }
  if (ending == Ending::kBrokenFile) {
    link.boxes += "[|                System File Error. \nPlease ReInstall Ovalon PC Software !!]";
    link.ended = 1;
    return;
  }
  ShowEnd(link, ending == Ending::kDone ? "Upload Completed." : "Upload Incompleted.");
  link.uploading = 0;
  ResetBar(link);
  EndOneShot(link);
}

void Acknowledged(Link& link) {
  if (link.final_ack != 0 || link.held == 0 || link.active != 0) {
    link.final_ack = 0;
    return;
  }
  link.text = link.stream();
  link.out = link.text;
  if (!SendOne(link)) {
    Forget(link);
    link.boxes += "[|                       lost]";
    return;
  }
  link.chars = link.steps = 0;
  link.active = 1;
  WatchdogOff(link);
  link.text.clear();
}

void EndDownload(Link& link) {
  ShowEnd(link, "Download Completed.");
  link.final_ack = 1;
  link.downloading = link.active = 0;
  ResetBar(link);
  NoAccess(link);
  link.held = 0;
}

// What a rule does.
void SayNoPort(Link& at) {
  at.final_ack = 0;
  at.boxes += "[|        Please Select Comport.]";
}
void BeginUpload(Link& at) {
  at.uploading = 1;
  BeginTransfer(at, 1, "/LU\r");
}
void BeginDownload(Link& at) {
  at.downloading = at.requested = 1;
  BeginTransfer(at, 2, "/LD\r");
}
void BeginSetTime(Link& at) {
  at.keep_alive_count = 0;
  at.watchdog = at.time = 1;
  Command(at, "/TD03-05-26 14:07:09\r\n\r");
}
void BeginHistory(Link& at) {
  at.history = 1;
  at.history_text.clear();
  Command(at, "/LH\r\n\r");
}
void BeginReset(Link& at) {
  at.reset = 1;
  Command(at, "/MR\r\n\r");
}
void ShowDialog(Link& at) {
  at.dialog = at.dialog_shown = 1;
  at.main_free = 0;
  at.baud = "9600";
}
void Set(Link& at) {
  Open(at);
  DialogGone(at);
}
void BeginScan(Link& at) {
  Open(at);
  at.held = at.scan_place = at.scan_bar = at.dialog_shown = 0;
  at.scanning = at.scan = at.scan_window = 1;
  SendWhole(at, kRequest);
}
void CancelScan(Link& at) {
  Disconnect(at);
  ScanGone(at);
}
void GiveScanUp(Link& at) {
  at.scan_bar = 10;
  CancelScan(at);
  at.boxes += "[|No Response From The Device]";
}
void TryNextRate(Link& at) {
  at.scan_bar = at.scan_place;
  at.open = 0;
  at.last.clear();
  at.baud = kRates.at(static_cast<std::size_t>(at.scan_place++));
  Open(at);
  SendWhole(at, kRequest);
}
void EndWindowGone(Link& at) {
  at.mode = 255;
  at.connect = at.remote = 1;
  at.end_window = 0;
  FreeMain(at);
}
void GrantDue(Link& at) {
  if (at.last != kAckByte) {
    SendWhole(at, kCan);
    CloseLink(at);
    Forget(at);
    at.boxes += kConnectionFail;
  }
  at.last.clear();
  at.general = 0;
}
void AskWhetherThere(Link& at) {
  ++at.keep_alive_count;
  at.out = "\x05";
  if (!Write(at, at.out)) at.boxes += "[|lost]";
}
void TimeOut(Link& at) {
  NotConnected(at);
  KeepAliveOff(at);
  Forget(at);
  at.boxes += "[- Connection Time Out -|!!! Remote Connection Time out. !!!]";
}
void LookForAnswer(Link& at) {
  if (++at.keep_alive_count < 5 || at.last != "\x0C") return;
  at.last.clear();
  at.keep_alive_count = 0;
}
void GiveUp(Link& at) {
  Fail(at, kConnectionFail);
}
void CountSilence(Link& at) {
  ++at.silence_count;
}

void Drained(Link& at) {
  at.silence_count = 0;
  if (at.mode == 0 && at.time + at.history + at.reset == 0) return;
  if (at.out.empty()) {
    if (at.requested != 0) at.mode = 2;
    at.requested = 0;
    if (at.active != 0) EndDownload(at);
  } else if (!SendOne(at)) {
    Forget(at);
    at.boxes += "[|                       lost]";
  } else if (at.active != 0) {
    Count(at);
  }
}

// Clicks, ticks and the drained transmitter, by what a variable holds. The first row that fits is the one.
struct Rule {
  LinkEvent event;
  int Link::*variable;  // null: whatever holds
  int value;
  void (*then)(Link&);
};
constexpr Rule kRules[] = {
    {kRemote, &Link::open, 0, SayNoPort},
    {kRemote, &Link::held, 1, Leave},
    {kRemote, nullptr, 0, Ask},
    {kUpload, nullptr, 0, BeginUpload},
    {kDownload, nullptr, 0, BeginDownload},
    {kSetTime, nullptr, 0, BeginSetTime},
    {kLoadHistory, nullptr, 0, BeginHistory},
    {kMasterReset, nullptr, 0, BeginReset},
    {kSetComport, &Link::open, 0, ShowDialog},
    {kSet, nullptr, 0, Set},
    {kBaudrateScan, &Link::refused, 1, Open},
    {kBaudrateScan, nullptr, 0, BeginScan},
    {kCloseDialog, nullptr, 0, DialogGone},
    {kCancelScan, nullptr, 0, CancelScan},
    {kCloseScan, nullptr, 0, ScanGone},
    {kDisconnect, nullptr, 0, Disconnect},
    {kOk, nullptr, 0, EndWindowGone},
    {kCloseOk, nullptr, 0, EndWindowGone},
    {kGeneralTick, nullptr, 0, GrantDue},
    {kKeepAliveTick, &Link::keep_alive_count, 4, AskWhetherThere},
    {kKeepAliveTick, &Link::keep_alive_count, 29, TimeOut},
    {kKeepAliveTick, nullptr, 0, LookForAnswer},
    {kWatchdogTick, &Link::silence_count, 5, GiveUp},
    {kWatchdogTick, nullptr, 0, CountSilence},
    {kScanTick, &Link::scan_place, 10, GiveScanUp},
    {kScanTick, &Link::held, 1, ScanGone},
    {kScanTick, nullptr, 0, TryNextRate},
    {kDrained, nullptr, 0, Drained},
};

// What a received character does.
void FailParity(Link& at) {
  SendWhole(at, kCan);
  Fail(at, kWrongParity);
}
void FailRefused(Link& at) {
  SendWhole(at, kCan);
  Fail(at, kConnectionFail);
}
void EndReset(Link& at) {
  at.reset = 0;
  at.remote = 1;
  EndOneShot(at);
  at.boxes += at.last == kAckByte ? "[|       Master Reset Done.]" : "[|Cannot Master Reset to Device.]";
}

void HistoryStep(Link& at) {
  WatchdogOff(at);
  at.held = 0;
  if (at.last != kAckByte) {
    at.history_text += at.last;
    return;
  }
  at.history = 0;
  at.remote = 1;
  NoAccess(at);
}
void ClockStep(Link& at) {
  const bool set = at.last == kAckByte;
  if (!set && at.last != kNakByte) return;
  at.time = 0;
  if (set) at.remote = 1;
  EndOneShot(at);
  at.boxes += set ? "[|SET TIME DATE FINISHED.]" : "[|Please Send Time Date agian.]";
}
void Collect(Link& at) {
  if (at.held == 0) return;
  if (at.frame == 1) {
    at.text += at.last;
    return at.last == "#" ? EndUpload(at) : Count(at);
  }
  if (at.last != "$") return;
  at.text = "$";
  at.frame = 1;
  at.chars = at.steps = 0;
}

// By the character (empty: any) and what a variable holds. A scan looks at the mode alone.
struct Heard {
  std::string_view character;
  bool in_scan;
  int Link::*variable;
  int value;
  void (*then)(Link&);
};
constexpr Heard kHeard[] = {
    {"?", false, nullptr, 0, FailParity},        {kNakByte, false, &Link::mode, 0, FailRefused},
    {"", false, &Link::history, 1, HistoryStep}, {"", false, &Link::reset, 1, EndReset},
    {"", false, &Link::time, 1, ClockStep},      {kAckByte, true, &Link::mode, 0, Grant},
    {"", true, &Link::mode, 1, Collect},         {kAckByte, true, &Link::mode, 2, Acknowledged},
};

}  // namespace

bool Apply(Link& link, LinkEvent event, char other) {
  if (link.ended != 0 || !CanHappen(link, event)) return false;
  if (event >= kLineLost) {
    link.lost = event == kLineLost ? 1 : 0;
    link.refused = event == kLineRefused ? 1 : 0;
    return true;
  }
  if (event < kAck || event > kOther) {
    for (const auto& rule : kRules) {
      if (rule.event != event || (rule.variable != nullptr && link.*rule.variable != rule.value)) continue;
      rule.then(link);
      break;
    }
    return true;
  }
  constexpr std::string_view kCharacters = "\x06\x15?\x0C$#";
  link.silence_count = 0;
  link.last =
      event == kOther ? other : kCharacters[static_cast<std::size_t>(event) - static_cast<std::size_t>(kAck)];
  for (const auto& rule : kHeard) {
    if (!rule.character.empty() && rule.character != link.last) continue;
    if (!rule.in_scan && link.scanning != 0) continue;
    if (rule.variable != nullptr && link.*rule.variable != rule.value) continue;
    rule.then(link);
    break;
  }
  return true;
}

}  // namespace ovl::testing
