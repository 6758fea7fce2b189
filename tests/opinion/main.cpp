// Random events for the link, by the program and by the table of rules, under each firmware in turn; the
// first difference is printed as the shortest sequence of events that shows it.
//   ovl-opinion [EVENTS [SEED]]
#include <iostream>
#include <random>
#include <span>
#include <sstream>
#include <utility>

#include "campaign/long_run.h"
#include "core/codecs.h"
#include "image/record_stream.h"
#include "opinion/link.h"

namespace ovl::testing {
namespace {

enum class Kind { kClick, kClose, kTick, kCharacter, kDrained, kLine, kDrainAll, kWholeStream };
using enum Kind;
using L = Link;

struct LinkEvent {
  std::string_view name;  // of the control; the character
  Kind kind;
  std::array<int Link::*, 3> needs = {};  // what must hold for it to happen at all
  void (Link::*then)() = nullptr;
  bool way_in = false;  // it leads somewhere rather than out
};

// The three of the line stand ahead of the two long ones, which are many in a row, at the end.
constexpr LinkEvent kLinkEvents[] = {
    {"CmdUpDow(4)", kClick, {&L::main_free, &L::remote}, &L::AskOrLeave, true},
    {"CmdUpDow(0)", kClick, {&L::main_free, &L::actions}, &L::BeginUpload, true},
    {"CmdUpDow(1)", kClick, {&L::main_free, &L::actions}, &L::BeginDownload, true},
    {"CmdUpDow(2)", kClick, {&L::main_free, &L::actions}, &L::BeginSetTime},
    {"CmdUpDow(3)", kClick, {&L::main_free, &L::actions}, &L::BeginHistory},
    {"CmdUpDow(5)", kClick, {&L::main_free, &L::actions}, &L::BeginReset},
    {"cmdConnect", kClick, {&L::main_free, &L::connect, &L::connect_shown}, &L::ShowDialog, true},
    {"cmdDisConnect", kClick, {&L::main_free, &L::disconnect_shown}, &L::Disconnect},
    {"frmSettSR.cmdSET", kClick, {&L::dialog_shown}, &L::Set, true},
    {"BaudrateCMD", kClick, {&L::dialog_shown}, &L::BeginScan},
    {"frmSettSR", kClose, {&L::dialog_shown}, &L::DialogGone},
    {"frmScanBProgress.Command1", kClick, {&L::scan_window}, &L::CancelScan},
    {"frmScanBProgress", kClose, {&L::scan_window}, &L::ScanGone},
    {"frmOK_buttom.Command1", kClick, {&L::end_window}, &L::EndWindowGone},
    {"frmOK_buttom", kClose, {&L::end_window}, &L::EndWindowGone},
    {"General_timer", kTick, {&L::general}, &L::GrantDue, true},
    {"Time_handcheck", kTick, {&L::keep_alive}, &L::KeepAlive, true},
    {"Timer_Operating", kTick, {&L::watchdog}, &L::CountSilence, true},
    {"BaudRateScan", kTick, {&L::scan}, &L::GoOnScanning},
    {"\x06", kCharacter, {&L::open}, nullptr, true},
    {"\x15", kCharacter, {&L::open}},
    {"?", kCharacter, {&L::open}},
    {"\x0C", kCharacter, {&L::open}, nullptr, true},
    {"$", kCharacter, {&L::open}},
    {"#", kCharacter, {&L::open}},
    {"0", kCharacter, {&L::open}},
    {"drained", kDrained, {&L::open}, &L::Drained},
    {"line lost", kLine, {}, &L::LineLost},
    {"line refused", kLine, {}, &L::LineRefused},
    {"line well", kLine, {}, &L::LineWell, true},
    {"drain all", kDrainAll, {&L::open}, &L::Drained},
    {"whole stream", kWholeStream, {&L::open}},
};

using Steps = std::vector<const LinkEvent*>;

constexpr std::size_t kOfTheLine = 3, kLong = 2;  // at the end of the events

// Whether what causes the event is there: a button that can be pressed, a timer that runs, an open port.
bool CanHappen(const Link& link, const LinkEvent& event) {
  return std::ranges::all_of(event.needs,
                             [&](auto variable) { return variable == nullptr || link.*variable != 0; });
}

// The program and the table side by side.
class Pair {
 public:
  explicit Pair(const FirmwareId& firmware) : program_(firmware), stream_(PatternStream(firmware)) {
    program_.Start();
    auto& app = program_.app;
    app.frmMain.CmdUpDow[5].visible = true;
    app.ClockMonth = "03", app.ClockDay = "05", app.ClockYear = "26";
    app.ClockHour = "14", app.ClockMinute = "07", app.ClockSecond = "09";
    link_.firmware = firmware;
    link_.stream = [&app] { return SectionsToStream(app); };
  }

  // What differs after the step; empty: nothing.
  std::string Step(const LinkEvent& event) {
    std::string found;
    const auto characters = event.kind == kWholeStream ? std::string_view(stream_) : event.name.substr(0, 1);
    for (std::size_t at = 0; at < characters.size() && (at == 0 || link_.open != 0) && found.empty(); ++at) {
      do {
        found = Both(event, characters[at]);
      } while (found.empty() && wrote_ && event.kind == kDrainAll);
    }
    return found;
  }
  bool Ended() const { return program_.app.ended; }
  const Link& Table() const { return link_; }

 private:
  std::string Both(const LinkEvent& event, char character) {
    const bool theirs = Act(event, character), ours = link_.ended == 0 && CanHappen(link_, event);
    if (theirs != ours) return std::string("the event is ") + (theirs ? "let in" : "refused") + "\n";
    if (ours && (event.kind == kCharacter || event.kind == kWholeStream)) link_.Hear(character);
    if (ours && event.then != nullptr) (link_.*event.then)();
    wrote_ = !link_.sent.empty();
    return Difference();
  }

  // False: the program did not let it in.
  bool Act(const LinkEvent& event, char character) {
    auto& app = program_.app;
    const auto named = [&] { return app.registry.Find(event.name)->control; };
    const auto done = [&](const Event& act) { return Dispatch(app, act) == Outcome::kDone; };
    const bool open = app.frmMain.MSComm1.PortOpen;
    switch (event.kind) {
      case kClick:
        return done(ClickEvent{named()});
      case kClose:
        return done(CloseEvent{std::get<Form*>(named())});
      case kTick:
        return done(TickEvent{std::get<Timer*>(named())});
      case kDrained:
      case kDrainAll:
        return done(DrainedEvent{});
      case kCharacter:
      case kWholeStream:
        program_.Unit({&character, 1});
        return open;
      case kLine:
        program_.line_error.reset();
        program_.open_error.reset();
        if (event.then == &Link::LineLost) program_.line_error = kNoDevice;
        if (event.then == &Link::LineRefused) program_.open_error = kNoDevice;
    }
    return true;
  }

  // What the program did since the last look, holds and shows otherwise than the table; empty if nothing.
  std::string Difference() {
    const auto& app = program_.app;
    const auto& main = app.frmMain;
    std::ostringstream found;
    const auto same = [&](const char* name, const auto& theirs, const auto& ours) {
      if (theirs != ours) found << name << " is " << theirs << ", by the table " << ours << '\n';
    };
    std::string boxes;
    for (const auto& box : std::exchange(program_.boxes, {})) boxes += box.title + "|" + box.text + "\n";
    same("boxes", boxes, std::exchange(link_.boxes, {}));
    same("sent", program_.TakeSent(), std::exchange(link_.sent, {}));
    same("ended", app.ended, link_.ended);
    if (app.ended) return found.str();
    same("LinkMode", app.LinkMode, link_.mode);
    same("RemoteHeld", app.RemoteHeld, link_.held);
    same("PortOpen", main.MSComm1.PortOpen, link_.open);
    same("FrameState", app.FrameState, link_.frame);
    same("ProgressChars", app.ProgressChars, link_.chars);
    same("ProgressValue", app.ProgressValue, link_.steps);
    same("DownloadRequested", app.DownloadRequested, link_.requested);
    same("DownloadActive", app.DownloadActive, link_.active);
    same("FinalAckExpected", app.FinalAckExpected, link_.final_ack);
    same("SetTimePending", app.SetTimePending, link_.time);
    same("HistoryPending", app.HistoryPending, link_.history);
    same("MasterResetPending", app.MasterResetPending, link_.reset);
    same("HandcheckCount", app.HandcheckCount, link_.keep_alive_count);
    same("OperatingCount", app.OperatingCount, link_.silence_count);
    same("ScanActive", app.ScanActive, link_.scanning);
    same("ScanIndex", int{app.ScanIndex}, link_.scan_place);
    same("General_timer", main.General_timer.enabled, link_.general);
    same("Time_handcheck", main.Time_handcheck.enabled, link_.keep_alive);
    same("Timer_Operating", main.Timer_Operating.enabled, link_.watchdog);
    same("BaudRateScan", app.frmSettSR.BaudRateScan.enabled, link_.scan);
    same("CmdUpDow(4)", main.CmdUpDow[4].enabled, link_.remote);
    same("cmdConnect", main.cmdConnect.enabled, link_.connect);
    same("cmdConnect shown", main.cmdConnect.visible, link_.connect_shown);
    same("cmdDisConnect shown", main.cmdDisConnect.visible, link_.disconnect_shown);
    same("lbRemoteAccess", main.lbRemoteAccess.caption == "ACCESS", link_.access);
    same("Picture1(3)", main.Picture1[3].visible, link_.access);
    same("Picture1(0)", !main.Picture1[0].visible, link_.access);
    same("bar shown", main.vbalProgressBar1.visible, link_.bar_shown);
    same("bar", main.vbalProgressBar1.value, link_.bar);
    same("Label64(0)", main.Label64[0].visible, link_.downloading);
    same("Label64(1)", main.Label64[1].visible, link_.uploading);
    same("ScanProgressBar1", app.frmScanBProgress.ScanProgressBar1.value, link_.scan_bar);
    same("frmSettSR", app.frmSettSR.form.loaded, link_.dialog);
    same("frmSettSR shown", app.frmSettSR.form.visible, link_.dialog_shown);
    same("frmScanBProgress", app.frmScanBProgress.form.visible, link_.scan_window);
    same("frmOK_buttom", app.frmOK_buttom.form.visible, link_.end_window);
    same("frmMain", main.form.enabled, link_.main_free);
    for (const auto action : {0U, 1U, 2U, 3U, 5U})
      same("CmdUpDow", main.CmdUpDow[action].enabled, link_.actions);
    same("PendingOutput", app.PendingOutput, link_.out);
    same("LastReceived", app.LastReceived, link_.last);
    same("StreamBuffer", app.StreamBuffer, link_.text);
    same("HistoryText", app.HistoryText, link_.history_text);
    same("bar text", main.vbalProgressBar1.text, link_.bar_text);
    same("lbConnectting", main.lbConnectting.caption, link_.connection);
    same("cmdConnect's caption", main.cmdConnect.caption, link_.button);
    if (link_.end_window != 0) same("frmOK_buttom's text", app.frmOK_buttom.Label1.caption, link_.end_text);
    return found.str();
  }

  Harness program_;
  std::string stream_;
  Link link_;
  bool wrote_ = false;
};

std::string FirstDifference(const FirmwareId& firmware, const Steps& steps) {
  Pair pair(firmware);
  std::string found;
  for (std::size_t at = 0; at < steps.size() && found.empty() && !pair.Ended(); ++at)
    found = pair.Step(*steps[at]);
  return found;
}

void TellShortest(const FirmwareId& firmware, const Steps& steps) {
  const auto fails = [&](const Steps& fewer) { return !FirstDifference(firmware, fewer).empty(); };
  const auto shortest = Shortest(steps, fails);
  std::cout << firmware.Joined() << '\n';
  for (const auto* step : shortest)
    std::cout << (step->kind == kCharacter ? "unit hex " + TextToHex(step->name) : std::string(step->name))
              << '\n';
  std::cout << FirstDifference(firmware, shortest);
}

// Mostly what can happen, and what leads somewhere oftener than what leads out.
const LinkEvent* NextStep(std::mt19937& chance, const Link& link) {
  constexpr unsigned kOneLong = 40, kOneFault = 60, kOneOfAll = 4, kOneImpossible = 16, kFewTries = 4;
  const auto one_of = [&](std::span<const LinkEvent> events) { return &events[chance() % events.size()]; };
  const std::span<const LinkEvent> events = kLinkEvents;
  const auto short_ones = events.first(events.size() - kLong);
  if (chance() % kOneLong == 0) return one_of(events.last(kLong));
  if (chance() % kOneFault == 0) return one_of(short_ones.last(kOfTheLine));
  const bool any = chance() % kOneImpossible == 0;
  const LinkEvent* event = nullptr;
  for (unsigned tries = 0; tries < kFewTries; ++tries) {
    const bool ways_out = chance() % kOneOfAll == 0;
    do {
      event = one_of(short_ones);
    } while (!event->way_in && !ways_out);
    if (any || CanHappen(link, *event)) break;
  }
  return event;
}

int Run(long events, unsigned seed) {
  constexpr std::size_t kLongestSequence = 2000, kLongestBurst = 32;
  const StopWatch watch;
  std::mt19937 chance(seed);
  long done = 0;
  std::size_t sequences = 0;
  for (; done < events; ++sequences) {
    const auto& firmware = kUnlike[(seed + sequences) % kUnlike.size()];
    Pair pair(firmware);
    Steps steps;
    while (steps.size() < kLongestSequence && !pair.Ended() && done < events) {
      const auto* step = NextStep(chance, pair.Table());
      // Time goes on a while before anything else happens.
      auto times = step->kind == kTick ? 1 + chance() % kLongestBurst : 1;
      for (; times > 0 && !pair.Ended(); --times, ++done) {
        steps.push_back(step);
        if (pair.Step(*step).empty()) continue;
        TellShortest(firmware, steps);
        return EXIT_FAILURE;
      }
    }
  }
  std::cout << done << " events in " << sequences << " sequences, no difference, " << watch.Told() << '\n';
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto seed = ovl::testing::NumberIn(count, words, 2, 1);
  return ovl::testing::Run(ovl::testing::NumberIn(count, words, 1, 1'000'000), static_cast<unsigned>(seed));
}
