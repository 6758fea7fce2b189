// The first byte chooses a firmware. Each further byte is a received character or another event, for the
// program and for the reference model.
#include <deque>
#include <tuple>
#include <utility>

#include "bytes.h"
#include "search/fault_sweep/long_run.h"
#include "search/reference_model/comparison.h"

namespace {

using namespace ovl::testing;
using ovl::fuzz::Bytes;
using ovl::fuzz::Require;

// Everything that an event can change. Each run starts from this state, because a new program takes a hundred
// times as long. Controls hold addresses of each other, so a state fits only the application that it comes
// from.
auto EventState(ovl::core::Application& app) {
  return std::tie(
      app.frmMain, app.frmSettSR, app.frmScanBProgress, app.frmOK_buttom, app.frmMicros, app.FrmSubMenu,
      app.frmView, app.frmSetEXCPSTR, app.frmSetRange, app.firmware, app.capabilities, app.FirmwareMark,
      app.RegisterIndex, app.image, app.known_image, app.sent_image, app.SYSCFG, app.SYSFIXED, app.SYSSTR,
      app.LinkMode, app.RemoteHeld, app.ScanActive, app.ScanIndex, app.PendingOutput, app.LastSent,
      app.LastReceived, app.StreamBuffer, app.StreamScratch, app.FrameState, app.ProgressChars,
      app.ProgressValue, app.DownloadRequested, app.DownloadActive, app.FinalAckExpected, app.SetTimePending,
      app.HistoryPending, app.MasterResetPending, app.HistoryText, app.HandcheckCount, app.OperatingCount,
      app.ClockTickCount, app.PortNumber, app.PortBaud, app.PortParity, app.PortDataBits, app.TextEntryMode,
      app.ClockHour, app.ClockMinute, app.ClockSecond, app.ClockDay, app.ClockMonth, app.ClockYear,
      app.ImageTouched, app.PanelsReady, app.UploadApplying, app.picks_under_way, app.ComboTouched,
      app.SavedIndexes, app.CurrentFilePath, app.StreamText, app.DiagnosticText, app.handling, app.ended,
      app.StatusNote);
}

template <class... Member>
std::tuple<Member...> ValuesOf(const std::tuple<Member&...>& members) {
  return members;
}

// A whole stream takes a hundred times as long as other events, so only one of 32 inputs may receive one and
// send one. A longer output than any command is a stream.
constexpr unsigned kRarely = 32;
constexpr std::size_t kLongestCommand = 100;

// The highest bytes are the events of the model.
constexpr std::size_t kFirstEvent = 0x100 - std::size(kLinkEvents);
constexpr LinkEvent kAnyCharacter = *std::ranges::find(kLinkEvents, kCharacter, &LinkEvent::kind);

class Fuzzed : Comparison {
 public:
  explicit Fuzzed(const ovl::firmware::FirmwareId& firmware) : Comparison(firmware) {
    start_ = ValuesOf(EventState(program_.app));
    start_of_model_ = link_;
  }

  void Run(Bytes input) {
    Reset();
    const bool no_stream = !ovl::fuzz::OneIn(kRarely, input.Rest());
    bool received = no_stream, sent = no_stream;
    while (!input.Empty() && !Ended()) {
      const auto byte = input.Next();
      const auto& event = byte < kFirstEvent ? kAnyCharacter : kLinkEvents[byte - kFirstEvent];
      if (event.kind == kWholeStream && std::exchange(received, true)) continue;
      const bool sends_stream = event.kind == kDrainAll && link_.out.size() > kLongestCommand;
      if (sends_stream && std::exchange(sent, true)) continue;
      const char character = static_cast<char>(byte);
      const auto found = byte < kFirstEvent ? Step(event, {&character, 1}) : Step(event);
      Require(found.empty(), found.c_str());
    }
    Require(KeptImage(), "only an upload changes the image");
  }

 private:
  void Reset() {
    program_.app.platform.serial.close();
    EventState(program_.app) = start_;
    link_ = start_of_model_;
    uploaded_ = false;
    program_.dialogs.clear();
    program_.file_answers.clear();
    program_.opened.clear();
    program_.open_error.reset();
    program_.line_error.reset();
  }

  decltype(ValuesOf(EventState(std::declval<ovl::core::Application&>()))) start_;
  LinkModel start_of_model_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static std::deque<Fuzzed> pairs(kStreamForms.begin(), kStreamForms.end());
  Bytes input(data, size);
  pairs[input.Next() % pairs.size()].Run(input);
  return 0;
}
