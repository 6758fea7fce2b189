// The program and the reference model under the same events.
#pragma once

#include <sstream>
#include <utility>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "search/reference_model/link_model.h"
#include "support/digest.h"

namespace ovl::testing {

enum Kind { kClick, kClose, kTick, kCharacter, kDrained, kEnvironment, kDrainAll, kWholeStream };

struct LinkEvent {
  std::string_view name;  // of the control; the character
  Kind kind;
  std::array<int LinkModel::*, 3> needs = {};  // the event is possible only if all of these are set
  void (LinkModel::*then)() = nullptr;
  bool leads_in = false;  // it starts or continues something
};

// At the end are the events of the environment, and after them two events that are long sequences.
using L = LinkModel;
inline constexpr LinkEvent kLinkEvents[] = {
    {"CmdUpDow(4)", kClick, {&L::main_enabled, &L::remote}, &L::EnterOrLeaveRemoteMode, true},
    {"CmdUpDow(0)", kClick, {&L::main_enabled, &L::actions}, &L::BeginUpload, true},
    {"CmdUpDow(1)", kClick, {&L::main_enabled, &L::actions}, &L::BeginDownload, true},
    {"CmdUpDow(2)", kClick, {&L::main_enabled, &L::actions}, &L::BeginSetTime},
    {"CmdUpDow(3)", kClick, {&L::main_enabled, &L::actions}, &L::BeginHistory},
    {"CmdUpDow(5)", kClick, {&L::main_enabled, &L::actions}, &L::BeginReset},
    {"cmdConnect", kClick, {&L::main_enabled, &L::connect, &L::connect_shown}, &L::ShowDialog, true},
    {"cmdDisConnect", kClick, {&L::main_enabled, &L::disconnect_shown}, &L::Disconnect},
    {"frmSettSR.cmdSET", kClick, {&L::dialog_shown}, &L::Set, true},
    {"BaudrateCMD", kClick, {&L::dialog_shown}, &L::BeginScan},
    {"frmSettSR", kClose, {&L::dialog_shown}, &L::CloseDialog},
    {"frmScanBProgress.Command1", kClick, {&L::scan_window}, &L::CancelScan},
    {"frmScanBProgress", kClose, {&L::scan_window}, &L::CloseScanWindow},
    {"frmOK_buttom.Command1", kClick, {&L::end_window}, &L::CloseEndWindow},
    {"frmOK_buttom", kClose, {&L::end_window}, &L::CloseEndWindow},
    {"General_timer", kTick, {&L::general}, &L::CheckGrant, true},
    {"Time_handcheck", kTick, {&L::keep_alive}, &L::KeepAlive, true},
    {"Timer_Operating", kTick, {&L::watchdog}, &L::CountSilence, true},
    {"BaudRateScan", kTick, {&L::scan}, &L::ContinueScan},
    {kAck, kCharacter, {&L::open}, nullptr, true},
    {kNak, kCharacter, {&L::open}},
    {"?", kCharacter, {&L::open}},
    {kFormFeed, kCharacter, {&L::open}, nullptr, true},
    {"$", kCharacter, {&L::open}},
    {"#", kCharacter, {&L::open}},
    {"0", kCharacter, {&L::open}},
    {"drained", kDrained, {&L::open}, &L::Drained},
    {"Timer", kTick},
    {"answer", kEnvironment},
    {"line lost", kEnvironment, {}, &L::LineLost},
    {"line refused", kEnvironment, {}, &L::LineRefused},
    {"line well", kEnvironment, {}, &L::LineWell, true},
    {"drain all", kDrainAll, {&L::open}, &L::Drained},
    {"whole stream", kWholeStream, {&L::open}},
};

inline constexpr std::size_t kEnvironmentEvents = 4, kLong = 2;

// Whether the event is possible: its button is enabled, its timer runs, its port is open.
inline bool CanHappen(const LinkModel& link, const LinkEvent& event) {
  return std::ranges::all_of(event.needs,
                             [&](auto variable) { return variable == nullptr || link.*variable != 0; });
}

class Comparison {
 public:
  explicit Comparison(const firmware::FirmwareId& firmware)
      : program_(firmware), stream_(PatternStream(firmware, 7)) {
    program_.now = {2026, 3, 5, 14, 7, 9};
    program_.Start();
    auto& app = program_.app;
    program_.Tick(app.frmMain.Timer, 11);  // then the clock is read
    app.frmMain.CmdUpDow[5].visible = true;
    begun_ = app.image;
    link_.firmware = firmware;
    link_.stream = [&app] { return SectionsToStream(app); };
  }

  // Adds everything that the program has done since the last call.
  void AddTo(Digest& digest) {
    digest.Add(std::exchange(seen_, {}));
    digest.AddState(program_.app);
  }

  // Returns what differs after the event, or an empty text.
  std::string Step(const LinkEvent& event) {
    return Step(event, event.kind == kWholeStream ? std::string_view(stream_) : event.name.substr(0, 1));
  }
  std::string Step(const LinkEvent& event, std::string_view characters) {
    std::string found;
    for (std::size_t at = 0; at < characters.size() && (at == 0 || link_.open != 0) && found.empty(); ++at) {
      do {
        found = Both(event, characters[at]);
      } while (found.empty() && wrote_ && event.kind == kDrainAll);
    }
    return found;
  }
  bool Ended() const { return program_.app.ended; }
  const LinkModel& Model() const { return link_; }
  // Only a completed upload changes the image.
  bool KeptImage() const { return uploaded_ || program_.app.image == begun_; }

 protected:
  std::string Both(const LinkEvent& event, char character) {
    const bool accepted = Act(event, character), expected = link_.ended == 0 && CanHappen(link_, event);
    if (accepted != expected)
      return std::string("the event is ") + (accepted ? "accepted" : "refused") + "\n";
    if (expected && (event.kind == kCharacter || event.kind == kWholeStream)) link_.Receive(character);
    if (expected && event.then != nullptr) (link_.*event.then)();
    wrote_ = !link_.sent.empty();
    uploaded_ = uploaded_ || link_.end_text == "Upload Completed.";
    return Difference();
  }

  // Gives the event to the program. Returns false if the program refused it.
  bool Act(const LinkEvent& event, char character) {
    auto& app = program_.app;
    const auto named = [&] { return app.registry.Find(event.name)->control; };
    const auto done = [&](const core::Event& act) { return Dispatch(app, act) == core::Outcome::kDone; };
    const bool open = app.frmMain.MSComm1.PortOpen;
    switch (event.kind) {
      case kClick:
        return done(core::ClickEvent{named()});
      case kClose:
        return done(core::CloseEvent{std::get<controls::Form*>(named())});
      case kTick:
        return done(core::TickEvent{std::get<controls::Timer*>(named())});
      case kDrained:
      case kDrainAll:
        return done(core::DrainedEvent{});
      case kCharacter:
      case kWholeStream:
        program_.Unit({&character, 1});
        return open;
      case kEnvironment:
        if (event.then == nullptr) program_.file_answers.emplace_back(program_.folder.File("History.txt"));
        if (event.then == nullptr) return true;
        program_.line_error.reset();
        program_.open_error.reset();
        if (event.then == &LinkModel::LineLost) program_.line_error = kNoDevice;
        if (event.then == &LinkModel::LineRefused) program_.open_error = kNoDevice;
    }
    return true;
  }

  // Returns what the program did, holds or shows differently from the model, or an empty text.
  std::string Difference() {
    const auto& app = program_.app;
    const auto& main = app.frmMain;
    std::string found;
    const auto same = [&](const char* name, const auto& actual, const auto& expected) {
      if (actual == expected) return;
      std::ostringstream line;
      line << name << " is " << actual << ", in the model " << expected << '\n';
      found += line.str();
    };
    std::string boxes;
    for (const auto& box : std::exchange(program_.boxes, {})) boxes += box.title + "|" + box.text + "\n";
    const auto sent = program_.TakeSent();
    seen_ += boxes + sent;
    same("boxes", boxes, std::exchange(link_.boxes, {}));
    same("sent", sent, std::exchange(link_.sent, {}));
    same("ended", app.ended, link_.ended);
    if (app.ended) return found;
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
    same("frmMain", main.form.enabled, link_.main_enabled);
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
    return found;
  }

  Harness program_;
  std::string stream_, seen_;
  LinkModel link_;
  image::ConfigImage begun_;
  bool wrote_ = false, uploaded_ = false;
};

}  // namespace ovl::testing
