// One fault at every character of an upload and of a download, and what becomes of it.
//   ovl-campaign [EVERY]     with EVERY only each so many-th point
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>

#include "campaign/expectation.h"
#include "image/files.h"
#include "image/record_stream.h"
#include "support/site.h"
#include "support/state_table.h"

namespace ovl::testing {
namespace {

constexpr const char* kFailBox =
    "                            !!! Remote Connection Fail. !!!\n"
    "Cable Disconnected Or Communication Setting Wrong ,Try Again";
constexpr const char* kParityBox = "Check Parity and Data Bit Setting that Same OVL ,Try again !!!";
constexpr const char* kSendBox = "                       No such device";
constexpr const char* kForeignBox =
    "The Ovalon Version is not compatible !!!\n       Try with the same version again.";
constexpr const char* kBrokenBox =
    "                System File Error. \nPlease ReInstall Ovalon PC Software !!";
constexpr const char* kScanBox = "No Response From The Device";
constexpr std::size_t kCommandLength = 4;
constexpr int kLongSilence = 8000, kWholeScan = 12000;

// A program at its site, beside one to which the texts that the first took in are sent without a fault.
class Campaign {
 public:
  Campaign(const FirmwareId& firmware, bool upload) : talk_{firmware, upload, {}} { Restart(); }

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
    const bool unharmed = fault < Fault::kLost || fault > Fault::kGarbled;
    if (!talk_.upload && at >= kCommandLength && unharmed && expected_.ending == Ending::kDone) {
      Want(site_->taken == talk_.stream, "the unit's stream");
    }
    if (expected_.ending == Ending::kBrokenFile) return End();
    CheckState(fault);
    WayBack(fault);
    NextTransfers();
    return wrong_;
  }
  Ending Reached() const { return expected_.ending; }
  bool RepetitionEnded() const { return site_->app.ended && expected_.ending != Ending::kBrokenFile; }

 private:
  void Want(bool met, const std::string& what) {
    if (!met) wrong_.append(wrong_.empty() ? "" : "; ").append(what);
  }
  void ExpectIn(State state) {
    const auto difference = DifferenceFrom(state, site_->app);
    Want(difference.empty(), "not " + std::string(NameOf(state)) + ": " + difference);
  }
  std::string UploadFile() const {
    const auto path = site_->folder.File(talk_.firmware.version + "/upload.bin");
    return std::filesystem::exists(path) ? ReadWhole(path) : std::string();
  }

  void Restart() {
    site_ = std::make_unique<Site>(talk_.firmware);
    twin_ = std::make_unique<Site>(talk_.firmware);
    talk_.stream = PatternStream(talk_.firmware);
    if (talk_.upload) Choose();
    site_->Hold();
    ExpectIn(State::kHeld);
  }
  // The next stream to be uploaded, other than the last.
  void Choose() {
    seed_ = seed_ % 3 + 2;
    talk_.stream = PatternStream(talk_.firmware, seed_);
    site_->configuration = talk_.stream + "\r\n";
  }
  // The program ended, as it had to.
  std::string End() {
    Want(site_->app.ended, "the program goes on");
    return wrong_;
  }

  void Inject(std::size_t at, Fault fault) {
    site_->Click(talk_.upload ? "CmdUpDow(0)" : "CmdUpDow(1)");
    for (std::size_t passed = 0; passed < at; ++passed) {
      if (!site_->Character()) Want(false, "the conversation stands still");
    }
    ExpectIn(talk_.upload                                 ? State::kUploading
             : at <= kCommandLength                       ? State::kDownloadCommand
             : at <= talk_.stream.size() + kCommandLength ? State::kDownloadStream
                                                          : State::kTransferDone);
    using enum Fault;
    const auto passing = fault == kDropped   ? Site::Passing::kDropped
                         : fault == kDoubled ? Site::Passing::kDoubled
                         : fault == kGarbled ? Site::Passing::kGarbled
                                             : Site::Passing::kWhole;
    site_->Character(passing, GarbleAt(at));
    if (fault == kSilence) site_->Silence();
    if (fault == kStall) site_->Stall();
    if (fault == kLost) site_->Lose();
    if (fault == kParity) site_->Unit("?");
    if (fault == kNak) site_->Unit("\x15");
    if (fault == kAck) site_->Unit("\x06");
    if (fault >= kDisconnect) {
      const bool reachable = expected_.ending == Ending::kDisconnected;
      const auto outcome = site_->Click("cmdDisConnect");
      Want((outcome == Outcome::kDone) == reachable, "Disconnect");
    }
    if (fault == kScan) Scan();
    site_->UntilQuiet();
    site_->Live(kLongSilence);
    site_->Mend();
  }
  void Scan() {
    site_->UntilQuiet();
    if (expected_.ending != Ending::kDisconnected) {
      site_->Click("frmOK_buttom.Command1");
      site_->Click("cmdDisConnect");
    }
    site_->Click("cmdConnect");
    site_->Click("BaudrateCMD");
    ExpectIn(State::kScanning);
    site_->Live(kWholeScan);
  }

  void CheckBoxes(Fault fault) {
    std::vector<const char*> texts;
    if (expected_.send_failure) texts.push_back(kSendBox);
    if (expected_.ending == Ending::kForeign) texts.push_back(kForeignBox);
    if (expected_.ending == Ending::kBrokenFile) texts.push_back(kBrokenBox);
    if (expected_.ending == Ending::kSilence) texts.push_back(kFailBox);
    if (expected_.ending == Ending::kParity || expected_.parity_behind) texts.push_back(kParityBox);
    if (fault == Fault::kScan && expected_.ending != Ending::kBrokenFile) texts.push_back(kScanBox);
    for (const auto* text : texts) Want(site_->TakeBox().text == text, "box");
    Want(site_->NoBoxLeft(), "a box too many");
    site_->boxes.clear();
  }

  void CheckFiles(const ConfigImage& before, const std::string& file_before) {
    const bool stored = !expected_.stored.empty();
    Want(UploadFile() == (stored ? expected_.stored + "\r\n" : file_before), "upload.bin");
    if (talk_.upload && expected_.ending == Ending::kDone) {
      ExpectTwin(expected_.stored);
    } else {
      Want(site_->app.image == before, "the image has changed");
    }
    Want(site_->app.StreamBuffer == expected_.left, "what stands ahead of the next upload");
    Want((site_->app.FrameState == 1) == !expected_.left.empty(), "FrameState");
  }
  void ExpectTwin(const std::string& text) {
    if (text == talk_.stream) Want(SectionsToStream(site_->app) == text, "not the stream's image");
    twin_->configuration = text;
    twin_->Hold();
    twin_->Click("CmdUpDow(0)");
    twin_->UntilQuiet();
    twin_->Click("frmOK_buttom.Command1");
    twin_->Click("cmdDisConnect");
    Want(site_->app.image == twin_->app.image, "not the image of the same text without a fault");
  }

  void CheckState(Fault fault) {
    const auto& app = site_->app;
    const auto& label = app.frmMain.Label64[talk_.upload ? 1 : 0];
    const bool closing = expected_.ending == Ending::kDone || expected_.ending == Ending::kForeign;
    const bool still = expected_.ending == Ending::kStandsStill;
    const bool window = closing && fault != Fault::kScan;
    ExpectIn(still                                ? State::kDownloadStream
             : window && !expected_.parity_behind ? State::kTransferDone
                                                  : State::kClosed);
    Want(app.frmOK_buttom.form.visible == window, "closing window");
    if (window) {
      Want(app.frmOK_buttom.Label1.caption == (expected_.ending == Ending::kForeign ? "Upload Incompleted."
                                               : talk_.upload                       ? "Upload Completed."
                                                                                    : "Download Completed."),
           "its text");
    }
    const bool shown = still || expected_.ending == Ending::kSilence || expected_.ending == Ending::kParity;
    Want(app.frmMain.vbalProgressBar1.visible == shown && label.visible == shown, "progress bar");
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
      Want(fault != Fault::kScan, "open after a scan");
      Want(site_->Click("cmdDisConnect") == Outcome::kDone, "Disconnect");
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
    if (talk_.upload) Choose();
    Transfer(talk_.stream);
  }
  void Transfer(const std::string& stored) {
    site_->Hold();
    ExpectIn(State::kHeld);
    site_->Click(talk_.upload ? "CmdUpDow(0)" : "CmdUpDow(1)");
    site_->UntilQuiet();
    if (talk_.upload && Judge(talk_.firmware, stored) == Ending::kBrokenFile) {
      Want(site_->TakeBox().text == kBrokenBox && site_->app.ended, "a broken file");
      Want(UploadFile() == stored + "\r\n", "upload.bin of a broken repetition");
      return;
    }
    ExpectIn(State::kTransferDone);
    Want(site_->NoBoxLeft(), "a box in the next transfer");
    if (talk_.upload) {
      Want(UploadFile() == stored + "\r\n", "upload.bin of the next transfer");
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
  std::unique_ptr<Site> site_;
  std::unique_ptr<Site> twin_;
  Expectation expected_;
  std::string wrong_;
  int seed_ = 2;
};

struct Totals {
  std::map<std::pair<Fault, std::string>, int> led_to;
  int points = 0, wrong = 0;
};

void Run(const FirmwareId& firmware, bool upload, std::size_t every, Totals& totals) {
  auto campaign = std::make_unique<Campaign>(firmware, upload);
  constexpr int kShown = 20;
  for (std::size_t point = static_cast<std::size_t>(totals.points) % every;
       point < campaign->Length() * kFaultNames.size(); point += every) {
    const auto at = point / kFaultNames.size();
    const auto fault = static_cast<Fault>(point % kFaultNames.size());
    const auto wrong = campaign->Meet(at, fault);
    ++totals.points;
    std::string ending = kEndingNames.at(static_cast<std::size_t>(campaign->Reached()));
    if (campaign->RepetitionEnded()) ending += ", its repetition ends the program";
    ++totals.led_to[{fault, ending}];
    if (wrong.empty()) continue;
    if (++totals.wrong <= kShown) {
      std::cout << firmware.Joined() << (upload ? " upload" : " download") << " character " << at << ' '
                << kFaultNames.at(point % kFaultNames.size()) << ": " << wrong << std::endl;
    }
    campaign = std::make_unique<Campaign>(firmware, upload);
  }
}

int RunAll(std::size_t every) {
  const auto start = std::chrono::steady_clock::now();
  Totals totals;
  for (const auto& firmware :
       {FirmwareId{"V1400", "R12"}, {"V1400", "R4"}, {"V1300", "R14"}, {"V1334", "R1"}}) {
    for (const bool upload : {true, false}) Run(firmware, upload, every, totals);
  }
  for (const auto& [what, count] : totals.led_to) {
    std::cout << kFaultNames.at(static_cast<std::size_t>(what.first)) << ": " << what.second << ' ' << count
              << '\n';
  }
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
  std::cout << totals.points << " points, " << totals.wrong << " wrong, " << seconds.count() << " s\n";
  return totals.wrong == 0 && totals.points > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto every = count > 1 ? std::strtoul(words[1], nullptr, 10) : 1UL;
  return ovl::testing::RunAll(every == 0 ? 1 : every);
}
