#include "pictures/advice_pictures.h"

#include <algorithm>

#include <QTabWidget>

#include "pictures/sample_settings.h"

namespace ovl::pictures {
namespace {

constexpr std::size_t kPartOfUpload = 2870;
constexpr int kRemoteTab = 6;
constexpr int kSilence = 6;     // ticks of the watchdog
constexpr int kScanSteps = 11;  // until the scan has tried every rate

class AdviceStates {
 public:
  AdviceStates(ui::Program& program, SimulatedPort& port, const TakePicture& take)
      : program_(program), port_(port), take_(take) {}

  void TakeAll() {
    Take("first_steps");
    TakeFiles();
    TakeSettings();
    program_.OnScreen().Main().Tabs().setCurrentIndex(kRemoteTab);
    TakePort();
    TakeTransfers();
  }

 private:
  core::Application& App() { return program_.Model(); }
  controls::MainForm& Main() { return App().frmMain; }
  void Take(const char* name) { take_(QStringLiteral("advice_") + QLatin1String(name)); }
  void Click(const controls::ControlRef& control) { program_.Act(core::ClickEvent{control}); }
  void Press(controls::LinkAction action) { Click(&Main().CmdUpDow[action]); }
  void Tick(controls::Timer& timer, int times) {
    while (times-- > 0) program_.Act(core::TickEvent{&timer});
  }

  void TakeFiles() {
    Click(&Main().OpenMenu);
    Take("next_pick_swallowed");
    program_.Act(core::PickEvent{&Main().ComboReg, 1});
    Take("pick_swallowed");
    if (PickRegister(program_, "MICRELEC")) Take("other_tabs_changed");
  }

  void TakeSettings() {
    PickRegister(program_, "GENERIC");
    program_.Act(core::PickEvent{&Main().ComboALM[controls::Alm::kTrigger], 7});
    Take("alarm_without_exception");
  }

  void TakePort() {
    port_.Refuse(std::errc::permission_denied);
    Connect();
    Take("port_refused");
    Connect();
    Press(controls::kRemote);
    Tick(Main().General_timer, 1);
    Take("no_answer");
    Connect();
    port_.Lose();
    Take("device_lost");
    Click(&Main().cmdDisConnect);
    Click(&Main().cmdConnect);
    Click(&App().frmSettSR.BaudrateCMD);
    Take("scan_cannot_hear");
    Tick(App().frmSettSR.BaudRateScan, kScanSteps);
    Take("scan_found_nothing");
  }

  void TakeTransfers() {
    Hold();
    Press(controls::kDownload);
    port_.SendCharacters(static_cast<int>(App().DownloadCommandText.size()));
    port_.ReceiveFromUnit(kAck);
    port_.SendCharacters(static_cast<int>(kPartOfUpload / 2));
    port_.Lose();
    Take("device_lost_in_download");
    Click(&Main().cmdDisConnect);
    Take("download_broke");
    if (PickRegister(program_, "IBM")) {
      // A printer of this model stays stored for the next one, which has no such printer.
      Click(controls::OptionElement{&Main().IBMOP, 0});
      program_.Act(core::PickEvent{&Main().IBMCombo, 2});
      Click(controls::OptionElement{&Main().IBMOP, 4});
    }
    const auto stream = StreamOfUnit(App());
    Upload(stream);
    Click(&App().frmOK_buttom.Command1);
    Take("options_hidden");
    Upload(stream.substr(0, stream.rfind('$', stream.size() / 2)));
    Tick(Main().Timer_Operating, kSilence);
    Take("upload_broke");
    Upload(stream);
    Click(&App().frmOK_buttom.Command1);
    Take("upload_mixed");
  }

  void Upload(std::string_view stream) {
    Hold();
    Press(controls::kUpload);
    port_.SendCharacters(static_cast<int>(App().UploadCommandText.size()));
    // The program shows the beginning of an upload when it has the time. Here that would depend on the
    // machine.
    program_.RefreshNow();
    port_.ReceiveFromUnit(stream);
  }

  void Connect() {
    if (Main().MSComm1.PortOpen) return;
    Click(&Main().cmdConnect);
    Click(&App().frmSettSR.cmdSET);
  }

  void Hold() {
    Connect();
    Press(controls::kRemote);
    port_.ReceiveFromUnit(kAck);
    Tick(Main().General_timer, 1);
  }

  ui::Program& program_;
  SimulatedPort& port_;
  const TakePicture& take_;
};

}  // namespace

void TakeAdvice(ui::Program& program, SimulatedPort& port, const TakePicture& take) {
  AdviceStates(program, port, take).TakeAll();
}

}  // namespace ovl::pictures
