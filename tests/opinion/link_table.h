// The link once more, as a table of rules over plain variables: what each event does, where. It shares
// nothing with the program but the names of what a person sees.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::testing {

enum class LinkEvent {
  kRemote,
  kUpload,
  kDownload,
  kSetTime,
  kLoadHistory,
  kMasterReset,
  kSetComport,
  kSet,
  kBaudrateScan,
  kCloseDialog,
  kCancelScan,
  kCloseScan,
  kDisconnect,
  kOk,
  kCloseOk,
  kAck,
  kNak,
  kBad,  // "?"
  kFormFeed,
  kStart,  // "$"
  kEnd,    // "#"
  kOther,
  kGeneralTick,
  kKeepAliveTick,
  kWatchdogTick,
  kScanTick,
  kDrained,
  kLineLost,
  kLineRefused,
  kLineWell,
};
inline constexpr int kLinkEvents = static_cast<int>(LinkEvent::kLineWell) + 1;

std::string_view NameOf(LinkEvent event);

struct Link {
  // what the program holds
  int mode = 255, held = 0, open = 0, frame = 0, chars = 0, steps = 0;
  int requested = 0, active = 0, final_ack = 0, time = 0, history = 0, reset = 0;
  int keep_alive_count = 0, silence_count = 0, scanning = 0, scan_place = 0;
  int general = 0, keep_alive = 0, watchdog = 0, scan = 0;  // timers
  // what it shows
  int actions = 0, remote = 1, connect = 1, connect_shown = 1, disconnect_shown = 0, access = 0;
  int bar_shown = 0, bar = 0, uploading = 0, downloading = 0, scan_bar = 0;
  int dialog = 0, dialog_shown = 0, scan_window = 0, end_window = 0, main_free = 1;
  int ended = 0;
  std::string out, last, text, bar_text, history_text;
  std::string connection = "Not Connected", button = "Set Comport", end_text, baud;

  // what it did since it was last asked
  std::string sent, boxes;

  // the line, and what a download sends
  int lost = 0, refused = 0;
  std::function<std::string()> stream;
  FirmwareId firmware;
};

// Whether what causes the event is there: a button that can be pressed, a timer that runs, an open port.
bool CanHappen(const Link& link, LinkEvent event);

// The event by the first rule that fits. False: it cannot happen there, and nothing does.
bool Apply(Link& link, LinkEvent event, char other = '0');

// What the program holds and shows otherwise than the table; empty if nothing.
std::string Difference(const Link& link, const Application& app);

}  // namespace ovl::testing
