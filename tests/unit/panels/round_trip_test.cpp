// All settings panels of all firmware: each selection is set, saved, loaded and shown again.
#include <set>

#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

// Some firmware hide a list together with its frame.
bool OnScreen(PanelProgram& program, std::string_view list) {
  const auto* frame = list == "ComboLang" ? "Frame12" : list == "ComboScroll(1)" ? "Frame14" : "Frame3";
  return program.Visible(list) && program.Visible(frame);
}

// One program sets every list, another one loads the result.
class EveryPosition {
 public:
  explicit EveryPosition(const firmware::FirmwareId& firmware) : writer_(firmware) {}

  void Run() {
    constexpr int kLongestList = 121, kRoundsOfRecords = 3;
    const auto& firmware = writer_.app.firmware;
    for (int round = 0; round < kLongestList; ++round) {
      set_.clear();
      if (round < kRoundsOfRecords) SetRecords(round);
      SetGlobals(round);
      if (round < kRoundsOfRecords || round % 40 == 0) reader_ = std::make_unique<PanelProgram>(firmware);
      // V1400 R7 does not read the flag of the blank time that a download writes for it.
      if (firmware.Joined() == "V1400R7") writer_.Byte(BLNKRTS_BAK).clear();
      ASSERT_EQ(reader_->Open(core::SectionsToStream(writer_.app)), core::Outcome::kDone)
          << "round " << round;
      ExpectShown(round);
    }
    ExpectAllCovered();
    EXPECT_TRUE(writer_.NoBoxLeft() && reader_->NoBoxLeft());
  }

 private:
  // The list that selects the record, the position of the record there, and the list itself.
  using Place = std::tuple<std::string, int, std::string>;

  void Set(const std::string& list, int number, const std::string& records = {}, int record = 0) {
    if (!OnScreen(writer_, list) || !writer_.Enabled(list)) return;
    const int position = number % static_cast<int>(writer_.ListOf(list).items.size());
    ASSERT_EQ(writer_.Pick(list, position), core::Outcome::kDone) << list;
    set_[{records, record, list}] = position;
  }

  void SetRecords(int round) {
    for (int slot = 0; slot < image::kExceptions; ++slot) {
      const int number = slot + round;
      writer_.Pick("ComboExcp(0)", slot);
      // Scroll matching takes the other actions away, so it is on in each fourth slot only.
      Set("ComboExcp(4)", number % 4 == 0 ? 1 : 0, "ComboExcp(0)", slot);
      for (const auto& [list, position] : {std::pair{"ComboExcp(1)", number},
                                           {"ComboExcp(2)", number >> 1},
                                           {"ComboExcp(3)", number >> 2},
                                           {"ComboExcp(5)", number}})
        Set(list, position, "ComboExcp(0)", slot);
    }
    for (int alarm = 0; alarm < image::kAlarms; ++alarm) {
      writer_.Pick("ComboALM(0)", alarm);
      for (const auto& list : ListsOf(Group::kAlarm))
        Set(list, alarm + round + (round % 2) * 15, "ComboALM(0)", alarm);
    }
    // The normal state of the ninth alarm is bit 0 of the second byte, which no pick can set.
    set_[{"ComboALM(0)", 8, "ComboALM(2)"}] = 0;
  }

  void SetGlobals(int round) {
    const int recorder = round % 3 % (writer_.ArrayOf("OpDVR").elements[2].visible ? 3 : 2);
    ASSERT_EQ(writer_.Pick("OpDVR", recorder), core::Outcome::kDone);
    const bool& running = writer_.app.frmMain.DemoMode.checked;
    if (!running) writer_.Click("DemoMode");
    for (const auto& list : ListsOf(Group::kPanel)) Set(list, round);
    if (round % 3 != 0) writer_.Click("DemoMode");

    // Where the demonstration counts its lists from 1, a running one always shows the second.
    const bool old_demo = (codecs::HexToInt(writer_.Byte(DEMO_ENABLE)) & 0x40) == 0 &&
                          FactsOf(writer_.app.firmware).Has(Feature::kOldDemo);
    if (old_demo && running) set_.erase({"", 0, "CharacterList"});
    // Clock and title need one line each.
    auto& lines = set_[{"", 0, "ComboDIP(1)"}];
    lines = std::max(lines, set_[{"", 0, "ComboTD(0)"}] + set_[{"", 0, "ComboTD(5)"}]);
  }

  void ExpectShown(int round) {
    for (const auto& [place, position] : set_) {
      const auto& [records, record, list] = place;
      if (!records.empty()) reader_->Pick(records, record);
      EXPECT_EQ(reader_->At(list), position) << records << record << " " << list << " in round " << round;
      covered_[list].insert(position);
    }
    const auto &read = reader_->app.frmMain, &written = writer_.app.frmMain;
    EXPECT_EQ(read.OpDVR.chosen, written.OpDVR.chosen);
    EXPECT_EQ(read.DemoMode.checked, written.DemoMode.checked);
  }

  void ExpectAllCovered() {
    if (!writer_.app.frmMain.DemoMode.checked) writer_.Click("DemoMode");
    for (const auto group : {Group::kPanel, Group::kAlarm, Group::kSlot}) {
      for (const auto& list : ListsOf(group)) {
        if (!OnScreen(writer_, list)) continue;
        EXPECT_EQ(covered_[list].size(), writer_.ListOf(list).items.size()) << list;
      }
    }
  }

  PanelProgram writer_;
  std::unique_ptr<PanelProgram> reader_;
  std::map<Place, int> set_;
  std::map<std::string, std::set<int>> covered_;
};

TEST(SettingsRoundTrip, EverySelectionComesBackAtEveryPosition) {
  for (const auto& firmware : EveryFirmware()) {
    EveryPosition(firmware).Run();
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace ovl::testing
