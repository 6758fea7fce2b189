// Puts one fault at every character of an upload and of a download, and checks how the transfer ends.
//   ovl-fault-sweep [STEP]     checks only each STEP-th point
#include <iostream>
#include <map>
#include <memory>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "search/fault_sweep/expectation.h"
#include "search/fault_sweep/long_run.h"
#include "support/program_with_unit.h"
#include "support/state_table.h"

namespace ovl::testing {
namespace {

using enum Fault;
using enum Ending;

constexpr std::size_t kCommandLength = 4;
constexpr int kLongSilence = 8000, kWholeScan = 12000;

// A transfer with a fault. A second program receives the same text without a fault, for comparison.
class FaultyTransfer {
 public:
  FaultyTransfer(const firmware::FirmwareId& firmware, bool upload) : talk_{firmware, upload, {}} {
    Restart();
  }

  std::size_t Length() const { return talk_.Length(); }

  // Returns what is wrong after the fault at this character, or an empty text.
  std::string Check(std::size_t at, Fault fault) {
    if (program_->app.ended) Restart();
    wrong_.clear();
    expected_ = Expect(talk_, at, fault);
    const auto before = program_->app.image;
    const auto file_before = UploadFile();
    Inject(at, fault);
    CheckBoxes(fault);
    CheckFiles(before, file_before);
    const bool whole = fault < kLost || fault > kGarbled;
    if (!talk_.upload && at >= kCommandLength && whole && expected_.ending == kDone)
      Want(program_->taken == talk_.stream, "the unit's stream");
    if (expected_.ending == kBrokenFile) {
      Want(program_->app.ended, "the program goes on");
      return wrong_;
    }
    CheckState(fault);
    CheckReturn(fault);
    NextTransfers();
    return wrong_;
  }
  std::string EndingName() const {
    const bool later = program_->app.ended && expected_.ending != kBrokenFile;
    return std::string(kEndingNames.at(static_cast<std::size_t>(expected_.ending))) +
           (later ? ", its repetition ends the program" : "");
  }

 private:
  void Want(bool met, const std::string& what) {
    if (!met) wrong_.append(wrong_.empty() ? "" : "; ").append(what);
  }
  void ExpectIn(State state) {
    const auto difference = DifferenceFrom(state, program_->app);
    Want(difference.empty(), "not " + std::string(NameOf(state)) + ": " + difference);
  }
  void ExpectFile(const std::string& text, const char* when) {
    Want(UploadFile() == text, std::string("upload.bin ") + when);
  }
  std::string UploadFile() const {
    const auto path = program_->folder.File(talk_.firmware.version + "/upload.bin");
    return std::filesystem::exists(path) ? ReadFile(path) : std::string();
  }

  void Restart() {
    program_ = std::make_unique<ProgramWithUnit>(talk_.firmware);
    reference_ = std::make_unique<ProgramWithUnit>(talk_.firmware);
    talk_.stream = PatternStream(talk_.firmware);
    ChangeStream();
    program_->EnterRemoteMode();
    ExpectIn(State::kHeld);
  }
  // Gives the unit another stream than before an upload.
  void ChangeStream() {
    if (!talk_.upload) return;
    seed_ = seed_ % 3 + 2;
    talk_.stream = PatternStream(talk_.firmware, seed_);
    program_->configuration = talk_.stream + "\r\n";
  }
  void Begin(ProgramWithUnit& program) const { program.Click(talk_.upload ? "CmdUpDow(0)" : "CmdUpDow(1)"); }

  void Inject(std::size_t at, Fault fault) {
    Begin(*program_);
    for (std::size_t passed = 0; passed < at; ++passed)
      Want(program_->Character(), "the conversation stops too early");
    ExpectIn(talk_.upload                                 ? State::kUploading
             : at <= kCommandLength                       ? State::kDownloadCommand
             : at <= talk_.stream.size() + kCommandLength ? State::kDownloadStream
                                                          : State::kTransferDone);
    program_->Character(fault == kDropped   ? ProgramWithUnit::Passing::kDropped
                        : fault == kDoubled ? ProgramWithUnit::Passing::kDoubled
                        : fault == kGarbled ? ProgramWithUnit::Passing::kGarbled
                                            : ProgramWithUnit::Passing::kWhole,
                        GarbleAt(at));
    if (fault == kSilence) program_->Silence();
    if (fault == kStall) program_->Stall();
    if (fault == kLost) program_->Lose();
    program_->Unit(Inserted(fault));
    if (fault >= kDisconnect) {
      const bool done = program_->Click("cmdDisConnect") == core::Outcome::kDone;
      Want(done == (expected_.ending == kDisconnected), "Disconnect");
    }
    program_->UntilQuiet();
    if (fault == kScan) Scan();
    program_->UntilQuiet();
    program_->Live(kLongSilence);
    program_->Mend();
  }
  void Scan() {
    for (const auto* button : {"frmOK_buttom.Command1", "cmdDisConnect", "cmdConnect", "BaudrateCMD"})
      program_->Click(button);
    ExpectIn(State::kScanning);
    program_->Live(kWholeScan);
  }

  void CheckBoxes(Fault fault) {
    const auto ending = expected_.ending;
    const std::pair<bool, const char*> boxes[] = {{expected_.send_failure, kSendBox},
                                                  {ending == kForeign, kForeignBox},
                                                  {ending == kBrokenFile, kBrokenBox},
                                                  {ending == kTimeOut, kFailBox},
                                                  {ending == kParity || expected_.late_parity, kParityBox},
                                                  {fault == kScan && ending != kBrokenFile, kScanBox}};
    for (const auto& [due, text] : boxes) Want(!due || program_->TakeBox().text == text, "box");
    Want(program_->NoBoxLeft(), "one box too many");
    program_->boxes.clear();
  }

  void CheckFiles(const image::ConfigImage& before, const std::string& file_before) {
    ExpectFile(expected_.stored.empty() ? file_before : expected_.stored + "\r\n", "");
    if (talk_.upload && expected_.ending == kDone) {
      ExpectReference(expected_.stored);
    } else {
      Want(program_->app.image == before, "the image has changed");
    }
    Want(program_->app.StreamBuffer == expected_.left, "the rest ahead of the next upload");
    Want((program_->app.FrameState == 1) == !expected_.left.empty(), "FrameState");
  }
  void ExpectReference(const std::string& text) {
    if (text == talk_.stream) Want(core::SectionsToStream(program_->app) == text, "not the stream's image");
    reference_->configuration = text;
    reference_->EnterRemoteMode();
    Begin(*reference_);
    reference_->UntilQuiet();
    reference_->Click("frmOK_buttom.Command1");
    reference_->Click("cmdDisConnect");
    Want(program_->app.image == reference_->app.image, "not the image of the same text without a fault");
  }

  void CheckState(Fault fault) {
    const auto& app = program_->app;
    const auto ending = expected_.ending;
    const bool still = ending == kWaits;
    const bool window = (ending == kDone || ending == kForeign) && fault != kScan;
    ExpectIn(still                              ? State::kDownloadStream
             : window && !expected_.late_parity ? State::kTransferDone
                                                : State::kClosed);
    Want(app.frmOK_buttom.form.visible == window, "closing window");
    const auto* text = ending == kForeign ? "Upload Incompleted."
                       : talk_.upload     ? "Upload Completed."
                                          : "Download Completed.";
    Want(!window || app.frmOK_buttom.Label1.caption == text, "its text");
    const bool shown = still || ending == kTimeOut || ending == kParity;
    Want(app.frmMain.vbalProgressBar1.visible == shown, "progress bar");
    Want(app.frmMain.Label64[talk_.upload ? 1 : 0].visible == shown, "its label");
    Want(!app.DownloadRequested && app.DownloadActive == (still && !expected_.send_failure),
         "download flags");
    Want(app.PanelsReady && !app.UploadApplying, "panels");
  }

  void CheckReturn(Fault fault) {
    auto& app = program_->app;
    if (app.frmOK_buttom.form.visible) {
      program_->Click("frmOK_buttom.Command1");
      ExpectIn(expected_.late_parity ? State::kClosed : State::kOpen);
    }
    if (app.frmMain.MSComm1.PortOpen) {
      Want(fault != kScan, "open after a scan");
      Want(program_->Click("cmdDisConnect") == core::Outcome::kDone, "Disconnect");
      ExpectIn(State::kClosed);
    }
    Want(app.frmMain.form.enabled, "frmMain is disabled");
    program_->Live(1);
  }

  // The next transfer, after the rest of a broken one, and then a clean one.
  void NextTransfers() {
    if (!expected_.left.empty()) {
      const auto left = expected_.left;
      ChangeStream();
      Transfer(left + talk_.stream);
      if (program_->app.ended || !wrong_.empty()) return;
      program_->Click("cmdDisConnect");
    }
    ChangeStream();
    Transfer(talk_.stream);
  }
  void Transfer(const std::string& stored) {
    program_->EnterRemoteMode();
    ExpectIn(State::kHeld);
    Begin(*program_);
    program_->UntilQuiet();
    if (talk_.upload) ExpectFile(stored + "\r\n", "of the next transfer");
    if (talk_.upload && EndingOfLoad(talk_.firmware, stored) == kBrokenFile)
      return Want(program_->TakeBox().text == kBrokenBox && program_->app.ended, "a broken file");
    ExpectIn(State::kTransferDone);
    Want(program_->NoBoxLeft(), "a box in the next transfer");
    if (talk_.upload) {
      ExpectReference(stored);
    } else {
      Want(program_->taken == talk_.stream, "the unit's stream");
      Want(!program_->app.FinalAckExpected, "the final acknowledgement");
    }
    program_->Click("frmOK_buttom.Command1");
    ExpectIn(State::kOpen);
    program_->Click("CmdUpDow(4)");
    program_->Live(400);
    ExpectIn(State::kHeld);
  }

  Conversation talk_;
  std::unique_ptr<ProgramWithUnit> program_, reference_;
  Expectation expected_;
  std::string wrong_;
  int seed_ = 2;
};

struct Totals {
  std::map<std::pair<Fault, std::string>, int> endings;
  std::size_t points = 0, wrong = 0;
};

void Run(const firmware::FirmwareId& firmware, bool upload, std::size_t step, Totals& totals) {
  auto transfer = std::make_unique<FaultyTransfer>(firmware, upload);
  constexpr std::size_t kShown = 20, kFaults = kFaultNames.size();
  for (auto point = totals.points % step; point < transfer->Length() * kFaults; point += step) {
    const auto fault = static_cast<Fault>(point % kFaults);
    const auto wrong = transfer->Check(point / kFaults, fault);
    ++totals.points;
    ++totals.endings[{fault, transfer->EndingName()}];
    if (wrong.empty()) continue;
    if (++totals.wrong <= kShown) {
      std::cout << firmware.Joined() << (upload ? " upload" : " download") << " character " << point / kFaults
                << ' ' << kFaultNames.at(point % kFaults) << ": " << wrong << std::endl;
    }
    transfer = std::make_unique<FaultyTransfer>(firmware, upload);
  }
}

int RunAll(std::size_t step) {
  const StopWatch watch;
  Totals totals;
  for (const auto& firmware : kStreamForms) {
    for (const bool upload : {true, false}) Run(firmware, upload, step, totals);
  }
  for (const auto& [what, count] : totals.endings) {
    const auto& [fault, ending] = what;
    std::cout << kFaultNames.at(static_cast<std::size_t>(fault)) << ": " << ending << ' ' << count << '\n';
  }
  std::cout << totals.points << " points, " << totals.wrong << " wrong, " << watch.Text() << '\n';
  return totals.wrong == 0 && totals.points > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace ovl::testing

int main(int count, char** words) {
  const auto step = ovl::testing::NumberIn(count, words, 1, 1);
  return ovl::testing::RunAll(step < 1 ? 1 : static_cast<std::size_t>(step));
}
