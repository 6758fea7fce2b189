// The model's state as it was at one moment, to begin every run of a fuzzer from there: making a program anew
// takes a hundred times as long.
#pragma once

#include <tuple>
#include <type_traits>

#include "core/application.h"

namespace ovl::fuzz {

// All that an event can change. Controls refer to one another by address, so a state goes back only to the
// application that it was taken from.
inline auto StateOf(Application& app) {
  return std::tie(
      app.frmMain, app.frmSettSR, app.frmScanBProgress, app.frmOK_buttom, app.frmMicros, app.FrmSubMenu,
      app.frmView, app.frmSetEXCPSTR, app.frmSetRange, app.firmware, app.capabilities, app.FirmwareMark,
      app.RegisterIndex, app.image, app.SYSCFG, app.SYSFIXED, app.SYSSTR, app.LinkMode, app.RemoteHeld,
      app.ScanActive, app.ScanIndex, app.PendingOutput, app.LastSent, app.LastReceived, app.StreamBuffer,
      app.StreamScratch, app.FrameState, app.ProgressChars, app.ProgressValue, app.DownloadRequested,
      app.DownloadActive, app.FinalAckExpected, app.SetTimePending, app.HistoryPending,
      app.MasterResetPending, app.HistoryText, app.HandcheckCount, app.OperatingCount, app.ClockTickCount,
      app.PortNumber, app.PortBaud, app.PortParity, app.PortDataBits, app.TextEntryMode, app.ClockHour,
      app.ClockMinute, app.ClockSecond, app.ClockDay, app.ClockMonth, app.ClockYear, app.ImageTouched,
      app.PanelsReady, app.UploadApplying, app.picks_under_way, app.ComboTouched, app.SavedIndexes,
      app.CurrentFilePath, app.StreamText, app.DiagnosticText, app.handling, app.ended, app.StatusNote);
}

template <class References>
struct ValuesOf;
template <class... Member>
struct ValuesOf<std::tuple<Member...>> {
  using Type = std::tuple<std::remove_reference_t<Member>...>;
};

class SavedState {
 public:
  explicit SavedState(Application& app) : app_(app), values_(StateOf(app)) {}
  void PutBack() const { StateOf(app_) = values_; }

 private:
  Application& app_;
  ValuesOf<decltype(StateOf(std::declval<Application&>()))>::Type values_;
};

}  // namespace ovl::fuzz
