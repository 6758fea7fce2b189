// All settings panels of all firmware: what is set comes back.
#include <set>
#include <span>

#include "panels/acts.h"

namespace ovl::testing {
namespace {

using enum FieldId;

// In an order in which a later pick takes nothing from an earlier one.
constexpr const char* kGlobal[] = {
    "ComboCOMM(0)",    "ComboCOMM(1)",    "ComboCOMM(2)",   "ComboCOMM(3)",    "ComboCOMM(4)",
    "ComboCOMM(5)",    "ComboCOMM(7)",    "ComboCOMM(8)",   "ComboDIP(0)",     "ComboDIP(2)",
    "ComboDIP(3)",     "ComboDIP(4)",     "ComboDIP(5)",    "ComboDIP(6)",     "ComboDIP(7)",
    "ComboDIP(8)",     "ComboTD(0)",      "ComboTD(1)",     "ComboTD(2)",      "ComboTD(3)",
    "ComboTD(4)",      "ComboTD(5)",      "ComboDIP(1)",    "ComboLang",       "ComboExcepRe(0)",
    "ComboExcepRe(1)", "ComboExcepRe(2)", "ComboScroll(1)", "ComboALM(4)",     "ComboALM(5)",
    "CharacterList",   "DemoType",        "DemoSpeed",      "ComboKLM4011(0)", "ComboKLM4011(1)",
    "ComboKLM4011(2)", "ComboKLM4011(3)"};
constexpr const char* kAlarm[] = {"ComboALM(1)", "ComboALM(2)",     "ComboALM(3)",     "ComboALM(6)",
                                  "ComboALM(7)", "ComboTrigger(0)", "ComboTrigger(1)", "ComboTrigger(2)"};
constexpr const char* kSlot[] = {"ComboExcp(4)", "ComboExcp(1)", "ComboExcp(2)", "ComboExcp(3)",
                                 "ComboExcp(5)"};

// Some firmware hide a list together with its whole frame.
bool OnScreen(PanelProgram& program, std::string_view list) {
  const auto* frame = list == "ComboLang" ? "Frame12" : list == "ComboScroll(1)" ? "Frame14" : "Frame3";
  return program.Visible(list) && program.Visible(frame);
}

// One program in which everything is set, one into which it is loaded.
class EveryPosition {
 public:
  explicit EveryPosition(const FirmwareId& firmware) : firmware_(firmware), writer_(firmware) {}

  void Run() {
    constexpr int kLongestList = 121, kRoundsOfRecords = 3;
    for (int round = 0; round < kLongestList; ++round) {
      SCOPED_TRACE("round " + std::to_string(round));
      set_.clear();
      if (round < kRoundsOfRecords) SetRecords(round);
      SetGlobals(round);
      if (round < kRoundsOfRecords || round % 40 == 0) reader_ = std::make_unique<PanelProgram>(firmware_);
      ASSERT_EQ(reader_->Open(Composed()), Outcome::kDone);
      ExpectShown();
    }
    ExpectAllCovered();
    EXPECT_TRUE(writer_.NoBoxLeft() && reader_->NoBoxLeft());
  }

 private:
  void Set(const char* list, int number, const std::string& record = {}) {
    if (!OnScreen(writer_, list) || !writer_.Enabled(list)) return;
    const auto entries = static_cast<int>(writer_.ListOf(list).items.size());
    ASSERT_EQ(writer_.Pick(list, number % entries), Outcome::kDone) << list;
    set_[record + list] = number % entries;
  }

  void SetRecords(int round) {
    for (int slot = 0; slot < kExceptions; ++slot) {
      const auto record = "ComboExcp(0)=" + std::to_string(slot) + " ";
      const int number = slot + round;
      writer_.Pick("ComboExcp(0)", slot);
      Set(kSlot[0], number % 4 == 0 ? 1 : 0, record);
      for (int list = 1; list < 4; ++list) Set(kSlot[list], number >> (list - 1), record);
      Set(kSlot[4], number, record);
    }
    for (int alarm = 0; alarm < kAlarms; ++alarm) {
      const auto record = "ComboALM(0)=" + std::to_string(alarm) + " ";
      writer_.Pick("ComboALM(0)", alarm);
      for (const auto* list : kAlarm) Set(list, alarm + round + (round % 2) * 15, record);
      // The normal state of the ninth alarm is bit 0 of the second byte, which no click reaches.
      if (alarm == 8) set_[record + "ComboALM(2)"] = 0;
    }
  }

  void SetGlobals(int round) {
    auto& recorders = writer_.ArrayOf("OpDVR");
    const int recorder = round % 3 % (recorders.elements[2].visible ? 3 : 2);
    ASSERT_EQ(writer_.Pick("OpDVR", recorder), Outcome::kDone);
    if (!writer_.app.frmMain.DemoMode.checked) writer_.Click("DemoMode");
    for (const auto* list : kGlobal) Set(list, round);
    if (round % 3 != 0) writer_.Click("DemoMode");

    // Where the demonstration counts its lists from 1, a running one always shows the second.
    const bool old_demo = (HexToInt(writer_.Byte(DEMO_ENABLE)) & 0x40) == 0 && HasOldDemo(firmware_);
    if (old_demo && writer_.app.frmMain.DemoMode.checked) set_.erase("CharacterList");
    // Clock and title each need a line of the picture.
    const int least = set_["ComboTD(0)"] + set_["ComboTD(5)"];
    set_["ComboDIP(1)"] = std::max(set_["ComboDIP(1)"], least);
  }

  // V1400 R7 does not read the flag of the blank time that a download writes for it.
  std::string Composed() {
    if (firmware_.Joined() == "V1400R7") writer_.Byte(BLNKRTS_BAK).clear();
    return SectionsToStream(writer_.app);
  }

  void ExpectShown() {
    std::string before;
    for (const auto& [key, position] : set_) {
      auto name = key;
      if (const auto blank = key.find(' '); blank != std::string::npos) {
        const auto record = key.substr(0, blank);
        name = key.substr(blank + 1);
        const auto sign = record.find('=');
        if (record != before) reader_->Pick(record.substr(0, sign), std::stoi(record.substr(sign + 1)));
        before = record;
      }
      EXPECT_EQ(reader_->At(name), position) << key;
      covered_[name].insert(position);
    }
    EXPECT_EQ(reader_->app.frmMain.OpDVR.chosen, writer_.app.frmMain.OpDVR.chosen);
    EXPECT_EQ(reader_->app.frmMain.DemoMode.checked, writer_.app.frmMain.DemoMode.checked);
  }

  void ExpectAllCovered() {
    if (!writer_.app.frmMain.DemoMode.checked) writer_.Click("DemoMode");
    for (const auto& lists : {std::span<const char* const>(kGlobal), {kAlarm}, {kSlot}}) {
      for (const auto* list : lists) {
        if (!OnScreen(writer_, list)) continue;
        EXPECT_EQ(covered_[list].size(), writer_.ListOf(list).items.size()) << list;
      }
    }
  }

  FirmwareId firmware_;
  PanelProgram writer_;
  std::unique_ptr<PanelProgram> reader_;
  std::map<std::string, int> set_;
  std::map<std::string, std::set<int>> covered_;
};

TEST(SettingsWalk, EverySelectionComesBackAtEveryPosition) {
  for (const auto& firmware : AllFirmware()) {
    SCOPED_TRACE(firmware.Joined());
    EveryPosition(firmware).Run();
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace ovl::testing
