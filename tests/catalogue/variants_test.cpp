// One form for every firmware: what each of them shows, and what its changed lists read.
#include <set>
#include <sstream>

#include "catalogue/firmware.h"
#include "panels/acts.h"

namespace ovl::testing {
namespace {

// What a firmware has beside the first V1400 form, or lacks of it.
//   vista      Spanish, and the protocol "NORBAIN VISTA"
//   type       the alarm type
//   rts        the blank time "RTS"
//   sharp26, reset, ibm, sharp9, epson   an option of a register, or the master reset
//   spanish    English and Spanish in the place of English and German
//   short      the reduced form
//   one-pair   no second pair of recorder ids
//   no-demo    no demonstration and no compression of spaces
struct Form {
  const char *version, *release, *words;
};

constexpr Form kForms[] = {
    {"V1400", "R1", ""},
    {"V1400", "R2", "vista"},
    {"V1400", "R4", "vista"},
    {"V1400", "R6", "vista type"},
    {"V1400", "R7", "vista type"},
    {"V1400", "R11", "vista type rts sharp26"},
    {"V1400", "R12", "vista type rts sharp26 reset spanish ibm"},
    {"V1300", "R14", "short one-pair no-demo"},
    {"V1300", "R15", "short one-pair no-demo"},
    {"V1300", "R16", "short one-pair no-demo"},
    {"V1300", "R17", "short one-pair no-demo"},
    {"V1300", "R18", "short one-pair"},
    {"V1300", "R19", "short one-pair"},
    {"V1300", "R20", "short one-pair"},
    {"V1300", "R21", "short one-pair"},
    {"V1300", "R23", "short one-pair"},
    {"V1300", "R26", "short type rts sharp9 one-pair"},
    {"V1300", "R27", "short type rts sharp9"},
    {"V1324", "R17", "short one-pair no-demo"},
    {"V1324", "R18", "short one-pair no-demo"},
    {"V1324", "R19", "short one-pair no-demo"},
    {"V1324", "R20", "short one-pair no-demo"},
    {"V1324", "R21", "short one-pair"},
    {"V1324", "R23", "short one-pair"},
    {"V1324", "R24", "short one-pair"},
    {"V1324", "R25", "short type rts epson one-pair"},
    {"V1324", "R26", "short type rts epson"},
    {"V1310", "R1", "short type rts sharp9"},
    {"V1334", "R1", "short type rts epson"},
};

// The controls that a word concerns, and whether they are on the screen with it; without it they are not, or
// are.
struct Group {
  const char* word;
  bool shown;
  std::vector<const char*> controls;
};

std::vector<Group> Groups() {
  return {{"type", true, {"Label1(49)", "ComboALM(7)"}},
          {"sharp26", true, {"SharpOP(26)"}},
          {"reset", true, {"CmdUpDow(5)"}},
          {"ibm", true, {"IBMOP(7)", "IBMOP(8)"}},
          {"sharp9", true, {"OpSharp(9)"}},
          {"epson", true, {"OpRI_QT2(10)"}},
          {"short",
           false,
           {"Label1(62)", "ComboDIP(8)", "Label1(48)", "ComboALM(6)", "Label1(52)", "ComboTrigger(2)",
            "Frame13", "Label1(32)", "ComboCOMM(7)", "ComboNone(0)", "Label1(36)", "ComboCOMM(8)",
            "Label1(26)", "ComboExcepRe(2)", "Frame14", "Frame12"}},
          {"short", true, {"Label1(23)", "ComboExcp(4)"}},
          {"one-pair", false, {"OpDVR(2)", "Label1(14)", "Label1(15)", "ComboKLM4011(2)", "ComboKLM4011(3)"}},
          {"no-demo", false, {"FrameDemo", "Label1(61)", "ComboDIP(7)"}}};
}

// What every firmware of the menu shows, whatever its words.
constexpr const char* kAlways[] = {
    "Frame2",       "Frame3",      "Frame4",          "Frame5",     "Frame6",          "Frame7",
    "Frame8",       "Frame10",     "Frame11",         "Frame15",    "ComboDIP(0)",     "ComboDIP(1)",
    "ComboDIP(6)",  "ComboALM(4)", "ComboALM(5)",     "Label1(46)", "Label1(47)",      "Label1(50)",
    "Label1(54)",   "Label1(60)",  "ComboTrigger(0)", "Label1(20)", "Label1(21)",      "Label1(22)",
    "Label1(33)",   "Label1(34)",  "Label1(35)",      "Label1(37)", "Label1(0)",       "Label1(8)",
    "ComboTD(0)",   "ComboTD(5)",  "cmdTitle",        "Title_Text", "ComboExcp(1)",    "ComboExcp(2)",
    "ComboExcp(3)", "OpDVR(0)",    "OpDVR(1)",        "Label1(12)", "ComboKLM4011(0)", "ComboKLM4011(1)",
    "CmdUpDow(4)",  "DemoMode"};

std::string ItemsOf(Installed& program, const char* list) {
  std::string items;
  for (const auto& item : program.ListOf(list).items) items += (items.empty() ? "" : "|") + item;
  return items;
}

void ExpectLists(Installed& program, const std::set<std::string>& words) {
  const auto has = [&](const char* word) { return words.count(word) != 0; };
  const std::string times = "1|3|5|10|15|20|30|60|120|180|240|NONE";
  EXPECT_EQ(ItemsOf(program, "ComboDIP(0)"), times + (has("rts") ? "|RTS" : ""));
  EXPECT_EQ(ItemsOf(program, "ComboLang"), has("spanish") ? "English|Spanish|Spanish"
                                           : has("vista") ? "English|German|Spanish"
                                                          : "English|German");
  EXPECT_EQ(ItemsOf(program, "ComboCOMM(7)"),
            std::string("OVL-ADD|ONET|TRVX|DALLMEIER") + (has("vista") ? "|NORBAIN VISTA" : ""));
  const std::string speeds = "1200|2400|4800|9600|14400|19200|28800|38400";
  for (const char* list : {"ComboCOMM(1)", "ComboCOMM(2)"}) {
    EXPECT_EQ(ItemsOf(program, list), speeds + (has("short") ? "|AUTO" : "|57600|115200|AUTO"));
  }
  EXPECT_EQ(ItemsOf(program, "ComboCOMM(12)"), speeds + "|57600|115200");
  auto& main = program.app.frmMain;
  EXPECT_EQ(main.Label1.at(35).caption, has("short") ? "HANDSHAKE" : "HW HANDSHAKING");
  EXPECT_EQ(main.ComboCOMM[5].caption, main.Label1.at(35).caption);
  EXPECT_EQ(main.SSTab1.captions.at(5), has("short") ? "           TIME             " : " TIME / LANGUAGE ");
  EXPECT_EQ(main.SSTab1.captions.size(), 7U);
  EXPECT_EQ(main.SSTab1.current, 0);
}

std::set<std::string> WordsOf(const Form& form) {
  std::istringstream stream(form.words);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(Variants, EveryFirmwareShowsWhatItHas) {
  std::set<std::string> seen;
  for (const auto& form : kForms) {
    const FirmwareId firmware{form.version, form.release};
    SCOPED_TRACE(firmware.Joined());
    seen.insert(firmware.Joined());
    PanelProgram program(firmware);
    const auto words = WordsOf(form);
    for (const auto& group : Groups()) {
      const bool shown = group.shown == (words.count(group.word) != 0);
      for (const char* control : group.controls) EXPECT_EQ(program.Visible(control), shown) << control;
    }
    for (const char* control : kAlways) EXPECT_TRUE(program.Visible(control)) << control;
    ExpectLists(program, words);
  }
  std::size_t in_menu = 0;
  for (const auto& entry : FirmwareTable()) {
    if (!entry.in_menu) continue;
    ++in_menu;
    EXPECT_EQ(seen.count(std::string(entry.version) + std::string(entry.release)), 1U);
  }
  EXPECT_EQ(in_menu, std::size(kForms));
}

TEST(Variants, WhatIsHiddenKeepsItsBytes) {
  PanelProgram program({"V1300", "R14"});
  const auto stream = SectionsToStream(program.app);
  for (const auto& [field, byte] : {std::pair{FieldId::SPCOMPRES_BAK, "03"}, {FieldId::DEMO_ENABLE, "02"}}) {
    program.Byte(field) = byte;
  }
  const auto changed = SectionsToStream(program.app);
  EXPECT_NE(changed, stream);
  ASSERT_EQ(program.Open(changed), Outcome::kDone);
  EXPECT_EQ(SectionsToStream(program.app), changed);
}

TEST(Variants, TheCompactFormIsALaterReleaseWithLessOnIt) {
  const FirmwareId runs_as{"V1400", "R7"};
  Installed program(runs_as, Images::kOwn);
  WriteWhole(program.PathOf("GENERIC"), FirstImage(runs_as));
  program.settings["Version"] = "V1410";
  program.settings["Release"] = "R1";
  ASSERT_EQ(program.Start(), Outcome::kDone);
  auto& main = program.app.frmMain;
  EXPECT_EQ(program.app.firmware, runs_as);
  EXPECT_EQ(main.lbVersionID[6].caption, "V1410R1");
  EXPECT_EQ(std::get<std::string>(program.settings["Version"]), "V1410");

  std::vector<std::string> hidden = {
      "Label1(46)",  "ComboALM(4)",     "Label1(47)", "ComboALM(5)",  "Label1(48)", "ComboALM(6)",
      "Label1(50)",  "ComboTrigger(0)", "Label1(20)", "ComboExcp(1)", "Frame12",    "Label1(0)",
      "Label1(8)",   "ComboTD(0)",      "ComboTD(5)", "cmdTitle",     "Title_Text", "SharpOP(26)",
      "CmdUpDow(5)", "IBMOP(7)",        "OpSharp(9)", "OpRI_QT2(10)", "Label1(23)", "ComboExcp(4)"};
  for (int row = 0; row < 8; ++row) {
    hidden.push_back(Member("Label1", 54 + row));
    hidden.push_back(Member("ComboDIP", row));
  }
  for (const auto& name : hidden) EXPECT_FALSE(program.Control(name).visible) << name;
  for (const char* name :
       {"Frame3",       "Label1(62)",      "ComboDIP(8)",     "Label1(49)", "ComboALM(7)",
        "ComboALM(3)",  "ComboTrigger(1)", "ComboTrigger(2)", "Label1(21)", "Label1(22)",
        "ComboExcp(2)", "ComboExcp(3)",    "Frame2",          "Frame13",    "Frame14",
        "FrameDemo",    "OpDVR(2)",        "ComboKLM4011(3)", "ComboTD(1)", "ComboExcepRe(2)"}) {
    EXPECT_TRUE(program.Control(name).visible) << name;
  }
  EXPECT_EQ(main.Label1.at(62).caption, "OUTPUT CHARACTER / LINE");
  EXPECT_EQ(main.ComboDIP[8].caption, main.Label1.at(62).caption);
  ExpectLists(program, {"vista", "type"});

  Installed other(FirmwareId{"V1400", "R2"}, Images::kOwn);
  WriteWhole(other.PathOf("GENERIC"), FirstImage({"V1400", "R2"}));
  other.settings["Version"] = "V1410";
  ASSERT_EQ(other.Start(), Outcome::kDone);
  EXPECT_EQ(other.app.firmware, (FirmwareId{"V1400", "R2"}));
  EXPECT_FALSE(other.Control("ComboDIP(0)").visible);
  EXPECT_FALSE(other.Control("ComboALM(7)").visible) << "the release that it runs as has no alarm type";
}

TEST(Variants, AnUnknownReleaseRunsNoStepButIsShortInAShortFamily) {
  Harness program({"V1324", "R22"});
  ASSERT_EQ(program.Start(), Outcome::kDone);
  for (const char* name : {"Frame13", "Frame12", "OpDVR(2)", "ComboDIP(8)", "ComboALM(7)"}) {
    EXPECT_FALSE(program.Control(name).visible) << name;
  }
  EXPECT_TRUE(program.Control("FrameDemo").visible);
  EXPECT_TRUE(program.app.frmMain.ComboReg.items.empty());

  Harness later({"V1400", "R13"});
  ASSERT_EQ(later.Start(), Outcome::kDone);
  EXPECT_FALSE(later.Control("CmdUpDow(5)").visible);
  EXPECT_FALSE(later.app.frmMain.OpNCR.elements[5].visible);
}

// What a position means to the installer: an entry out of its place would store another setting.
TEST(Lists, ReadInTheOrderOfTheirCodes) {
  const std::pair<const char*, const char*> lists[] = {
      {"ComboTD(0)", "OFF|ON"},
      {"ComboTD(1)", "12 HOUR|24 HOUR"},
      {"ComboTD(2)", "MM/DD/YY|DD/MM/YY|YY/MM/DD"},
      {"ComboTD(3)", "DISABLED|U.S.A|CANADA|AUSTRALIA|TASMANIA|U.K."},
      {"ComboTD(4)", "OFF|ON"},
      {"ComboTD(5)", "OFF|ON"},
      {"ComboDIP(2)", "TOP|BOTTOM"},
      {"ComboDIP(7)", "OFF|1|2|3|4|5"},
      {"ComboExcepRe(0)", "OFF|ON"},
      {"ComboALM(2)", "NO|NC"},
      {"ComboALM(3)", "1|3|5|10|15|20|30|60|120|180|240|PLUSE"},
      {"ComboALM(4)", "NONE|*|FLASH *|REVERSE|FLASH"},
      {"ComboALM(6)", "OFF|MANUAL|1S|2S|3S|5S|10S|20S|30S|1M"},
      {"ComboALM(7)", "DWELL|TIMED"},
      {"CharacterList", "19 Character|37 Character"},
      {"DemoType", "FAST FOOD|CONVENIENCE STORE|GROCERY|PIZZA SHOP|COFFEE SHOP|RETAIL STORE"},
      {"DemoSpeed", "0.5 Sec.|1 Sec.|2 Sec.|3 Sec"},
  };
  Installed program({"V1400", "R12"}, Images::kFirstRegister);
  for (const auto& [list, entries] : lists) EXPECT_EQ(program.Offered(list), entries) << list;
  const auto ports = program.Offered("Comport_Select");
  EXPECT_EQ(ports.substr(0, 20) + ports.substr(ports.size() - 10), "Comport 1|Comport 2|Comport 16");
  EXPECT_EQ(program.Offered("OpBaud"), "1200|2400|4800|9600|14400|19200|28800|38400|57600|115200");
  EXPECT_EQ(program.Offered("OpParity") + "|" + program.Offered("OpDataBits"), "NONE|ODD|EVEN|7 Bits|8 Bits");
  EXPECT_EQ(program.Offered("OpDVR"), "KLM-4001|KLR-4011, 4021|TRVX3000/TRVX5000");
  const auto ids = program.Offered("ComboKLM4011(0)");
  EXPECT_EQ(ids.substr(0, 4) + ids.substr(ids.size() - 3), "1|2||32");
}

TEST(Captions, SayWhatTheyAlwaysSaid) {
  const std::pair<const char*, const char*> captions[] = {
      {"frmSettSR.cmdSET", "SET"},
      {"BaudrateCMD", "Baudrate Scan"},
      {"frmSettSR.Label1", "Make sure you are select correct the comport."},
      {"frmScanBProgress.Label1", "Baudrate Scaning.."},
      {"frmScanBProgress.Command1", "Cancel"},
      {"ComboTD(0)", "T/D DISPLAY"},
      {"ComboTD(3)", "DAYLIGHT SAVING"},
      {"ComboDIP(0)", "SCREEN BLANK"},
      {"ComboDIP(4)", "LINE JUSTIFIED"},
      {"ComboExcepRe(1)", "TIME STAMP"},
      {"ComboALM(3)", "ALARM DURATION"},
      {"ComboLang", "LANGUAGE"},
  };
  Installed program({"V1400", "R12"}, Images::kFirstRegister);
  for (const auto& [name, caption] : captions) EXPECT_EQ(program.Control(name).caption, caption) << name;
  EXPECT_EQ(program.app.frmSettSR.form.caption, "Communication Setting");
  EXPECT_EQ(program.app.frmScanBProgress.form.caption, "Scan Baudrate");
  const auto& range = program.app.frmSetRange;
  EXPECT_EQ(range.Range_Hi.max_length * 100 + range.SubRange_Low.max_length, 802U);
}

}  // namespace
}  // namespace ovl::testing
