// The program and the unit, wired to each other: every firmware from the start to a downloaded change.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "firmware/firmware_table.h"
#include "image/report.h"
#include "images/default_images.h"
#include "support/harness.h"
#include "unit/factory.h"
#include "unit/unit.h"

namespace ovl::testing {
namespace {

// A unit in no time: what it is told it answers at once.
class Partner {
 public:
  explicit Partner(const std::string& firmware, const std::string& history = "NO SALE\r\n",
                   const std::string& fault = {}) {
    const auto* known = unit::FindFirmware(firmware);
    std::vector<unit::Fault> faults;
    if (!fault.empty()) faults.push_back(unit::ParseFault(fault).fault.value());
    unit_.emplace(
        unit::UnitSetup{known, unit::FactoryImage(*known), history, 0, unit::Faults(std::move(faults), 1)},
        unit::Surroundings{[this](const std::string& text) { complaints.push_back(text); },
                           [](const std::string&) {}, [this](const std::string& bytes) { said_ += bytes; },
                           [](const std::string&) { return std::string(); },
                           [this](const std::string& text) { return clock = text, std::string(); }});
  }

  std::string Hear(std::string_view text) {
    for (const char character : text) unit_->Receive(character, now_);
    unit_->Advance(now_);
    return std::exchange(said_, {});
  }

  const std::string& Image() const { return unit_->Image(); }

  std::vector<std::string> complaints;
  std::string clock;

 private:
  std::optional<unit::Unit> unit_;
  unit::Time now_{};
  std::string said_;
};

// Lets both talk until neither has anything left to say.
void Talk(Harness& program, Partner& partner) {
  for (auto sent = program.TakeSent(); !sent.empty(); sent = program.TakeSent()) {
    program.Unit(partner.Hear(sent));
    program.Drain(1);
  }
}

void HoldRemoteMode(Harness& program, Partner& partner) {
  ASSERT_EQ(program.Click("CmdUpDow(4)"), core::Outcome::kDone);
  Talk(program, partner);
  program.Tick(program.app.frmMain.General_timer);
  ASSERT_TRUE(program.app.RemoteHeld);
}

void Transfer(Harness& program, Partner& partner, const char* button, const char* end) {
  HoldRemoteMode(program, partner);
  program.Click(button);
  Talk(program, partner);
  ASSERT_TRUE(program.app.frmOK_buttom.form.visible);
  EXPECT_EQ(program.app.frmOK_buttom.Label1.caption, end);
  program.Click("frmOK_buttom.Command1");
}

void ChangeEveryTab(const firmware::FirmwareId& firmware) {
  Harness program(firmware);
  images::WriteDefaultImages(program.folder.Path().string(), firmware);
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  const int names = static_cast<int>(program.app.frmMain.ComboReg.items.size());
  for (int position = 0; position < names; ++position) {
    ASSERT_EQ(program.Pick("ComboReg", position), core::Outcome::kDone);
  }
  Partner partner(firmware.Joined());
  program.Click("cmdConnect");
  program.Click("frmSettSR.cmdSET");
  Transfer(program, partner, "CmdUpDow(0)", "Upload Completed.");
  const auto uploaded = program.app.image;
  Transfer(program, partner, "CmdUpDow(1)", "Download Completed.");
  const auto untouched = partner.Image();
  EXPECT_TRUE(image::Differences(uploaded, program.app.image, firmware).empty());

  // The field that each pick changes, by the panel's own account.
  const std::vector<std::tuple<const char*, int, std::string>> picks = {
      {"ComboDIP(1)", 4, "DSPLINES_BAK"},        {"ComboALM(4)", 3, "ALMCFG_BAK"},
      {"ComboTrigger(0)", 1, "TRIGGER_TEXT(1)"}, {"ComboCOMM(2)", 6, "TX_BAUDRATE"},
      {"ComboExcp(2)", 1, "EXCPSTRS(1)"},        {"ComboExcepRe(1)", 1, "TIMESTAMP_ENA"},
      {"ComboTD(2)", 2, "DATE_FORMAT_BAK"},      {"OpDVR", 1, "HIST_REG"}};
  std::set<std::string> expected, changed;
  for (const auto& [control, position, field] : picks) {
    ASSERT_EQ(program.Pick(control, position), core::Outcome::kDone) << control;
    expected.insert(field);
  }
  for (const auto& difference : image::Differences(uploaded, program.app.image, firmware))
    changed.insert(difference.name);
  EXPECT_EQ(changed, expected);

  Transfer(program, partner, "CmdUpDow(1)", "Download Completed.");
  EXPECT_TRUE(partner.complaints.empty()) << partner.complaints.front();
  std::size_t bytes = 0;
  for (std::size_t place = 0; place < untouched.size(); place += 2) {
    if (partner.Image().compare(place, 2, untouched, place, 2) != 0) ++bytes;
  }
  EXPECT_EQ(partner.Image().size(), untouched.size());
  EXPECT_EQ(bytes, expected.size());
  EXPECT_TRUE(program.NoBoxLeft());
}

TEST(EveryFirmware, AChangeOnEveryTabReachesTheUnitAndNothingElse) {
  for (const auto& entry : firmware::FirmwareTable()) {
    const firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    SCOPED_TRACE(firmware.Joined());
    if (entry.in_menu) ChangeEveryTab(firmware);
  }
}

// From the start of the program to the end of what the button begins in remote mode; the clock is set.
void Converse(Harness& program, Partner& partner, const char* button) {
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  program.now = {2026, 3, 5, 14, 7, 9};
  program.Tick(program.app.frmMain.Timer, 11);
  program.Click("cmdConnect");
  program.Click("frmSettSR.cmdSET");
  HoldRemoteMode(program, partner);
  program.Click(button);
  Talk(program, partner);
}

TEST(OneShot, HistoriesOfAnyLengthAreSavedAndOpenedUnchanged) {
  for (const int lines : {0, 1, 5000}) {
    SCOPED_TRACE(lines);
    std::string history;
    for (int line = 0; line < lines; ++line) history += "LINE " + std::to_string(line) + "\r\n";
    Harness program({"V1400", "R12"});
    Partner partner("V1400R12", history);
    program.file_answers.assign(2, program.folder.File("history.txt"));
    Converse(program, partner, "CmdUpDow(3)");
    EXPECT_FALSE(program.app.HistoryPending);
    program.Click("OpenHistory_menu");
    EXPECT_TRUE(program.app.frmView.Text.text == history + "\r\n");
    EXPECT_TRUE(program.NoBoxLeft());
  }
}

TEST(OneShot, AnswersAreToldAndSilenceIsEndedByTheWatchdogOrByHand) {
  const std::string failure = "- Connection Fail -";
  const std::vector<std::tuple<const char*, std::string, std::string, bool>> rows{
      {"CmdUpDow(2)", "clock", "SET TIME DATE FINISHED.", true},
      {"CmdUpDow(3)", "history", "", false},
      {"CmdUpDow(5)", "reset", "       Master Reset Done.", false}};
  for (const auto& [button, operation, told, watched] : rows) {
    SCOPED_TRACE(operation);
    Harness done({"V1400", "R12"}), refused({"V1400", "R12"}), waiting({"V1400", "R12"});
    Partner willing("V1400R12"), refusing("V1400R12", "LINE\r\n", "refuse:" + operation),
        silent("V1400R12", "LINE\r\n", "silent:" + operation);
    Converse(done, willing, button);
    EXPECT_EQ(done.TakeBox().text, told);
    EXPECT_EQ(willing.clock, operation == "clock" ? "03-05-26 14:07:09" : "");
    EXPECT_TRUE(willing.complaints.empty());

    Converse(refused, refusing, button);
    EXPECT_EQ(refused.TakeBox().title, failure);
    EXPECT_FALSE(refused.app.frmMain.MSComm1.PortOpen);

    Converse(waiting, silent, button);
    waiting.Tick(waiting.app.frmMain.Timer_Operating, 6);
    EXPECT_EQ(waiting.TakeBox().title, watched ? failure : "");
    EXPECT_EQ(waiting.app.frmMain.MSComm1.PortOpen, !watched);
    if (!watched) waiting.Click("cmdDisConnect");
    EXPECT_FALSE(waiting.app.HistoryPending || waiting.app.MasterResetPending);
  }
}

}  // namespace
}  // namespace ovl::testing
