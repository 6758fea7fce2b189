#include "link/states.h"

namespace ovl::testing {
namespace {

using enum State;

constexpr const char* kLost = "Input/output error";

const Words kNoBox;
const Words kNoPort = {"", "        Please Select Comport."};
const Words kParity = {"", "Check Parity and Data Bit Setting that Same OVL ,Try again !!!"};
const Words kTimedOut = {"- Connection Time Out -", "!!! Remote Connection Time out. !!!"};
const Words kForeign = {"",
                        "The Ovalon Version is not compatible !!!\n       Try with the same version again."};
const Words kBroken = {"", "                System File Error. \nPlease ReInstall Ovalon PC Software !!"};
const Words kClockSet = {"", "SET TIME DATE FINISHED."};
const Words kClockRefused = {"", "Please Send Time Date agian."};
const Words kResetFailed = {"", "Cannot Master Reset to Device."};
const Words kNotOpened = {"", std::string(11, ' ') + kLost};
const Words kEnqLost = {"", kLost};
const Words kSendLost = {"", std::string(23, ' ') + kLost};

struct Transition {
  const char* name;
  State from;
  std::vector<Act> acts;
  State to;
  int link_mode;
  std::string sent;
  Words box;
};

void SelectAnother(InState& program) {
  EXPECT_EQ(program.Pick("ComboReg", 1), Outcome::kDone);
}

void CloseTheScan(InState& program) {
  Dispatch(program.app, CloseEvent{&program.app.frmScanBProgress.form});
}

// A click begins the watchdog's count anew, also when its command has not gone out yet.
void ClickAmidSilence(InState& program) {
  for (const auto* button : {"CmdUpDow(3)", "CmdUpDow(5)", "CmdUpDow(0)"}) {
    program.Tick(program.app.frmMain.Timer_Operating, kSilence - 1);
    program.Click(button);
  }
  program.Tick(program.app.frmMain.Timer_Operating, kSilence - 1);
}

void Lose(InState& program) {
  program.line_error = program.open_error = kLost;
}

// What the acts before it have sent, told and broken is not the row's.
void Forget(InState& program) {
  program.TakeSent();
  program.boxes.clear();
  program.line_error = program.open_error = std::nullopt;
}

std::vector<Transition> Rows() {
  const auto silence = Ticks(&MainForm::Timer_Operating, kSilence);
  const auto time_out = Ticks(&MainForm::Time_handcheck, kTimeOut);
  const auto enq_due = Ticks(&MainForm::Time_handcheck, kEnqAt);
  const auto grant_due = Ticks(&MainForm::General_timer, 1);
  const auto disconnect = Press("cmdDisConnect"), ok = Press("frmOK_buttom.Command1");
  const auto remote = Press(kRemoteButton), upload = Press("CmdUpDow(0)"), download = Press("CmdUpDow(1)");
  const auto ack = Arrives(kAck), nak = Arrives(kNak), garbled = Arrives("?"), noise = Arrives("x");
  const auto stream = [](const FirmwareId& firmware) { return Arrives(PatternStream(firmware, 2)); };
  const auto drained = [](InState& program) { program.Drain(1); };
  const auto open = &InState::OpenPort, scan = &InState::Scan;
  return {
      {"a good port", kClosed, {open}, kOpen, 255, "", kNoBox},
      {"a lost port", kClosed, {Lose, open}, kClosed, 255, "", kNotOpened},
      {"a port found again", kClosed, {Lose, open, Forget, open}, kOpen, 255, "", kNoBox},
      {"no port to ask on", kClosed, {remote}, kClosed, 255, "", kNoPort},
      {"asked", kOpen, {remote}, kAsked, 0, kRequest, kNoBox},
      {"granted", kAsked, {ack, grant_due}, kHeld, 0, "", kNoBox},
      {"refused", kAsked, {nak}, kClosed, 255, kCan, kFail},
      {"garbled", kAsked, {SelectAnother, garbled}, kClosed, 255, kCan, kParity},
      {"no grant but noise", kAsked, {noise, grant_due}, kClosed, 255, kCan, kFail},
      {"left", kHeld, {remote}, kOpen, 255, "\x18\x18", kNoBox},
      {"held, refused", kHeld, {nak}, kClosed, 255, kCan, kFail},
      {"asked whether there", kHeld, {enq_due}, kHeld, 0, "\x05", kNoBox},
      {"no answer", kHeld, {time_out}, kClosed, 0, "\x05", kTimedOut},
      {"lost device asked", kHeld, {Lose, enq_due}, kHeld, 0, "", kEnqLost},

      {"upload", kHeld, {upload}, kUploading, 1, "/LU\r", kNoBox},
      {"upload over a lost device", kHeld, {Lose, upload}, kUploading, 1, "", kSendLost},
      {"upload silent", kUploading, {silence}, kClosed, 255, "", kFail},
      {"upload garbled", kUploading, {garbled}, kClosed, 255, kCan, kParity},
      {"upload, closed by hand", kUploading, {disconnect}, kClosed, 1, kCan, kNoBox},
      {"uploaded", kUploading, {stream(kV1400), ok}, kOpen, 255, "", kNoBox},
      {"upload of another family", kUploading, {stream(kV1300)}, kTransferDone, 1, "", kForeign},
      {"upload without its end", kUploading, {stream({"V1400", "R4"})}, kUploading, 1, "", kBroken},

      {"download", kHeld, {download}, kDownloadCommand, 2, "/LD\r", kNoBox},
      {"download silent", kDownloadCommand, {silence}, kClosed, 255, "", kFail},
      {"download let in", kDownloadCommand, {ack}, kDownloadStream, 2, "$", kNoBox},
      {"lost when let in", kDownloadCommand, {Lose, ack}, kDownloadCommand, 2, "", kSendLost},
      {"lost in the stream", kDownloadStream, {Lose, drained}, kDownloadStream, 2, "", kSendLost},
      {"download, closed by hand", kDownloadStream, {disconnect}, kClosed, 2, kCan, kNoBox},
      {"download confirmed", kTransferDone, {ack, ok}, kOpen, 255, "", kNoBox},
      {"its last ACK missing", kTransferDone, {ok, disconnect}, kClosed, 255, kCan, kNoBox},

      {"clock set", kSettingClock, {noise, ack}, kOpen, 0, "", kClockSet},
      {"clock refused", kSettingClock, {nak}, kClosed, 255, kCan, kFail},
      // The flag that a refusal leaves behind takes the next answer for its own.
      {"then set", kSettingClock, {nak, open, remote, Forget, ack, grant_due}, kOpen, 0, "", kClockSet},
      {"then refused", kSettingClock, {nak, open, Forget, nak}, kOpen, 255, "", kClockRefused},

      {"history", kHeld, {Press("CmdUpDow(3)")}, kReadingHistory, 0, "/LH\r\n\r", kNoBox},
      {"history read", kReadingHistory, {ack}, kOpen, 0, "", kNoBox},
      {"reset", kHeld, {Press("CmdUpDow(5)")}, kResetting, 0, "/MR\r\n\r", kNoBox},
      {"reset done", kResetting, {ack}, kOpen, 0, "", {"", "       Master Reset Done."}},
      {"reset failed", kResetting, {noise}, kOpen, 0, "", kResetFailed},
      {"reset failed in an upload", kResetting, {upload, noise}, kOpen, 1, "/LU\r", kResetFailed},
      {"clicks amid silence", kSettingClock, {ClickAmidSilence}, kUploading, 1, "///", kNoBox},

      {"unit found", kScanning, {garbled, nak, ack}, kHeld, 0, "", kNoBox},
      {"scan over a lost port", kClosed, {Lose, scan}, kClosed, 255, "", kNotOpened},
      {"scan cancelled", kScanning, {Press("frmScanBProgress.Command1")}, kClosed, 0, kCan, kNoBox},
      {"scan closed", kScanning, {CloseTheScan}, kOpen, 0, "", kNoBox},
      // A scan finds the unit only where the last link was asked for and did not fail.
      {"scan after a time-out", kHeld, {time_out, Forget, scan, ack}, kHeld, 0, kRequest, kNoBox},
      {"scan after a failure", kHeld, {nak, Forget, scan, ack}, kScanning, 255, kRequest, kNoBox},
  };
}

TEST(Transitions, EveryRowLeadsWhereItShould) {
  for (const auto& row : Rows()) {
    SCOPED_TRACE(row.name);
    InState program(row.from, kV1400, {"TCPIP"});
    ExpectState(program.app, row.from);
    for (const auto& act : row.acts) act(program);
    ExpectState(program.app, row.to);
    EXPECT_EQ(program.app.LinkMode, row.link_mode);
    EXPECT_EQ(program.TakeSent(), row.sent);
    ExpectBox(program, row.box);
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.app.StatusNote, program.line_error ? std::string("Comport 1: ") + kLost : "");
    EXPECT_FALSE(program.app.FinalAckExpected);
    EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "GENERIC");
    EXPECT_EQ(program.app.UploadApplying, program.app.ended);
    EXPECT_EQ(program.app.ended, row.box.text == kBroken.text);
  }
}

TEST(Hints, ThePointerOverATransferShowsItsOwn) {
  InState program(kHeld);
  const auto& pictures = program.app.frmMain.Picture1;
  const std::pair<const char*, int> moves[] = {{"CmdUpDow(0)", 1}, {"CmdUpDow(1)", 2}, {"CmdUpDow(4)", 0},
                                               {"CmdUpDow(1)", 2}, {"Frame11", 0},     {"CmdUpDow(0)", 1},
                                               {"Frame11", 0}};
  for (const auto& [name, picture] : moves) {
    Dispatch(program.app, PointEvent{program.app.registry.Find(name)->control});
    EXPECT_EQ((pictures[1].visible ? 1 : 0) + (pictures[2].visible ? 2 : 0), picture) << name;
  }
}

}  // namespace
}  // namespace ovl::testing
