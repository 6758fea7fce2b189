#include "support/state_table.h"

#include <optional>

namespace ovl::testing {
namespace {

constexpr int kAnyMode = -1;

// `actions` are the five buttons that need remote mode. `connect` is empty if the state does not decide it.
struct StateRow {
  const char *name, *timers;
  int link_mode;
  bool open, held, actions, remote, access;
  std::optional<bool> connect;
};

const StateRow& RowOf(State state) {
  static const StateRow rows[] = {
      {"Closed", "", kAnyMode, false, false, false, true, false, true},
      {"Open", "", kAnyMode, true, false, false, true, false, {}},
      {"Held", "Time_handcheck", 0, true, true, true, true, true, {}},
      {"Uploading", "Timer_Operating", 1, true, true, false, false, true, false},
      {"DownloadCommand", "Timer_Operating", 2, true, true, false, false, true, false},
      {"DownloadStream", "", 2, true, true, false, false, true, false},
      {"TransferDone", "", kAnyMode, true, false, false, false, false, false},
      {"Scanning", "BaudRateScan", kAnyMode, true, false, false, true, false, {}},
  };
  return rows[static_cast<std::size_t>(state)];
}

}  // namespace

const char* NameOf(State state) {
  return RowOf(state).name;
}

std::string RunningTimers(const core::Application& app) {
  std::string names;
  for (const auto& control : app.registry.All()) {
    const auto* timer = std::get_if<controls::Timer*>(&control.control);
    if (timer == nullptr || !(*timer)->enabled || *timer == &app.frmMain.Timer) continue;
    names.append(names.empty() ? "" : " ").append(control.name);
  }
  return names;
}

std::string DifferenceFrom(State state, const core::Application& app) {
  const auto& row = RowOf(state);
  const auto& main = app.frmMain;
  std::string found;
  const auto expect = [&](bool met, const char* what) {
    if (!met) found.append(found.empty() ? "" : ", ").append(what);
  };
  expect(main.MSComm1.PortOpen == row.open, "PortOpen");
  expect(row.link_mode == kAnyMode || row.link_mode == app.LinkMode, "LinkMode");
  expect(app.RemoteHeld == row.held, "RemoteHeld");
  expect(app.ScanActive == (state == State::kScanning), "ScanActive");
  expect(RunningTimers(app) == row.timers, "timers");
  expect(main.Timer.enabled, "Timer");
  for (const auto at : {0U, 1U, 2U, 3U, 5U}) expect(main.CmdUpDow[at].enabled == row.actions, "CmdUpDow");
  expect(main.CmdUpDow[4].enabled == row.remote, "CmdUpDow(4)");
  expect(main.cmdConnect.visible != row.open && main.cmdDisConnect.visible == row.open, "cmdConnect visible");
  expect(main.cmdConnect.enabled == row.connect.value_or(main.cmdConnect.enabled), "cmdConnect enabled");
  expect(main.cmdConnect.caption == (row.open ? "Disconnect" : "Set Comport"), "cmdConnect caption");
  expect(main.lbConnectting.caption.substr(0, 13) == (row.open ? "Connected at " : "Not Connected"),
         "lbConnectting");
  expect(main.lbRemoteAccess.caption == (row.access ? "ACCESS" : "No Access"), "lbRemoteAccess");
  expect(main.Picture1[0].visible != row.access && main.Picture1[3].visible == row.access, "Picture1");
  return found;
}

}  // namespace ovl::testing
