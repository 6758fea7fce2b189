// One fault at every character of an upload and of a download, and what becomes of it.
//   ovl-campaign [EVERY]     with EVERY only each so many-th point
#include <iostream>
#include <map>
#include <memory>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "search/fault_sweep/expectation.h"
#include "search/fault_sweep/long_run.h"
#include "support/site.h"
#include "support/state_table.h"

namespace ovl::testing {
namespace {

using enum Fault;
using enum Ending;

constexpr std::size_t kCommandLength = 4;
constexpr int kLongSilence = 8000, kWholeScan = 12000;

// A program at its site, beside one to which the texts that the first took in are sent without a fault.
class Campaign {
 public:
  Campaign(const firmware::FirmwareId& firmware, bool upload) : talk_{firmware, upload, {}} { Restart(); }

  std::size_t Length() const { return talk_.Length(); }

  // What is wrong after the fault at this character; empty: nothing.
  std::string Meet(std::size_t at, Fault fault) {
    if (site_->app.ended) Restart();
    wrong_.clear();
    expected_ = Expect(talk_, at, fault);
    const auto before = site_->app.image;
    const auto file_before = UploadFile();
    Inject(at, fault);
    CheckBoxes(fault);
    CheckFiles(before, file_before);
    const bool unharmed = fault < kLost || fault > kGarbled;
    if (!talk_.upload && at >= kCommandLength && unharmed && expected_.ending == kDone)
      Want(site_->taken == talk_.stream, "the unit's stream");
    if (expected_.ending == kBrokenFile) {
      Want(site_->app.ended, "the program goes on");
      return wrong_;
    }
    CheckState(fault);
    WayBack(fault);
    NextTransfers();
    return wrong_;
  }
  std::string Reached() const {
    const bool later = site_->app.ended && expected_.ending != kBrokenFile;
    return std::string(kEndingNames.at(static_cast<std::size_t>(expected_.ending))) +
           (later ? ", its repetition ends the program" : "");
  }

 private:
  void Want(bool met, const std::string& what) {
    if (!met) wrong_.append(wrong_.empty() ? "" : "; ").append(what);
  }
  void ExpectIn(State state) {
    const auto difference = DifferenceFrom(state, site_->app);
    Want(difference.empty(), "not " + std::string(NameOf(state)) + ": " + difference);
  }
  void ExpectFile(const std::string& text, const char* when) {
    Want(UploadFile() == text, std::string("upload.bin ") + when);
  }
  std::string UploadFile() const {
    const auto path = site_->folder.File(talk_.firmware.version + "/upload.bin");
    return std::filesystem::exists(path) ? ReadFile(path) : std::string();
  }

  void Restart() {
    site_ = std::make_unique<Site>(talk_.firmware);
    twin_ = std::make_unique<Site>(talk_.firmware);
    talk_.stream = PatternStream(talk_.firmware);
    Choose();
    site_->Hold();
    ExpectIn(State::kHeld);
  }
  // The next stream to be uploaded, other than the last.
  void Choose() {
    if (!talk_.upload) return;
    seed_ = seed_ % 3 + 2;
    talk_.stream = PatternStream(talk_.firmware, seed_);
    site_->configuration = talk_.stream + "\r\n";
  }
  void Begin(Site& site) const { site.Click(talk_.upload ? "CmdUpDow(0)" : "CmdUpDow(1)"); }

  void Inject(std::size_t at, Fault fault) {
    Begin(*site_);
    for (std::size_t passed = 0; passed < at; ++passed)
      Want(site_->Character(), "the conversation stands still");
    ExpectIn(talk_.upload                                 ? State::kUploading
             : at <= kCommandLength                       ? State::kDownloadCommand
             : at <= talk_.stream.size() + kCommandLength ? State::kDownloadStream
                                                          : State::kTransferDone);
    site_->Character(fault == kDropped   ? Site::Passing::kDropped
                     : fault == kDoubled ? Site::Passing::kDoubled
                     : fault == kGarbled ? Site::Passing::kGarbled
                                         : Site::Passing::kWhole,
                     GarbleAt(at));
    if (fault == kSilence) site_->Silence();
    if (fault == kStall) site_->Stall();
    if (fault == kLost) site_->Lose();
    site_->Unit(PutIn(fault));
    if (fault >= kHangUp) {
      const bool done = site_->Click("cmdDisConnect") == core::Outcome::kDone;
      Want(done == (expected_.ending == kHungUp), "Disconnect");
    }
    site_->UntilQuiet();
    if (fault == kScan) Scan();
    site_->UntilQuiet();
    site_->Live(kLongSilence);
    site_->Mend();
  }
  void Scan() {
    for (const auto* button : {"frmOK_buttom.Command1", "cmdDisConnect", "cmdConnect", "BaudrateCMD"})
      site_->Click(button);
    ExpectIn(State::kScanning);
    site_->Live(kWholeScan);
  }

  void CheckBoxes(Fault fault) {
    const auto ending = expected_.ending;
    const std::pair<bool, const char*> boxes[] = {{expected_.send_failure, kSendBox},
                                                  {ending == kForeign, kForeignBox},
                                                  {ending == kBrokenFile, kBrokenBox},
                                                  {ending == kTimeOut, kFailBox},
                                                  {ending == kParity || expected_.parity_behind, kParityBox},
                                                  {fault == kScan && ending != kBrokenFile, kScanBox}};
    for (const auto& [due, text] : boxes) Want(!due || site_->TakeBox().text == text, "box");
    Want(site_->NoBoxLeft(), "a box too many");
    site_->boxes.clear();
  }

  void CheckFiles(const image::ConfigImage& before, const std::string& file_before) {
    ExpectFile(expected_.stored.empty() ? file_before : expected_.stored + "\r\n", "");
    if (talk_.upload && expected_.ending == kDone) {
      ExpectTwin(expected_.stored);
    } else {
      Want(site_->app.image == before, "the image has changed");
    }
    Want(site_->app.StreamBuffer == expected_.left, "what stands ahead of the next upload");
    Want((site_->app.FrameState == 1) == !expected_.left.empty(), "FrameState");
  }
  void ExpectTwin(const std::string& text) {
    if (text == talk_.stream) Want(core::SectionsToStream(site_->app) == text, "not the stream's image");
    twin_->configuration = text;
    twin_->Hold();
    Begin(*twin_);
    twin_->UntilQuiet();
    twin_->Click("frmOK_buttom.Command1");
    twin_->Click("cmdDisConnect");
    Want(site_->app.image == twin_->app.image, "not the image of the same text without a fault");
  }

  void CheckState(Fault fault) {
    const auto& app = site_->app;
    const auto ending = expected_.ending;
    const bool still = ending == kStandsStill;
    const bool window = (ending == kDone || ending == kForeign) && fault != kScan;
    ExpectIn(still                                ? State::kDownloadStream
             : window && !expected_.parity_behind ? State::kTransferDone
                                                  : State::kClosed);
    Want(app.frmOK_buttom.form.visible == window, "closing window");
    const auto* told = ending == kForeign ? "Upload Incompleted."
                       : talk_.upload     ? "Upload Completed."
                                          : "Download Completed.";
    Want(!window || app.frmOK_buttom.Label1.caption == told, "its text");
    const bool shown = still || ending == kTimeOut || ending == kParity;
    Want(app.frmMain.vbalProgressBar1.visible == shown, "progress bar");
    Want(app.frmMain.Label64[talk_.upload ? 1 : 0].visible == shown, "its label");
    Want(!app.DownloadRequested && app.DownloadActive == (still && !expected_.send_failure),
         "download flags");
    Want(app.PanelsReady && !app.UploadApplying, "panels");
  }

  void WayBack(Fault fault) {
    auto& app = site_->app;
    if (app.frmOK_buttom.form.visible) {
      site_->Click("frmOK_buttom.Command1");
      ExpectIn(expected_.parity_behind ? State::kClosed : State::kOpen);
    }
    if (app.frmMain.MSComm1.PortOpen) {
      Want(fault != kScan, "open after a scan");
      Want(site_->Click("cmdDisConnect") == core::Outcome::kDone, "Disconnect");
      ExpectIn(State::kClosed);
    }
    Want(app.frmMain.form.enabled, "frmMain is held back");
    site_->Live(1);
  }

  // The next one, behind what a broken one left, and after that a clean one.
  void NextTransfers() {
    if (!expected_.left.empty()) {
      const auto left = expected_.left;
      Choose();
      Transfer(left + talk_.stream);
      if (site_->app.ended || !wrong_.empty()) return;
      site_->Click("cmdDisConnect");
    }
    Choose();
    Transfer(talk_.stream);
  }
  void Transfer(const std::string& stored) {
    site_->Hold();
    ExpectIn(State::kHeld);
    Begin(*site_);
    site_->UntilQuiet();
    if (talk_.upload) ExpectFile(stored + "\r\n", "of the next transfer");
    if (talk_.upload && Judge(talk_.firmware, stored) == kBrokenFile)
      return Want(site_->TakeBox().text == kBrokenBox && site_->app.ended, "a broken file");
    ExpectIn(State::kTransferDone);
    Want(site_->NoBoxLeft(), "a box in the next transfer");
    if (talk_.upload) {
      ExpectTwin(stored);
    } else {
      Want(site_->taken == talk_.stream, "the unit's stream");
      Want(!site_->app.FinalAckExpected, "the final acknowledgement");
    }
    site_->Click("frmOK_buttom.Command1");
    ExpectIn(State::kOpen);
    site_->Click("CmdUpDow(4)");
    site_->Live(400);
    ExpectIn(State::kHeld);
  }

  Conversation talk_;
  std::unique_ptr<Site> site_, twin_;
  Expectation expected_;
  std::string wrong_;
  int seed_ = 2;
};

struct Totals {
  std::map<std::pair<Fault, std::string>, int> led_to;
  std::size_t points = 0, wrong = 0;
};

void Run(const firmware::FirmwareId& firmware, bool upload, std::size_t every, Totals& totals) {
  auto campaign = std::make_unique<Campaign>(firmware, upload);
  constexpr std::size_t kShown = 20, kFaults = kFaultNames.size();
  for (auto point = totals.points % every; point < campaign->Length() * kFaults; point += every) {
    const auto fault = static_cast<Fault>(point % kFaults);
    const auto wrong = campaign->Meet(point / kFaults, fault);
    ++totals.points;
    ++totals.led_to[{fault, campaign->Reached()}];
    if (wrong.empty()) continue;
    if (++totals.wrong <= kShown) {
      std::cout << firmware.Joined() << (upload ? " upload" : " download") << " character " << point / kFaults
                << ' ' << kFaultNames.at(point % kFaults) << ": " << wrong << std::endl;
    }
    campaign = std::make_unique<Campaign>(firmware, upload);
  }
}

int RunAll(std::size_t every) {
  const StopWatch watch;
  Totals totals;
  for (const auto& firmware : kUnlike) {
    for (const bool upload : {true, false}) Run(firmware, upload, every, totals);
  }
  for (const auto& [what, count] : totals.led_to) {
    const auto& [fault, ending] = what;
    std::cout << kFaultNames.at(static_cast<std::size_t>(fault)) << ": " << ending << ' ' << count << '\n';
  }
  std::cout << totals.points << " points, " << totals.wrong << " wrong, " << watch.Told() << '\n';
  return totals.wrong == 0 && totals.points > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto every = ovl::testing::NumberIn(count, words, 1, 1);
  return ovl::testing::RunAll(every < 1 ? 1 : static_cast<std::size_t>(every));
}
