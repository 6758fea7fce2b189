#include <gtest/gtest.h>

#include "core/failure.h"
#include "image/files.h"
#include "link/states.h"

namespace ovl::testing {
namespace {

namespace fs = std::filesystem;

const FirmwareId kV1400 = {"V1400", "R12"};
const FirmwareId kV1300 = {"V1300", "R14"};
constexpr int kCharactersPerStep = 51;

constexpr const char* kIncompatible =
    "The Ovalon Version is not compatible !!!\n       Try with the same version again.";
constexpr const char* kFileError =
    "                System File Error. \nPlease ReInstall Ovalon PC Software !!";

std::string UploadFile(const Harness& program) {
  return program.folder.File(program.app.firmware.version + "/upload.bin");
}

// What a download of the image as it stands sends, the recorder's panel left out of it.
std::string ImageOf(Harness& program) {
  program.app.frmMain.OpDVR.chosen = -1;
  return RunDownload(program);
}

void ExpectTransferGone(const Application& app) {
  const auto& main = app.frmMain;
  EXPECT_FALSE(main.vbalProgressBar1.visible);
  EXPECT_EQ(main.vbalProgressBar1.value, 0);
  EXPECT_EQ(main.vbalProgressBar1.text, "");
  EXPECT_FALSE(main.Label64[0].visible);
  EXPECT_FALSE(main.Label64[1].visible);
  EXPECT_EQ(app.ProgressChars, 0);
  EXPECT_EQ(app.ProgressValue, 0);
  EXPECT_FALSE(app.DownloadRequested);
  EXPECT_FALSE(app.DownloadActive);
}

void ExpectEnd(Harness& program, std::string_view text) {
  const auto& app = program.app;
  EXPECT_TRUE(app.frmOK_buttom.form.visible);
  EXPECT_EQ(app.frmOK_buttom.Label1.caption, text);
  EXPECT_FALSE(app.frmMain.form.enabled);
  EXPECT_TRUE(app.PanelsReady);
  EXPECT_FALSE(app.UploadApplying);
  EXPECT_EQ(app.StreamBuffer, "");
  ExpectState(app, State::kTransferDone);
  ExpectTransferGone(app);
}

void ExpectBar(const ProgressBar& bar, std::size_t characters) {
  const auto steps = static_cast<int>(characters) / kCharactersPerStep;
  ASSERT_EQ(bar.value, steps) << "after " << characters;
  ASSERT_TRUE(bar.text.empty() || bar.text == std::to_string(steps) + "%") << bar.text;
}

TEST(Upload, TakesTheUnitsWholeConfiguration) {
  const std::vector<FirmwareId> firmwares = {kV1400, {"V1400", "R4"}, kV1300, {"V1334", "R1"}};
  for (const auto& firmware : firmwares) {
    SCOPED_TRACE(firmware.Joined());
    InState program(State::kHeld, firmware);
    WriteWhole(UploadFile(program), "an older and longer text\r\n" + PatternStream(firmware, 5) + "\r\n");
    const auto stream = PatternStream(firmware, 7);
    RunUpload(program, "#\r\nnoise" + stream + "\r\n");

    ExpectEnd(program, "Upload Completed.");
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_EQ(program.TakeSent(), "");
    EXPECT_TRUE(ReadWhole(UploadFile(program)) == stream + "\r\n");
    EXPECT_TRUE(fs::equivalent(program.app.CurrentFilePath, UploadFile(program)));

    PressOk(program);
    ExpectState(program.app, State::kOpen);
    Hold(program);
    EXPECT_TRUE(ImageOf(program) == stream);
  }
}

TEST(Upload, SelectsTheUnitsRegisterWithoutItsDefaults) {
  InState program(State::kHeld, kV1400, {"TCPIP"});
  const auto stream = PatternStream(kV1400, 7, 1);
  RunUpload(program, stream);
  ExpectEnd(program, "Upload Completed.");
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "TCPIP");
  PressOk(program);
  Hold(program);
  EXPECT_TRUE(ImageOf(program) == stream);
}

TEST(Upload, CountsAStepForEveryFiftyOneCharacters) {
  InState program(State::kUploading);
  const auto& bar = program.app.frmMain.vbalProgressBar1;
  const auto stream = PatternStream(kV1400, 7);
  program.Unit("noise$");
  for (std::size_t count = 1; count + 1 < stream.size(); ++count) {
    program.Unit(stream.substr(count, 1));
    ExpectBar(bar, count);
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(bar.value, 90);
}

TEST(Upload, NeverCountsAboveTheEndOfTheBar) {
  InState program(State::kUploading);
  const auto& bar = program.app.frmMain.vbalProgressBar1;
  program.Unit("$" + std::string(100 * kCharactersPerStep, '0'));
  EXPECT_EQ(bar.value, 100);
  program.Unit(std::string(200 * kCharactersPerStep, '0'));
  EXPECT_EQ(bar.value, 100);
  ExpectState(program.app, State::kUploading);
}

TEST(Upload, IsCollectedOnlyWhileRemoteModeIsHeld) {
  InState program(State::kUploading);
  const auto stream = PatternStream(kV1400, 7);
  program.Unit(stream + PatternStream(kV1400, 8));
  EXPECT_EQ(program.app.LinkMode, 1);
  EXPECT_EQ(program.app.FrameState, 0);
  EXPECT_TRUE(ReadWhole(UploadFile(program)) == stream + "\r\n");
}

TEST(Upload, OfAnotherFamilyLeavesTheImageAlone) {
  const std::vector<std::pair<FirmwareId, FirmwareId>> pairs = {
      {kV1300, kV1400}, {kV1400, kV1300}, {{"V1334", "R1"}, kV1300}};
  for (const auto& [ours, units] : pairs) {
    SCOPED_TRACE(ours.Joined());
    InState program(State::kHeld, ours);
    const auto image = program.app.image;
    const auto stream = PatternStream(units, 7);
    RunUpload(program, stream);
    ExpectBox(program, "", kIncompatible);
    EXPECT_TRUE(program.NoBoxLeft());
    ExpectEnd(program, "Upload Incompleted.");
    EXPECT_TRUE(program.app.image == image);
    EXPECT_TRUE(ReadWhole(UploadFile(program)) == stream + "\r\n");
    PressOk(program);
    ExpectState(program.app, State::kOpen);
  }
}

TEST(Upload, WithoutTheEndOfItsRegionEndsTheProgram) {
  const std::vector<std::pair<FirmwareId, FirmwareId>> pairs = {{{"V1400", "R4"}, kV1400},
                                                                {kV1400, {"V1400", "R4"}}};
  for (const auto& [ours, units] : pairs) {
    SCOPED_TRACE(ours.Joined());
    InState program(State::kHeld, ours);
    RunUpload(program, PatternStream(units, 7));
    ExpectBox(program, "", kFileError);
    EXPECT_TRUE(program.app.ended);
    EXPECT_EQ(program.Click("CmdUpDow(4)"), Outcome::kEnded);
    EXPECT_FALSE(program.app.frmOK_buttom.form.visible);
  }
}

// The digits of a stream, without heads and line ends.
std::string DigitsOf(const std::string& stream) {
  std::string digits;
  for (auto head = stream.find('$'); head != std::string::npos; head = stream.find('$', head + 1)) {
    const auto end = stream.find_first_of("\r#", head);
    digits += stream.substr(head + 5, end - head - 5);
  }
  return digits;
}

TEST(Upload, RepeatedAfterABreakStandsBehindTheFirstTry) {
  InState program(State::kUploading);
  const auto first = PatternStream(kV1400, 7).substr(0, 20 * 71);
  const auto second = PatternStream(kV1400, 9);
  program.Unit(first);
  program.Tick(program.app.frmMain.Timer_Operating, kSilence);
  ExpectBox(program, kFailTitle, kFailText);
  ExpectState(program.app, State::kClosed);
  EXPECT_EQ(program.app.FrameState, 1);
  EXPECT_TRUE(program.app.StreamBuffer == first);
  EXPECT_TRUE(program.app.frmMain.vbalProgressBar1.visible);

  OpenPort(program);
  Hold(program);
  RunUpload(program, second);
  ExpectEnd(program, "Upload Completed.");
  EXPECT_TRUE(ReadWhole(UploadFile(program)) == first + second + "\r\n");
  PressOk(program);
  Hold(program);
  // Behind the exceptions the digits are out of step, and the panels put in order what they show of them.
  constexpr std::size_t kBeforeTriggers = 2900;
  EXPECT_EQ(DigitsOf(ImageOf(program)).substr(0, kBeforeTriggers),
            DigitsOf(first + second).substr(0, kBeforeTriggers));
}

TEST(Upload, ThatFailsInsideStopsUntilTheWatchdogEndsIt) {
  for (const bool no_file : {true, false}) {
    SCOPED_TRACE(no_file ? "no file to keep it in" : "a panel that cannot show it");
    InState program(State::kHeld, kV1400, {"TCPIP"});
    auto& app = program.app;
    const auto image = app.image;
    if (no_file) {
      fs::create_directories(UploadFile(program) + "/inside");
    } else {
      app.Setting_Code.push_back({[](Application&) { throw Failure("panel", "broken"); }, false});
    }
    RunUpload(program, PatternStream(kV1400, 7));
    EXPECT_TRUE(program.NoBoxLeft());
    EXPECT_FALSE(app.frmOK_buttom.form.visible);
    EXPECT_EQ(app.frmMain.ComboReg.position, 1);
    EXPECT_EQ(app.image == image, no_file);
    EXPECT_TRUE(app.PanelsReady);
    EXPECT_FALSE(app.UploadApplying);
    EXPECT_EQ(RunningTimers(app), "Timer_Operating");
    EXPECT_EQ(app.FrameState, 0);
    program.Tick(app.frmMain.Timer_Operating, kSilence);
    ExpectBox(program, kFailTitle, kFailText);
    ExpectState(app, State::kClosed);
  }
}

TEST(Upload, OfAnUnknownFamilyTouchesNoFile) {
  const FirmwareId unknown = {"V1500", "R1"};
  InState program(State::kHeld, unknown);
  WriteWhole(UploadFile(program), "kept");
  const auto image = program.app.image;
  RunUpload(program, PatternStream(kV1400, 7));
  ExpectEnd(program, "Upload Completed.");
  EXPECT_EQ(ReadWhole(UploadFile(program)), "kept");
  EXPECT_EQ(program.app.image[FieldId::EXECENTRY], image[FieldId::EXECENTRY]);
  EXPECT_EQ(program.app.image[FieldId::REGTYPE], image[FieldId::REGTYPE]);
}

TEST(Download, SendsTheImageInRecordsAndNothingElse) {
  const std::vector<FirmwareId> firmwares = {
      kV1400, {"V1400", "R4"}, {"V1400", "R7"}, kV1300, {"V1334", "R1"}};
  for (const auto& firmware : firmwares) {
    SCOPED_TRACE(firmware.Joined());
    InState program(State::kHeld, firmware);
    EXPECT_TRUE(ImageOf(program) == PatternStream(firmware));
    ExpectEnd(program, "Download Completed.");
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(Download, GoesOutOneCharacterForEachDrainedEvent) {
  InState program(State::kHeld);
  const auto& bar = program.app.frmMain.vbalProgressBar1;
  const auto stream = PatternStream(kV1400);
  Press("CmdUpDow(1)")(program);
  program.TakeSent();
  program.Unit(kAck);
  for (std::size_t count = 0; count < stream.size(); ++count) {
    ASSERT_EQ(program.TakeSent(), stream.substr(count, 1)) << count;
    ExpectBar(bar, count);
    if (HasFatalFailure()) return;
    program.Drain(1);
  }
  ExpectState(program.app, State::kTransferDone);
  program.Drain(2);
  EXPECT_EQ(program.TakeSent(), "");
}

TEST(Download, StartsOnceAndOnlyWhileRemoteModeIsHeld) {
  InState program(State::kDownloadCommand);
  program.Unit(kAck);
  program.Drain(100);
  program.Unit(kAck);
  program.Drain(100);
  program.Unit(std::string("noise") + kAck);
  program.DrainAll();
  EXPECT_TRUE(program.TakeSent() == PatternStream(kV1400));
  ExpectState(program.app, State::kTransferDone);

  for (int acknowledgement = 0; acknowledgement < 3; ++acknowledgement) {
    program.Unit(kAck);
    program.DrainAll();
    ExpectState(program.app, State::kTransferDone);
  }
  PressOk(program);
  program.Unit(kAck);
  program.DrainAll();
  ExpectState(program.app, State::kOpen);
  EXPECT_EQ(program.TakeSent(), "");
}

TEST(Download, CanBeRepeatedWithoutItsLastAcknowledgement) {
  InState program(State::kTransferDone);
  EXPECT_TRUE(program.app.FinalAckExpected);
  PressOk(program);
  Disconnect(program);
  EXPECT_FALSE(program.app.FinalAckExpected);
  OpenPort(program);
  program.TakeSent();
  Hold(program);
  EXPECT_TRUE(RunDownload(program) == PatternStream(kV1400));
}

TEST(Download, TakesTheHistoryIdsFromThePanelInTheOlderFamilies) {
  struct Row {
    int chosen;
    std::array<int, 4> lists;
    std::string fields;  // recorder, destination, source; two blanks: as it was
  };
  const std::vector<Row> rows = {{0, {1, 2, 3, 4}, "00    "},   {1, {6, 31, 3, 4}, "010720"},
                                 {2, {6, 31, 0, 15}, "020110"}, {1, {-1, 4, 7, 7}, "01  05"},
                                 {2, {4, 4, 9, -1}, "020A  "},  {-1, {1, 2, 3, 4}, "      "}};
  const std::vector<FirmwareId> firmwares = {
      kV1300, {"V1324", "R17"}, {"V1310", "R1"}, {"V1334", "R1"}, kV1400};
  constexpr std::size_t kPlace = 5 + 2 * 29;
  for (const auto& firmware : firmwares) {
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " with " + row.fields);
      InState program(State::kHeld, firmware);
      auto& main = program.app.frmMain;
      main.OpDVR.chosen = row.chosen;
      for (std::size_t list = 0; list < 4; ++list) main.ComboKLM4011[list].position = row.lists[list];
      auto expected = PatternStream(firmware);
      for (std::size_t digit = 0; digit < row.fields.size(); ++digit) {
        if (!firmware.IsV1400() && row.fields[digit] != ' ') expected[kPlace + digit] = row.fields[digit];
      }
      EXPECT_EQ(RunDownload(program).substr(0, 71), expected.substr(0, 71));
    }
  }
}

TEST(Download, SaysItsOwnWordsAfterAnUpload) {
  InState program(State::kHeld);
  RunUpload(program, PatternStream(kV1400, 7));
  PressOk(program);
  Hold(program);
  RunDownload(program);
  ExpectEnd(program, "Download Completed.");
}

TEST(Download, TellsTheReasonWhenTheDeviceIsLost) {
  InState program(State::kDownloadStream);
  program.Drain(100);
  program.TakeSent();
  program.line_error = kLost;
  program.Drain(1);
  ExpectBox(program, "", "                       Input/output error");
  EXPECT_EQ(program.TakeSent(), "");
  Disconnect(program);
  ExpectState(program.app, State::kClosed);
  ExpectTransferGone(program.app);
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(Download, TellsTheReasonWhenTheDeviceIsLostAtItsFirstCharacter) {
  InState program(State::kHeld);
  program.Click("CmdUpDow(1)");
  program.DrainAll();
  program.line_error = kLost;
  program.Unit("\x06");
  ExpectBox(program, "", "                       Input/output error");
  EXPECT_FALSE(program.app.DownloadActive);
  program.Tick(program.app.frmMain.Timer_Operating, kSilence);
  ExpectBox(program, kFailTitle, kFailText);
  ExpectState(program.app, State::kClosed);
}

TEST(Upload, TellsTheReasonWhenTheDeviceIsLostAndEndsInSilence) {
  InState program(State::kHeld);
  program.Click("CmdUpDow(0)");
  program.line_error = kLost;
  program.Drain(1);
  ExpectBox(program, "", "                       Input/output error");
  program.Tick(program.app.frmMain.Timer_Operating, kSilence);
  ExpectBox(program, kFailTitle, kFailText);
  ExpectState(program.app, State::kClosed);
}

TEST(TransferEnd, StaysOnTopAndItsWindowButtonConfirmsToo) {
  InState program(State::kHeld);
  std::vector<std::string> on_top;
  program.app.platform.SetWindowPos = [&](std::string_view form) {
    on_top.emplace_back(form);
    EXPECT_EQ(program.app.frmMain.vbalProgressBar1.value, 100);
    EXPECT_EQ(program.app.frmMain.vbalProgressBar1.text, "100%");
  };
  RunDownload(program);
  EXPECT_EQ(on_top, std::vector<std::string>{"frmOK_buttom"});
  EXPECT_EQ(program.Click("cmdDisConnect"), Outcome::kRefused);
  Dispatch(program.app, CloseEvent{&program.app.frmOK_buttom.form});
  ExpectState(program.app, State::kOpen);
  EXPECT_EQ(program.app.LinkMode, 255);
  EXPECT_TRUE(program.app.frmMain.form.enabled);
  EXPECT_TRUE(program.app.frmMain.cmdConnect.enabled);
}

TEST(Transfer, CanBeCutOffAnywhereAndTriedAgain) {
  struct Row {
    const char* name;
    State from;
    Act act;
    int frame_state;
  };
  const auto drained = [](int count) { return [count](Harness& program) { program.Drain(count); }; };
  const std::vector<Row> rows = {
      {"upload, before the stream", State::kUploading, Arrives("noise"), 0},
      {"upload, at its first character", State::kUploading, Arrives("$"), 1},
      {"upload, inside", State::kUploading, Arrives(PatternStream(kV1400, 7).substr(0, 1500)), 1},
      {"download, inside the command", State::kHeld, [](Harness& program) { program.Click("CmdUpDow(1)"); },
       0},
      {"download, before the stream", State::kDownloadCommand, Arrives("noise"), 0},
      {"download, at its first character", State::kDownloadStream, Arrives(""), 0},
      {"download, inside", State::kDownloadStream, drained(1500), 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    InState program(row.from);
    row.act(program);
    program.TakeSent();
    Disconnect(program);
    EXPECT_EQ(program.TakeSent(), kCan);
    ExpectState(program.app, State::kClosed);
    ExpectTransferGone(program.app);
    EXPECT_EQ(program.app.PendingOutput, "");
    EXPECT_EQ(program.app.FrameState, row.frame_state);

    OpenPort(program);
    program.Unit(kAck);
    program.DrainAll();
    EXPECT_EQ(program.TakeSent(), "");
    EXPECT_FALSE(program.app.RemoteHeld);
    Hold(program);
    EXPECT_TRUE(RunDownload(program) == PatternStream(kV1400));
  }
}

}  // namespace
}  // namespace ovl::testing
