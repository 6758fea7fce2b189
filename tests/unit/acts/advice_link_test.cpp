// When the program advises on the link and its transfers.
#include <gtest/gtest.h>

#include "unit/acts/advice_rows.h"

namespace ovl::testing {
namespace {

TEST(AdviceOnTheLink, NamesABrokenUploadUntilTheProgramStartsAnew) {
  const char* broke = "An upload stopped before its end. The program keeps what it received";
  const AdviceRow rows[] = {
      {"upload-broke", kHalfUpload + "tick Timer_Operating 6\n", broke, "Restart", "start\n"},
      {"upload-broke", kHalfUpload + "click cmdDisConnect\n", broke, "Restart", "start\n"},
      {"upload-broke", kHalfUpload + "unit \"?\"\n" + kOpenPort + kHold, broke, "Restart", "start\n"},
      {"upload-mixed", kMixture, "The tabs show a mixture", "Restart", kHold + kUpload + "unit \"STREAM\"\n"},
      {"upload-mixed", kMixture, "Do not download it.", "Restart", "undo\n"},
      {"upload-mixed", kMixture, "Do not download it.", "Restart", "answer \"IMAGE\"\nclick OpenMenu\n"},
  };
  for (const auto& row : rows) Expect(row);
}

// What a failure of the line leaves in the register list.
TEST(AdviceOnTheLink, SaysWhatAFailureDidToTheRegister) {
  const std::string ads = "pick ComboReg \"ADS\"\n";
  Expect({"register-reset", ads + "click cmdConnect\nclick cmdSET\nclick CmdUpDow(4)\nunit \"?\"\n",
          "so the program changed the register to GENERIC, with its options and its line settings. Undo "
          "restores ADS.",
          "Undo", "undo\n"});
  AdviceProgram program(kLatest);
  program.App().platform.files.replace = [](const std::string& path, std::string_view) {
    throw core::Failure(path, std::make_error_code(std::errc::no_space_on_device));
  };
  program.Run(ads + kOpenPort + kHold + kUpload + "unit \"STREAM\"\n");
  const auto words = program.Line("upload-not-taken").words.English();
  EXPECT_NE(words.find("The list shows "), std::string::npos) << words;
  EXPECT_NE(words.find("the configuration is still that of ADS"), std::string::npos) << words;
  EXPECT_EQ(program.Line("pick-swallowed").words, "");
  program.Run(ads + "expect no advice \"not taken\"\n");
}

TEST(AdviceOnTheLink, NamesTheLostDeviceAndWhatTheUnitHolds) {
  const char* lost =
      "Comport 1, simulated line, was lost at 14:07:09 (No such device). The unit is unchanged. Plug "
      "the device in again. Then press Disconnect, Set Comport, SET, Remote.";
  const std::string scan = "click cmdConnect\nclick BaudrateCMD\n";
  const AdviceRow rows[] = {
      {"device-lost", kOpenPort + kLose, lost, "Disconnect", kConnectAgain},
      {"device-lost", kOpenPort + kHold + kLose, lost, "Disconnect", kConnectAgain},
      {"device-lost", kOpenPort + kLose + "click cmdDisConnect\n", "Then press Set Comport, SET, Remote.",
       "Set Comport", "port ok\n" + kOpenPort},
      {"device-lost", kOpenPort + kHold + kUpload + kLose,
       " during the upload. The unit is unchanged, and the tabs show nothing of the upload. Plug the device "
       "in again. "
       "Then press Disconnect, Set Comport, SET, Remote, Upload.",
       "Disconnect", kConnectAgain},
      {"device-lost", kHalfUpload + kLose + "tick Timer_Operating 6\n",
       "Plug the device in again and restart the program. Then press Set Comport,", "Set Comport",
       "port ok\n" + kOpenPort},
      {"device-lost", kOpenPort + kHold + "click CmdUpDow(1)\n" + kLose,
       " before the download began. The unit has its old configuration.", "Disconnect", kConnectAgain},
      {"device-lost", kOpenPort + kHold + kDownload + "drain 300\nport unplug\ndrain\n",
       " during the download. The unit may have half a configuration, so download again. Plug the device in "
       "again. Then "
       "press Disconnect, Set Comport, SET, Remote, Download.",
       "Disconnect", kConnectAgain},
      {"device-lost", scan + kLose, " during the scan. The unit is unchanged.", "Cancel",
       "port ok\nclick frmScanBProgress.Command1\n" + kOpenPort},
      {"device-lost", scan + "port unplug\ntick BaudRateScan 11\n",
       "(No such file or directory) during the scan. The unit is unchanged.", "Set Comport",
       "port ok\n" + kOpenPort},
  };
  for (const auto& row : rows) Expect(row);
}

TEST(AdviceOnTheLink, ALossThatIsNoNewsIsNotTimedAnew) {
  AdviceProgram program(kLatest);
  program.Run(kAt + kOpenPort + kLose + "wait 60000\n");
  EXPECT_NE(program.Line("device-lost").words.English().find("at 14:07:09"), std::string::npos);
  EXPECT_EQ(program.Line("port-refused").words, "");
  program.Run("click cmdDisConnect\n" + kOpenPort);
  EXPECT_EQ(program.Line("device-lost").words, "") << "the refusal is the newer news";
  EXPECT_NE(program.Line("port-refused").words, "");
}

TEST(AdviceOnTheLink, ADownloadThatEndsEarlyIsRepeated) {
  const auto begun = kOpenPort + kHold + kDownload + "drain 300\n";
  const auto sent = kOpenPort + kHold + kDownload + "drain\n";
  const auto whole = sent + "unit hex 06\n";
  const char* half =
      "A download stopped at 14:07:09. The unit may have half a configuration, so download again: Set "
      "Comport, Remote, Download.";
  const char* untouched = "The download at 14:07:09 did not begin. The unit has its old configuration.";
  const char* refused =
      "The unit has not confirmed the download at 14:07:09. It may have another configuration, so download "
      "again: Remote, Download.";
  const AdviceRow rows[] = {
      {"download-broke", begun + "click cmdDisConnect\n", half, "Set Comport", whole},
      {"download-broke", begun + "unit \"?\"\n", half, "Set Comport", whole},
      {"download-broke", begun + "port unplug\ndrain\n" + kConnectAgain,
       "so download again: Remote, Download.", "Remote", kHold + kDownload + "drain\nunit hex 06\n"},
      {"download-broke", begun + "unit \"?\"\n" + kOpenPort + kHold, "so download again: Download.", "",
       kUpload + "unit \"STREAM\"\n"},
      {"download-broke", kOpenPort + kHold + "click CmdUpDow(1)\ndrain\ntick Timer_Operating 6\n", untouched,
       "Set Comport", whole},
      {"download-broke", kOpenPort + kHold + "click CmdUpDow(1)\ndrain\nunit \"?\"\n", untouched,
       "Set Comport", whole},
      {"download-broke", sent + "unit hex 15\n" + kTransferEnd, refused, "Remote",
       kHold + kDownload + "drain\nunit hex 06\n"},
  };
  for (const auto& row : rows) Expect(row);
  AdviceProgram program(kLatest);
  program.Run(kOpenPort + kHold + kDownload);
  while (!program.App().PendingOutput.empty()) program.Run("drain 1\n");
  program.Run("unit hex 06\ndrain\nclick frmOK_buttom.Command1\n");
  EXPECT_EQ(program.Line("download-broke").words, "") << "confirmed before the last character counts as sent";
}

TEST(AdviceOnTheLink, ARefusedPortHasDeviceReasonAndCureInOneLine) {
  const std::pair<std::string, const char*> reasons[] = {
      {"Permission denied",
       "Comport 1, simulated line, did not open: Permission denied. Only root and the group of the device, "
       "mostly dialout"},
      {"No such file or directory",
       "Plug the adapter in, choose the comport of another device, or set the link ports/com1"},
      {"No such device", "plug the adapter in"},
      {"Input/output error", "No hardware belongs to this name"},
      {"Device or resource busy", "Another program uses the device: close it."},
      {"Invalid argument", "The device cannot use 9600,N,8,1"},
      {"Out of luck", "did not open: Out of luck. Choose another comport, or check the device."},
  };
  for (const auto& [reason, words] : reasons) {
    Expect({"port-refused", "port fail \"" + reason + "\"\n" + kOpenPort, words, "Set Comport",
            "port ok\n" + kOpenPort});
  }
}

TEST(AdviceOnTheLink, AUnitThatDoesNotAnswerIsLookedForInSetComport) {
  const auto asked = kOpenPort + "click CmdUpDow(4)\n";
  Expect({"no-answer", asked + "tick General_timer\n",
          "on Comport 1 at 9600 baud with 8 Bits and parity NONE. Check the cable", "Set Comport",
          kOpenPort});
  for (const auto& end :
       {"click cmdDisConnect\n", "unit hex 15\n", "unit hex 06\ntick Time_handcheck 30\n"}) {
    AdviceProgram program(kLatest);
    program.Run(asked + end);
    EXPECT_EQ(program.Line("no-answer").words, "") << end;
  }
}

TEST(AdviceOnTheLink, AScanThatFindsNoUnitSaysWhy) {
  const std::string scan = "click BaudrateCMD\n";
  const auto heard = kOpenPort + kHold + "click cmdDisConnect\nclick cmdConnect\n";
  const AdviceRow rows[] = {
      {"scan-cannot-hear", "click cmdConnect\n" + scan, "This scan cannot find the unit", "Cancel",
       "click frmScanBProgress.Command1\n"},
      {"scan-found-nothing", "click cmdConnect\n" + scan + "tick BaudRateScan 11\n",
       "Choose the baud rate, the data bits and the parity of the unit in Set Comport", "Set Comport",
       kOpenPort},
      {"scan-found-nothing", heard + scan + "tick BaudRateScan 11\n",
       "with 8 Bits and parity NONE. Check the cable", "Set Comport", kOpenPort},
      {"scan-found-nothing",
       heard + "pick OpParity \"EVEN\"\npick OpDataBits \"7 Bits\"\n" + scan + "tick BaudRateScan 11\n",
       "with 7 Bits and parity EVEN. Check the cable", "Set Comport", "click cmdConnect\n" + scan},
  };
  for (const auto& row : rows) Expect(row);

  AdviceProgram program(kLatest);
  program.Run(heard + scan +
              "expect no advice \"scan\"\ntick BaudRateScan 2\nclick frmScanBProgress.Command1\n");
  EXPECT_EQ(program.Line("scan-found-nothing").words, "") << "the installer has cancelled it";
  program.Run("click cmdConnect\n" + scan + "unit hex 06\nexpect var RemoteHeld true\n");
  EXPECT_EQ(program.Line("scan-found-nothing").words, "");
}

}  // namespace
}  // namespace ovl::testing
