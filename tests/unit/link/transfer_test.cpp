#include "core/failure.h"
#include "unit/link/states.h"

namespace ovl::testing {
namespace {

std::string UploadFile(const Harness& program) {
  return program.folder.File(program.app.firmware.version + "/upload.bin");
}

TEST(Upload, SelectsTheRegisterOfTheUnitWithoutItsDefaultImage) {
  InState program(State::kUploading, kV1400, {"TCPIP"});
  const auto stream = PatternStream(kV1400, 7, 1);
  EXPECT_EQ(program.Pick("ComboExcp(0)", 1), core::Outcome::kDone);
  program.Unit("#\r\nnoise" + stream + "\r\n");
  EXPECT_EQ(program.app.frmMain.ComboReg.Text(), "TCPIP");
  EXPECT_EQ(program.app.frmMain.ComboExcp[0].position, 0);
  EXPECT_TRUE(ReadFile(UploadFile(program)) == stream + "\r\n");
  program.Press("frmOK_buttom.Command1");
  program.Hold();
  program.app.frmMain.OpDVR.chosen = -1;
  EXPECT_TRUE(program.Download() == stream);
}

TEST(ProgressBar, StartsAgainAfterABreakAndStopsAtItsEnd) {
  InState program(State::kDownloadStream);
  const auto& bar = program.app.frmMain.vbalProgressBar1;
  program.Drain(200);
  for (const auto& [button, full] : {std::pair("CmdUpDow(0)", "100%"), std::pair("CmdUpDow(1)", "1%")}) {
    program.Unit("?");
    program.TakeBox();
    program.OpenPort();
    program.Hold();
    program.Press(button);
    program.Unit("noise$" + std::string(51, '0') + kAck);
    program.Drain(51);
    EXPECT_EQ(bar.text, "1%") << button;
    program.Unit(std::string(15300, '0'));
    EXPECT_EQ(bar.text, full) << button;
  }
}

TEST(Upload, AFailureInsideStopsItUntilTheWatchdogEndsIt) {
  for (const std::string_view fault : {"no file", "no file, with the second register", "a panel"}) {
    SCOPED_TRACE(fault);
    const bool no_file = fault != "a panel";
    InState program(State::kUploading, kV1400, {"TCPIP"});
    auto& app = program.app;
    if (fault.ends_with("register")) program.Pick("ComboReg", 1);
    if (no_file) {
      std::filesystem::create_directories(UploadFile(program) + "/inside");
    } else {
      app.Setting_Code.push_back(
          {[](core::Application&) { throw core::Failure("panel", "broken"); }, core::ApplyWhen::kAfterLoad});
    }
    const auto image = app.image;
    program.Unit(PatternStream(kV1400, 7));
    EXPECT_EQ(app.frmMain.vbalProgressBar1.text == "100%", !no_file);
    EXPECT_EQ(app.StatusNote, no_file ? app.CurrentFilePath + ": Is a directory" : "panel: broken");
    EXPECT_FALSE(app.frmOK_buttom.form.visible);
    EXPECT_EQ(app.frmMain.ComboReg.position, 1);
    EXPECT_EQ(app.image == image, no_file);
    EXPECT_TRUE(app.PanelsReady && !app.UploadApplying);
    EXPECT_EQ(RunningTimers(app), "Timer_Operating");
    EXPECT_EQ(std::to_string(app.FrameState) + app.StreamBuffer, "0");
    program.Tick(app.frmMain.Timer_Operating, kSilence);
    EXPECT_EQ(program.TakeBox().text, kFailBox);
    ExpectState(app, State::kClosed);
  }
}

TEST(UnknownFamily, ChangesNoFileAndSendsNothing) {
  InState program(State::kUploading, {"V1500", "R1"});
  auto& app = program.app;
  WriteFile(UploadFile(program), "kept");
  const auto entry = app.image[image::FieldId::EXECENTRY], type = app.image[image::FieldId::REGTYPE];
  program.Unit(PatternStream(kV1400, 7));
  EXPECT_EQ(app.frmOK_buttom.Label1.caption, "Upload Completed.");
  EXPECT_TRUE(app.PanelsReady && !app.UploadApplying);
  EXPECT_EQ(ReadFile(UploadFile(program)), "kept");
  EXPECT_EQ(std::pair(app.image[image::FieldId::EXECENTRY], app.image[image::FieldId::REGTYPE]),
            std::pair(entry, type));
  program.Press("frmOK_buttom.Command1");
  program.Hold();
  EXPECT_EQ(program.Download(), "");
  ExpectState(app, State::kDownloadCommand);
  program.Tick(app.frmMain.Timer_Operating, kSilence);
  EXPECT_EQ(program.TakeBox().text, kFailBox);
}

TEST(Download, SendsTheRecorderIdsOfThePanelInTheOlderFamilies) {
  struct Row {
    int recorder;              // chosen
    std::array<int, 4> lists;  // their positions
    // The digits of the three fields in the stream; empty: as the image has them.
    std::string recorder_byte, destination, source;
  };
  const Row rows[] = {
      {0, {1, 2, 3, 4}, "00", "", ""},       {1, {6, 31, 3, 4}, "01", "07", "20"},
      {2, {6, 31, 0, 15}, "02", "01", "10"}, {1, {-1, 0, 7, 7}, "01", "", "01"},
      {2, {4, 4, 9, -1}, "02", "0A", ""},    {-1, {1, 2, 3, 4}, "", "", ""},
  };
  constexpr std::size_t kPlace = 5 + 2 * 29, kByte = 2, kRecord = 71;
  for (const auto& firmware : {kV1300, {"V1324", "R17"}, {"V1310", "R1"}, {"V1334", "R1"}, kV1400}) {
    for (const auto& row : rows) {
      SCOPED_TRACE(firmware.Joined() + " with recorder " + std::to_string(row.recorder));
      InState program(State::kHeld, firmware);
      auto& main = program.app.frmMain;
      main.OpDVR.chosen = row.recorder;
      for (std::size_t list = 0; list < 4; ++list) main.ComboKLM4011[list].position = row.lists[list];
      auto expected = PatternStream(firmware).substr(0, kRecord);
      auto place = kPlace;
      for (const auto& byte : {row.recorder_byte, row.destination, row.source}) {
        if (!firmware.IsV1400()) expected.replace(place, byte.size(), byte);
        place += kByte;
      }
      EXPECT_EQ(program.Download().substr(0, kRecord), expected);
    }
  }
}

TEST(TransferEnd, ItsWindowComesToTheTopWhenTheBarIsFull) {
  InState program(State::kUploading);
  const auto& bar = program.app.frmMain.vbalProgressBar1;
  std::string on_top;
  program.app.platform.SetWindowPos = [&](std::string_view form) {
    on_top += std::string(form) + " over " + std::to_string(bar.value) + " " + bar.text + ", ";
  };
  program.Unit(PatternStream(kV1400, 7));
  program.Press("frmOK_buttom.Command1");
  program.Hold();
  program.Download();
  EXPECT_EQ(on_top, "frmOK_buttom over 100 100%, frmOK_buttom over 100 100%, ");
  EXPECT_TRUE(program.app.frmOK_buttom.form.top_most);
}

}  // namespace
}  // namespace ovl::testing
