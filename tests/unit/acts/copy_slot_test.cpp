// Copies of exceptions and alarms, against the acts of a user on the panel.
#include "acts/copy_slot.h"

#include <algorithm>
#include <random>

#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

using acts::SlotCopy;
using acts::SlotKind;

bool Copy(PanelProgram& program, const SlotCopy& copy) {
  if (!acts::CanCopySlot(program.app, copy)) return false;
  return DispatchAct(program.app, [&] { acts::CopySlot(program.app, copy); }) == core::Outcome::kDone;
}

class Person {
 public:
  Person(PanelProgram& program, unsigned seed) : program_(program), random_(seed) {}

  int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  std::string Text() {
    std::string text(static_cast<std::size_t>(Number(41)), ' ');
    for (auto& letter : text) letter = " ?Az9\xE4"[Number(6)];
    return text;
  }

  // Picks a random entry of every list of the panel that can be reached, and types random texts.
  void Fill(SlotKind kind, int number) {
    program_.Pick(kind == SlotKind::kAlarm ? "ComboALM(0)" : "ComboExcp(0)", number - 1);
    for (const auto& list : Lists(kind)) {
      program_.Pick(list, Number(static_cast<int>(program_.ListOf(list).items.size())));
    }
    program_.EnterText(kind == SlotKind::kAlarm ? "cmdSetTrigger" : "cmdSetExcpstr", Text());
    if (kind == SlotKind::kAlarm) return;
    auto& dialog = program_.app.frmSetRange;
    program_.Click("cmdSetRange");
    for (auto* box : {&dialog.Range_Hi, &dialog.SubRange_Hi, &dialog.Range_Low, &dialog.SubRange_Low})
      program_.Type(*box, std::to_string(Number(box->max_length == 2 ? 100 : 10000)));
    program_.Click("frmSetRange.cmdSetRange");
  }

  // Picks and types in the target what the panel shows for the source.
  void CopyByHand(const SlotCopy& copy) {
    const std::string number = copy.kind == SlotKind::kAlarm ? "ComboALM(0)" : "ComboExcp(0)";
    const int shown = program_.At(number);
    for (int target = copy.first; target <= copy.last; ++target) {
      if (target == copy.from) continue;
      program_.Pick(number, copy.from - 1);
      std::map<std::string, int> positions;
      for (const auto& list : Lists(copy.kind)) positions[list] = program_.At(list);
      auto& form = program_.app.frmMain;
      const auto text = copy.kind == SlotKind::kAlarm ? form.TextTrigger.text : form.TextException.text;
      const std::string values[] = {form.TextRANGE[0].caption, form.TextRANGE[1].caption};
      program_.Pick(number, target - 1);
      if (copy.kind == SlotKind::kException) program_.Pick("ComboExcp(4)", 0);
      for (const auto& [list, position] : positions) {
        if (list != "ComboExcp(4)") program_.Pick(list, position);
      }
      if (copy.kind == SlotKind::kException) program_.Pick("ComboExcp(4)", positions["ComboExcp(4)"]);
      program_.EnterText(copy.kind == SlotKind::kAlarm ? "cmdSetTrigger" : "cmdSetExcpstr", text);
      if (copy.kind == SlotKind::kException) TypeRange(values);
    }
    program_.Pick(number, shown);
  }

 private:
  void TypeRange(const std::string (&values)[2]) {
    auto& dialog = program_.app.frmSetRange;
    program_.Click("cmdSetRange");
    const auto separator = values[0].find_first_of(".,");
    program_.Type(dialog.Range_Hi, values[0].substr(0, separator));
    program_.Type(dialog.SubRange_Hi, values[0].substr(separator + 1));
    program_.Type(dialog.Range_Low, values[1].substr(0, separator));
    program_.Type(dialog.SubRange_Low, values[1].substr(separator + 1));
    program_.Click("frmSetRange.cmdSetRange");
  }

  std::vector<std::string> Lists(SlotKind kind) {
    std::vector<std::string> lists;
    const auto names =
        kind == SlotKind::kAlarm
            ? std::vector<std::string>{"ComboALM(1)", "ComboALM(2)",     "ComboALM(3)",     "ComboALM(6)",
                                       "ComboALM(7)", "ComboTrigger(0)", "ComboTrigger(1)", "ComboTrigger(2)"}
            : std::vector<std::string>{"ComboExcp(1)", "ComboExcp(2)", "ComboExcp(3)", "ComboExcp(4)",
                                       "ComboExcp(5)"};
    for (const auto& name : names) {
      if (program_.Visible(name)) lists.push_back(name);
    }
    return lists;
  }

  PanelProgram& program_;
  std::mt19937 random_;
};

TEST(CopySlot, StoresWhatTheSamePicksOnThePanelStore) {
  for (const auto& firmware : EveryFirmware()) {
    PanelProgram program(firmware);
    Person person(program, 7);
    auto& image = program.app.image;
    for (int round = 0; round < 12; ++round) {
      for (const auto kind : {SlotKind::kException, SlotKind::kAlarm}) {
        const int count = acts::SlotCount(kind);
        const int from = 1 + person.Number(count), first = 1 + person.Number(count);
        const SlotCopy copy{kind, from, first, std::min(count, first + person.Number(3))};
        for (int number = copy.first; number <= copy.last; ++number) person.Fill(kind, number);
        person.Fill(kind, from);
        program.Pick(kind == SlotKind::kAlarm ? "ComboALM(0)" : "ComboExcp(0)", person.Number(count));
        const auto before = image;
        SCOPED_TRACE(std::to_string(copy.from) + " to " + std::to_string(copy.first));
        ASSERT_TRUE(Copy(program, copy));
        const auto copied = image;
        image = before;
        person.CopyByHand(copy);
        EXPECT_TRUE(image == copied) << program.Written();
      }
    }
  }
}

TEST(CopySlot, TakesTheBytesThatNoPickCanStore) {
  PanelProgram program(kLatest);
  const auto odd = Slot(0xCF, RangeOf(kLatest), "ODD");
  program.Byte(EXCPSTRS, 3) = odd;
  program.Byte(ALMSTRUCT_BAK, 2) = "FFAA7733";
  Copy(program, {SlotKind::kException, 3, 10, 24});
  Copy(program, {SlotKind::kAlarm, 2, 5, 5});
  EXPECT_EQ(program.Byte(EXCPSTRS, 10), odd);
  EXPECT_EQ(program.Byte(EXCPSTRS, 24), odd);
  EXPECT_EQ(program.Byte(ALMSTRUCT_BAK, 5), "FFAA7733");
}

TEST(CopySlot, ShowsATargetAgainAndLeavesTheNormalStateOfAlarmNine) {
  PanelProgram program(kLatest);
  program.ShowSlot(3);
  program.EnterText("cmdSetExcpstr", "REFUND");
  program.ShowSlot(5);
  Copy(program, {SlotKind::kException, 3, 4, 6});
  EXPECT_EQ(program.app.frmMain.TextException.text.substr(0, 7), "REFUND ");
  program.ShowAlarm(2);
  program.Pick("ComboALM(2)", 1);
  program.Byte(ALMNORMAL_BAK, 2) = "80";
  Copy(program, {SlotKind::kAlarm, 2, 9, 10});
  EXPECT_EQ(program.Byte(ALMNORMAL_BAK, 2), "82");
}

TEST(CopySlot, IsRefusedWithoutAChangeWhereAUserCouldNotPick) {
  PanelProgram program(kLatest);
  const auto before = program.app.image;
  for (const SlotCopy copy :
       {SlotCopy{SlotKind::kException, 0, 1, 1}, SlotCopy{SlotKind::kException, 1, 5, 4},
        SlotCopy{SlotKind::kException, 1, 24, 25}, SlotCopy{SlotKind::kAlarm, 17, 1, 1}})
    EXPECT_FALSE(Copy(program, copy));
  const SlotCopy fine{SlotKind::kAlarm, 1, 2, 3};
  program.Click("cmdConnect");
  ASSERT_FALSE(program.app.frmMain.form.enabled);
  EXPECT_FALSE(Copy(program, fine));
  EXPECT_TRUE(program.app.image == before);
}

TEST(CopySlot, SaysWhichTargetsAreInUse) {
  PanelProgram program(kLatest);
  auto& app = program.app;
  for (const int number : {2, 4, 7}) {
    program.ShowSlot(number);
    program.EnterText("cmdSetExcpstr", "X");
    program.ShowAlarm(number);
    program.Pick("ComboALM(1)", number);
  }
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kException, 2, 1, 3}), "") << "the source is skipped";
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kException, 2, 3, 5}), "This overwrites exception 4.");
  EXPECT_EQ(acts::OverwriteWarning(app, {SlotKind::kAlarm, 1, 2, 16}), "This overwrites alarms 2, 4 and 7.");
}

}  // namespace
}  // namespace ovl::testing
