// What the form shows under each firmware, and what the lists offer that depend on it.
#include "unit/panels/panel_program.h"

namespace ovl::testing {
namespace {

using Names = std::vector<const char*>;

// The controls that a firmware with the feature shows, and those that it hides. Without the feature it is the
// other way round.
struct FeatureControls {
  Feature feature;
  Names shown, hidden = {};
};

const std::vector<FeatureControls> kFeatureControls = {
    {Feature::kAlarmType, {"Label1(49)", "ComboALM(7)"}},
    {Feature::kLastSharpModel, {"SharpOP(26)"}},
    {Feature::kMasterReset, {"CmdUpDow(5)"}},
    {Feature::kNewIbmModels, {"IBMOP(7)", "IBMOP(8)"}},
    {Feature::kTenthSharpModel, {"OpSharp(9)"}},
    {Feature::kLastEpsonOption, {"OpRI_QT2(10)"}},
    {Feature::kReducedForm,
     {"Label1(23)", "ComboExcp(4)"},
     {"Label1(62)", "ComboDIP(8)", "Label1(48)", "ComboALM(6)", "Label1(52)", "ComboTrigger(2)", "Frame13",
      "Label1(32)", "ComboCOMM(7)", "ComboNone(0)", "Label1(36)", "ComboCOMM(8)", "Label1(26)",
      "ComboExcepRe(2)", "Frame14", "Frame12"}},
    {Feature::kOnePairOfIds,
     {},
     {"OpDVR(2)", "Label1(14)", "Label1(15)", "ComboKLM4011(2)", "ComboKLM4011(3)"}},
    {Feature::kNoDemo, {}, {"FrameDemo", "Label1(61)", "ComboDIP(7)"}},
};

// The controls that every firmware of the menu shows.
const Names kAlwaysShown = {
    "Frame2",       "Frame3",      "Frame4",      "Frame5",     "Frame6",          "Frame7",
    "Frame8",       "Frame10",     "Frame11",     "Frame15",    "ComboDIP(0)",     "ComboDIP(1)",
    "ComboDIP(6)",  "ComboALM(4)", "ComboALM(5)", "Label1(46)", "Label1(47)",      "Label1(50)",
    "Label1(54)",   "Label1(60)",  "Label1(20)",  "Label1(21)", "Label1(22)",      "Label1(33)",
    "Label1(34)",   "Label1(35)",  "Label1(37)",  "Label1(0)",  "Label1(8)",       "ComboTrigger(0)",
    "ComboTD(0)",   "ComboTD(5)",  "cmdTitle",    "Title_Text", "ComboExcp(1)",    "ComboExcp(2)",
    "ComboExcp(3)", "OpDVR(0)",    "OpDVR(1)",    "Label1(12)", "ComboKLM4011(0)", "ComboKLM4011(1)",
    "CmdUpDow(4)",  "DemoMode"};

void ExpectVisible(Installed& program, const Names& controls, bool visible) {
  for (const auto* control : controls) EXPECT_EQ(program.Control(control).visible, visible) << control;
}

void ExpectLists(Installed& program, const FirmwareFacts& facts) {
  const bool reduced = facts.Has(Feature::kReducedForm), vista = facts.Has(Feature::kVista);
  EXPECT_EQ(program.Offered("ComboDIP(0)"), std::string("1|3|5|10|15|20|30|60|120|180|240|NONE") +
                                                (facts.Has(Feature::kRtsBlankTime) ? "|RTS" : ""));
  EXPECT_EQ(program.Offered("ComboLang"), facts.Has(Feature::kSpanishFirst) ? "English|Spanish|Spanish"
                                          : vista                           ? "English|German|Spanish"
                                                                            : "English|German");
  EXPECT_EQ(program.Offered("ComboCOMM(7)"),
            std::string("OVL-ADD|ONET|TRVX|DALLMEIER") + (vista ? "|NORBAIN VISTA" : ""));
  const std::string speeds = "1200|2400|4800|9600|14400|19200|28800|38400";
  for (const char* list : {"ComboCOMM(1)", "ComboCOMM(2)"})
    EXPECT_EQ(program.Offered(list), speeds + (reduced ? "|AUTO" : "|57600|115200|AUTO"));
  EXPECT_EQ(program.Offered("ComboCOMM(12)"), speeds + "|57600|115200");
  auto& main = program.app.frmMain;
  EXPECT_EQ(main.Label1.at(35).caption, reduced ? "HANDSHAKE" : "HW HANDSHAKING");
  EXPECT_EQ(main.ComboCOMM[5].caption, main.Label1.at(35).caption);
  EXPECT_EQ(main.SSTab1.captions.at(5), reduced ? "           TIME             " : " TIME / LANGUAGE ");
  EXPECT_EQ(main.SSTab1.captions.size(), 7U);
  EXPECT_EQ(main.SSTab1.current, 0);
}

TEST(Variants, EveryFirmwareShowsOnlyItsControls) {
  for (const auto& facts : AllFirmwareFacts()) {
    PanelProgram program(facts.id);
    for (const auto& group : kFeatureControls) {
      ExpectVisible(program, group.shown, facts.Has(group.feature));
      ExpectVisible(program, group.hidden, !facts.Has(group.feature));
    }
    ExpectVisible(program, kAlwaysShown, true);
    ExpectLists(program, facts);
  }
}

TEST(Variants, HiddenControlsKeepTheirBytes) {
  PanelProgram program({"V1300", "R14"}), other({"V1300", "R14"});
  program.Byte(image::FieldId::SPCOMPRES_BAK) = "03";
  program.Byte(image::FieldId::DEMO_ENABLE) = "02";
  ASSERT_EQ(other.Open(core::SectionsToStream(program.app)), core::Outcome::kDone);
  EXPECT_EQ(other.Byte(image::FieldId::SPCOMPRES_BAK) + other.Byte(image::FieldId::DEMO_ENABLE), "0302");
}

TEST(Variants, TheCompactFirmwareHidesPartsOfTheReleaseItRunsAs) {
  for (const firmware::FirmwareId& runs_as : {firmware::FirmwareId{"V1400", "R7"}, {"V1400", "R2"}}) {
    SCOPED_TRACE(runs_as.Joined());
    const bool later = runs_as.Number() == 7;
    Installed program(runs_as, Images::kOwn);
    WriteFile(program.PathOf("GENERIC"), FirstImage(runs_as));
    program.settings["Version"] = "V1410";
    program.settings["Release"] = later ? "R1" : "R2";
    ASSERT_EQ(program.Start(), core::Outcome::kDone);
    EXPECT_EQ(program.app.firmware, runs_as);
    EXPECT_EQ(std::get<std::string>(program.settings["Version"]), "V1410");
    ExpectVisible(program, {"Label1(46)",  "ComboALM(4)",  "Label1(47)",      "ComboALM(5)",  "Label1(48)",
                            "ComboALM(6)", "Label1(50)",   "ComboTrigger(0)", "Label1(20)",   "ComboExcp(1)",
                            "Frame12",     "Label1(0)",    "Label1(8)",       "ComboTD(0)",   "ComboTD(5)",
                            "cmdTitle",    "Title_Text",   "SharpOP(26)",     "CmdUpDow(5)",  "IBMOP(7)",
                            "OpSharp(9)",  "OpRI_QT2(10)", "Label1(23)",      "ComboExcp(4)", "Label1(54)",
                            "Label1(55)",  "Label1(56)",   "Label1(57)",      "Label1(58)",   "Label1(59)",
                            "Label1(60)",  "Label1(61)",   "ComboDIP(0)",     "ComboDIP(1)",  "ComboDIP(2)",
                            "ComboDIP(3)", "ComboDIP(4)",  "ComboDIP(5)",     "ComboDIP(6)",  "ComboDIP(7)"},
                  false);
    ExpectVisible(program,
                  {"Frame3", "Label1(62)", "ComboDIP(8)", "ComboALM(3)", "ComboTrigger(1)", "ComboTrigger(2)",
                   "Label1(21)", "Label1(22)", "ComboExcp(2)", "ComboExcp(3)", "Frame2", "Frame13", "Frame14",
                   "FrameDemo", "OpDVR(2)", "ComboKLM4011(3)", "ComboTD(1)", "ComboExcepRe(2)"},
                  true);
    ExpectVisible(program, {"Label1(49)", "ComboALM(7)"}, later);
    const auto& main = program.app.frmMain;
    EXPECT_EQ(main.Label1.at(62).caption, "OUTPUT CHARACTER / LINE");
    EXPECT_EQ(main.ComboDIP[8].caption, "OUTPUT CHARACTER / LINE");
    ExpectLists(program, FactsOf(runs_as));
  }
}

TEST(Variants, AnUnknownReleaseShowsNothingNewButAReducedFormInAReducedFamily) {
  // A release between two others, because the newest form of V1324 applies to every later release.
  Installed program({"V1324", "R22"}, Images::kOwn), later({"V1400", "R99"}, Images::kOwn);
  ASSERT_EQ(program.Start(), core::Outcome::kDone);
  ExpectVisible(program, {"Frame13", "Frame12", "OpDVR(2)", "ComboDIP(8)", "ComboALM(7)"}, false);
  EXPECT_TRUE(program.Control("FrameDemo").visible);
  EXPECT_TRUE(program.app.frmMain.ComboReg.items.empty());
  ASSERT_EQ(later.Start(), core::Outcome::kDone);
  ExpectVisible(later, {"CmdUpDow(5)", "OpNCR(5)"}, false);
}

// An entry at a wrong position would store another setting than the user reads.
TEST(Lists, HaveTheirEntriesInTheOrderOfTheCodes) {
  struct Row {
    Names lists;
    const char* entries;
  };
  const std::vector<Row> rows = {
      {{"ComboTD(0)", "ComboTD(4)", "ComboTD(5)", "ComboExcepRe(0)"}, "OFF|ON"},
      {{"ComboTD(1)"}, "12 HOUR|24 HOUR"},
      {{"ComboTD(2)"}, "MM/DD/YY|DD/MM/YY|YY/MM/DD"},
      {{"ComboTD(3)"}, "DISABLED|U.S.A|CANADA|AUSTRALIA|TASMANIA|U.K."},
      {{"ComboDIP(2)"}, "TOP|BOTTOM"},
      {{"ComboDIP(7)"}, "OFF|1|2|3|4|5"},
      {{"ComboALM(2)"}, "NO|NC"},
      {{"ComboALM(3)"}, "1|3|5|10|15|20|30|60|120|180|240|PLUSE"},
      {{"ComboALM(4)"}, "NONE|*|FLASH *|REVERSE|FLASH"},
      {{"ComboALM(6)"}, "OFF|MANUAL|1S|2S|3S|5S|10S|20S|30S|1M"},
      {{"ComboALM(7)"}, "DWELL|TIMED"},
      {{"CharacterList"}, "19 Character|37 Character"},
      {{"DemoType"}, "FAST FOOD|CONVENIENCE STORE|GROCERY|PIZZA SHOP|COFFEE SHOP|RETAIL STORE"},
      {{"DemoSpeed"}, "0.5 Sec.|1 Sec.|2 Sec.|3 Sec"},
      {{"OpBaud"}, "1200|2400|4800|9600|14400|19200|28800|38400|57600|115200"},
      {{"OpParity"}, "NONE|ODD|EVEN"},
      {{"OpDataBits"}, "7 Bits|8 Bits"},
      {{"OpDVR"}, "KLM-4001|KLR-4011, 4021|TRVX3000/TRVX5000"},
  };
  Installed program({"V1400", "R12"}, Images::kFirstRegister);
  for (const auto& row : rows) {
    for (const auto* list : row.lists) EXPECT_EQ(program.Offered(list), row.entries) << list;
  }
  const auto ports = program.Offered("Comport_Select");
  EXPECT_EQ(ports.substr(0, 20) + ports.substr(ports.size() - 10), "Comport 1|Comport 2|Comport 16");
  const auto& range = program.app.frmSetRange;
  EXPECT_EQ(range.Range_Hi.max_length * 100 + range.SubRange_Low.max_length, 802U);
}

}  // namespace
}  // namespace ovl::testing
