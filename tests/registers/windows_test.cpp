// The windows that a register brings: the MICROS network and the sub-menus of CASIO, SHARP and TEC; and the
// address frames of TCPIP.
#include <gtest/gtest.h>

#include <vector>

#include "support/installed.h"

namespace ovl::testing {
namespace {

const FirmwareId kLatest{"V1400", "R12"};

// MICROS selected, its window closed, and every byte EE.
class Micros : public ::testing::Test {
 protected:
  Micros() {
    program.Start();
    program.Register("MICROS");
    Close();
    program.Fill("EE");
  }

  void Close() { Dispatch(program.app, CloseEvent{&window.form}); }
  void Store(FieldId field, const char* byte) {
    program.app.image[field] = byte;
    program.Mark();
  }
  std::string Panels() const {
    return std::string(window.frmIDN.visible ? "IDN " : "") + (window.frmISN.visible ? "ISN " : "") +
           (window.frm3700.visible ? "3700 " : "") + (window.form.visible ? "shown" : "closed");
  }
  void TypeNumber(const char* text) {
    ASSERT_EQ(Dispatch(program.app, TypeEvent{&window.ECRNumber, text}), Outcome::kDone);
  }
  void LeaveNumber() { Dispatch(program.app, LeaveEvent{&window.ECRNumber}); }

  Installed program{kLatest};
  MicrosForm& window = program.app.frmMicros;
};

TEST_F(Micros, EachModeOpensItsPanelAndStoresItselfAtOnce) {
  const std::tuple<int, const char*, const char*> rows[] = {
      {1, "REGTYPE_MINOR=01", "IDN shown"},
      {2, "MICROS_STATUS=00 REGTYPE_MINOR=02", "ISN shown"},
      {3, "REGTYPE_MINOR=03", "3700 shown"},
  };
  for (const auto& [mode, written, panels] : rows) {
    Close();
    program.Fill("EE");
    ASSERT_EQ(program.Pick("OpMicros", mode), Outcome::kDone);
    EXPECT_EQ(program.Written(), written);
    EXPECT_EQ(Panels(), panels);
    Close();
    EXPECT_EQ(program.Written(), written) << "closing stores nothing and takes nothing back";
  }
  program.Fill("EE");
  ASSERT_EQ(program.Pick("OpMicros", 0), Outcome::kDone);
  EXPECT_EQ(program.Written(), "REGTYPE_MINOR=00");
  EXPECT_EQ(Panels(), "closed");
}

TEST_F(Micros, TheIdnPanelShowsTheFieldsAndStoresThemWithSetAlone) {
  Store(FieldId::DEVICE_INDEX_BAK, "01");
  Store(FieldId::DV_ADDRIND_BAK, "10");
  Store(FieldId::MICROS_STATUS, "01");
  program.Pick("OpMicros", 1);
  EXPECT_EQ(window.ComboMICROS.Text() + window.ComboMICROSADD.Text() + window.ComboMODE.Text(),
            "VIDEO15EMULATE");
  program.Mark();
  program.Pick("ComboMICROS", 0);
  program.Pick("ComboMICROSADD", 0);
  program.Pick("ComboMODE", 0);
  EXPECT_EQ(program.Written(), "");
  program.Click("cmdSetMicros");
  EXPECT_EQ(program.Written(), "DV_ADDRIND_BAK=00 DEVICE_INDEX_BAK=00 MICROS_STATUS=00");
  EXPECT_FALSE(window.form.visible);

  program.Fill("EE");
  program.Pick("OpMicros", 1);
  EXPECT_EQ(window.ComboMICROSADD.Text(), "ANY") << "a byte that the list lacks leaves the selection";
}

TEST_F(Micros, TheIsnPanelHoldsEightFields) {
  const FieldId fields[] = {FieldId::REGDV_TYPE_BAK, FieldId::REG_GNA_BAK,   FieldId::REG_LNA_BAK,
                            FieldId::REG_IDNA_BAK,   FieldId::PCDV_TYPE_BAK, FieldId::PC_GNA_BAK,
                            FieldId::PC_LNA_BAK,     FieldId::PC_IDNA_BAK};
  const std::size_t entries[] = {11, 34, 34, 17, 11, 34, 34, 17};
  for (int member = 0; member < 8; ++member) {
    program.app.image[fields[member]] = ByteToHex(member + 1);
    EXPECT_EQ(window.ComboISN[static_cast<std::size_t>(member)].items.size(), entries[member]);
  }
  program.Pick("OpMicros", 2);
  program.Mark();
  for (int member = 0; member < 8; ++member) {
    const auto& list = window.ComboISN[static_cast<std::size_t>(member)];
    EXPECT_EQ(list.position, member + 1);
    EXPECT_EQ(list.items[0] + list.items[1] + list.Text(), "ANY000" + std::to_string(member));
    program.Pick("ComboISN(" + std::to_string(member) + ")", 10 - member);
  }
  EXPECT_EQ(program.Written(), "");
  program.Click("cmdISNset");
  EXPECT_EQ(program.Written(),
            "REGDV_TYPE_BAK=0A REG_GNA_BAK=09 REG_LNA_BAK=08 REG_IDNA_BAK=07 PCDV_TYPE_BAK=06 PC_GNA_BAK=05 "
            "PC_LNA_BAK=04 PC_IDNA_BAK=03");
  EXPECT_FALSE(window.form.visible);
}

TEST_F(Micros, TheEcrNumberIsSevenDigits) {
  const FieldId digits[] = {FieldId::ECRDIGIT_1, FieldId::ECRDIGIT_2, FieldId::ECRDIGIT_3,
                            FieldId::ECRDIGIT_4, FieldId::ECRDIGIT_5, FieldId::ECRDIGIT_6,
                            FieldId::ECRDIGIT_7};
  for (int digit = 0; digit < 7; ++digit) program.app.image[digits[digit]] = ByteToHex(digit + 1);
  Store(FieldId::REGTYPE_EXT2, "01");
  program.Pick("OpMicros", 3);
  EXPECT_EQ(window.ECRNumber.text, "1234567");
  EXPECT_EQ(window.HandSHKCombo.Text(), "ON");

  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"123", "0000123", "00 00 00 00 01 02 03 "},
      {"", "0000000", "00 00 00 00 00 00 00 "},
      {"12AB", "0000012", "00 00 00 00 00 01 02 "},
      {"AB12", "0000000", "00 00 00 00 00 00 00 "},
      {"9999999", "9999999", "09 09 09 09 09 09 09 "}};
  for (const auto& [typed, left, stored] : rows) {
    program.Click("cmdMicros");
    program.Fill("EE");
    TypeNumber(typed);
    LeaveNumber();
    EXPECT_EQ(window.ECRNumber.text, left);
    EXPECT_EQ(program.Written(), "");
    program.Pick("HandSHKCombo", 0);
    program.Click("CMD3700Set");
    std::string written;
    for (const auto digit : digits) written += program.app.image[digit] + " ";
    EXPECT_EQ(written, stored) << typed;
    EXPECT_EQ(program.app.image[FieldId::REGTYPE_EXT2], "00");
    EXPECT_FALSE(window.form.visible);
  }

  program.Click("cmdMicros");
  TypeNumber("42");  // the button without leaving the box first
  program.Click("CMD3700Set");
  EXPECT_EQ(program.app.image[FieldId::ECRDIGIT_5] + program.app.image[FieldId::ECRDIGIT_6] +
                program.app.image[FieldId::ECRDIGIT_7],
            "000402");
}

TEST_F(Micros, AnEcrNumberThatIsTooLongKeepsItsFirstSevenDigits) {
  program.Pick("OpMicros", 3);
  TypeNumber("123456789");
  LeaveNumber();
  EXPECT_EQ(window.ECRNumber.text, "123456789");
  program.Click("CMD3700Set");
  EXPECT_EQ(program.app.image[FieldId::ECRDIGIT_1] + program.app.image[FieldId::ECRDIGIT_7], "0107");
}

TEST_F(Micros, NoWindowOpensWhileAnUploadIsApplied) {
  program.app.LinkMode = kLinkUpload;
  Store(FieldId::DEVICE_INDEX_BAK, "01");
  program.Pick("OpMicros", 1);
  EXPECT_EQ(program.Written(), "REGTYPE_MINOR=01");
  EXPECT_FALSE(window.form.visible);
  EXPECT_EQ(window.ComboMICROS.Text(), "VIDEO");

  program.Fill("EE");
  program.Click("cmdMicros");
  EXPECT_EQ(Panels(), "IDN shown");
  EXPECT_EQ(program.Written(), "") << "the button shows and stores nothing";
}

TEST_F(Micros, TheButtonShowsThePanelOfTheModeAndStoresNothing) {
  const std::pair<int, const char*> rows[] = {
      {2, "ISN shown"}, {3, "3700 shown"}, {1, "IDN shown"}, {0, "closed"}};
  for (const auto& [mode, panels] : rows) {
    program.Pick("OpMicros", mode);
    Close();
    program.Fill("EE");
    ASSERT_EQ(program.Click("cmdMicros"), Outcome::kDone);
    EXPECT_EQ(program.Written(), "");
    EXPECT_EQ(Panels(), panels);
  }
}

// The frames that a sub-menu shows, with their titles.
std::string Frames(const SubMenuForm& menu) {
  if (!menu.form.visible) return "closed";
  std::string shown = menu.form.caption + ":";
  for (const auto* frame : {&menu.Frame1, &menu.Frame2, &menu.SharpSubMenuFrame, &menu.UP3000Frm}) {
    if (frame->visible) shown += " " + frame->caption;
  }
  return shown;
}

struct SubMenuRow {
  const char* name;  // the register
  const char* models;
  const char* button;
  int model;
  const char* frames;
  const char* member;  // what REGTYPE_EXT2 is chosen in
  const char* offered;
};

TEST(SubMenus, OpenForTheModelsThatHaveOneAndStoreAtOnce) {
  const char* modes = "TAPPING|EMULATING";
  const SubMenuRow rows[] = {
      {"CASIO", "CASIOOP", "Command1", 18, "CASIO SUBMENU: TE2200 TE2200", "FrmSubMenu.Combo1(1)", modes},
      {"CASIO", "CASIOOP", "Command1", 19, "CASIO SUBMENU: TE3000", "FrmSubMenu.Combo1(1)", modes},
      {"CASIO", "CASIOOP", "Command1", 20, "CASIO SUBMENU: TE4000", "FrmSubMenu.Combo1(1)", modes},
      {"CASIO", "CASIOOP", "Command1", 21, "CASIO SUBMENU: TE4500", "FrmSubMenu.Combo1(1)", modes},
      {"CASIO", "CASIOOP", "Command1", 33, "CASIO SUBMENU: TK-T500", "FrmSubMenu.Combo1(1)", modes},
      {"SHARP", "SharpOP", "SharpCom", 12, "SHARP SUBMENU: A410,420", "Option1",
       "TAP|EMULATE|TAP US|EMULATE US"},
      {"SHARP", "SharpOP", "SharpCom", 19, "SHARP SUBMENU: A-750/A-770 ER-01PU", "Option1",
       "RECEIPT|JOURNAL"},
      {"SHARP", "SharpOP", "SharpCom", 21, "SHARP SUBMENU: UP600/700", "Option1", "TAP|EMULATE"},
      {"SHARP", "SharpOP", "SharpCom", 22, "SHARP SUBMENU: UP300/3300", "Combo2",
       "ANY|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16"},
      {"TEC", "TECOP", "Command2", 9, "TEC SUBMENU: TEC SLIP PRINTER", "FrmSubMenu.Combo1(1)", modes},
  };
  Installed program(kLatest);
  ASSERT_EQ(program.Start(), Outcome::kDone);
  auto& menu = program.app.FrmSubMenu;
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.models) + " " + std::to_string(row.model));
    ASSERT_EQ(program.Register(row.name), Outcome::kDone);
    const auto& control = program.app.registry.Find(row.member)->control;
    const auto* list = std::get_if<List*>(&control);
    for (const int stored : {1, 0}) {
      program.Fill("EE");
      program.app.image[FieldId::REGTYPE_EXT1] = "00";
      program.app.image[FieldId::REGTYPE_EXT2] = ByteToHex(stored);
      program.Mark();
      ASSERT_EQ(program.Pick(row.models, row.model), Outcome::kDone);
      EXPECT_EQ(program.Written(), "REGTYPE_MINOR=" + ByteToHex(row.model));
      EXPECT_EQ(Frames(menu), row.frames);
      EXPECT_TRUE(program.Control(row.button).enabled);
      EXPECT_EQ(list != nullptr ? (*list)->position : program.ArrayOf(row.member).chosen, stored);
    }
    std::string offered;
    if (list != nullptr) {
      for (const auto& item : (*list)->items) offered += (offered.empty() ? "" : "|") + item;
    } else {
      offered = program.Offered(row.member);
    }
    EXPECT_EQ(offered, row.offered);

    program.Fill("EE");
    ASSERT_EQ(program.Pick(row.member, 1), Outcome::kDone);
    EXPECT_EQ(program.Written(), "REGTYPE_EXT2=01");
    EXPECT_TRUE(menu.form.visible);
    EXPECT_EQ(Dispatch(program.app, CloseEvent{&menu.form}), Outcome::kDone);
    EXPECT_EQ(Frames(menu), "closed");
    EXPECT_EQ(program.Click(row.button), Outcome::kDone);
    EXPECT_EQ(Frames(menu), row.frames);
    EXPECT_EQ(program.Written(), "REGTYPE_MINOR=" + ByteToHex(row.model) + " " + "REGTYPE_EXT2=01");
  }
}

TEST(SubMenus, StayClosedForEveryOtherModel) {
  const std::tuple<const char*, const char*, const char*, int, std::vector<int>> families[] = {
      {"CASIO", "CASIOOP", "Command1", 35, {18, 19, 20, 21, 33}},
      {"SHARP", "SharpOP", "SharpCom", 27, {12, 19, 21, 22}},
      {"TEC", "TECOP", "Command2", 11, {9}},
  };
  Installed program(kLatest);
  ASSERT_EQ(program.Start(), Outcome::kDone);
  const auto& menu = program.app.FrmSubMenu;
  for (const auto& [name, models, button, count, opening] : families) {
    ASSERT_EQ(program.Register(name), Outcome::kDone);
    ASSERT_EQ(program.ArrayOf(models).elements.size(), static_cast<std::size_t>(count));
    program.Reveal(models);
    for (int model = 0; model < count; ++model) {
      SCOPED_TRACE(std::string(models) + " " + std::to_string(model));
      ASSERT_EQ(program.Pick(models, opening.front()), Outcome::kDone);
      ASSERT_TRUE(menu.form.visible);
      program.Fill("EE");
      ASSERT_EQ(program.Pick(models, model), Outcome::kDone);
      const bool opens = std::find(opening.begin(), opening.end(), model) != opening.end();
      EXPECT_EQ(menu.form.visible, opens);
      EXPECT_EQ(program.Control(button).enabled, opens);
      EXPECT_EQ(program.Written(), "REGTYPE_MINOR=" + ByteToHex(model));
    }
  }

  program.Pick("SharpOP", 26);
  program.Control("SharpCom").enabled = true;
  program.Fill("EE");
  program.Click("SharpCom");
  EXPECT_EQ(program.Written(), "") << "the last model is not among those that the button looks at";
}

TEST(SubMenus, Te2200HidesItsModeBehindThePrinterAdapter) {
  Installed program(kLatest);
  ASSERT_EQ(program.Start(), Outcome::kDone);
  ASSERT_EQ(program.Register("CASIO"), Outcome::kDone);
  auto& menu = program.app.FrmSubMenu;
  program.Fill("EE");
  program.app.image[FieldId::REGTYPE_EXT1] = "01";
  program.Mark();
  program.Pick("CASIOOP", 18);
  EXPECT_EQ(Frames(menu), "CASIO SUBMENU: TE2200");
  EXPECT_EQ(program.Offered("F1OP"), "RS-232 PORT|TPIF PRINTER ADAPTER");
  EXPECT_EQ(menu.Label1[0].caption + menu.Label1[1].caption + menu.Combo1[0].Text(), "Model :Mode :TE-2200");
  program.Mark();
  ASSERT_EQ(program.Pick("F1OP", 0), Outcome::kDone);
  EXPECT_EQ(program.Written(), "REGTYPE_EXT1=00");
  EXPECT_TRUE(menu.Frame2.visible);
  program.Fill("EE");
  program.Pick("F1OP", 1);
  EXPECT_EQ(program.Written(), "REGTYPE_EXT1=01");
  EXPECT_FALSE(menu.Frame2.visible);

  program.Pick("CASIOOP", 19);
  EXPECT_EQ(menu.Combo1[0].Text(), "TE3000");
  EXPECT_TRUE(menu.Frame2.visible);
  ASSERT_EQ(program.Register("TEC"), Outcome::kDone);
  program.Pick("TECOP", 9);
  EXPECT_EQ(menu.Combo1[0].Text(), "TEC SLIP PRINTER");
}

TEST(IpAddress, FrameAndImageAgreeByteByByte) {
  for (const FirmwareId& firmware :
       {kLatest, FirmwareId{"V1300", "R16"}, {"V1324", "R19"}, {"V1334", "R1"}}) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    ASSERT_EQ(program.Start(), Outcome::kDone);
    const bool extended = firmware != FirmwareId{"V1300", "R16"} && firmware != FirmwareId{"V1324", "R19"};
    const int address = firmware.IsV1400() ? 83 : extended ? 67 : 65;
    for (int byte = 0; byte < 4; ++byte) {
      program.SetByte("TCPIP", program.Fixed(address + byte), ByteToHex(250 + byte));
    }
    program.SetByte("TCPIP", program.Minor(), "05");
    ASSERT_EQ(program.Register("TCPIP"), Outcome::kDone);
    const auto& form = program.app.frmMain;
    for (std::size_t member = 0; member < 4; ++member) {
      EXPECT_EQ(form.ComboTCPIP[member + 4].Text(), std::to_string(250 + member));
      EXPECT_EQ(form.ComboTCPINFO[member].Text(), member % 2 == 0 ? "ON" : "OFF");
    }
    program.Fill("EE");
    for (int member = 4; member < 8; ++member) {
      ASSERT_EQ(program.Pick("ComboTCPIP(" + std::to_string(member) + ")", 188 + member), Outcome::kDone);
    }
    EXPECT_EQ(program.Written(), "IPADDRESS(1)=C0 IPADDRESS(2)=C1 IPADDRESS(3)=C2 IPADDRESS(4)=C3");
  }
}

TEST(IpAddress, AnInformationSwitchIsOneBit) {
  const std::tuple<int, const char*, const char*> rows[] = {
      {0, "00", "01"}, {1, "05", "07"}, {2, "A0", "A4"}, {3, "F0", "F8"}};
  Installed program(kLatest);
  ASSERT_EQ(program.Start(), Outcome::kDone);
  ASSERT_EQ(program.Register("TCPIP"), Outcome::kDone);
  for (const auto& [member, off, on] : rows) {
    const auto name = "ComboTCPINFO(" + std::to_string(member) + ")";
    for (const int position : {1, 1, 0, 0}) {
      program.Fill("EE");
      program.app.image[FieldId::REGTYPE_MINOR] = position == 1 ? off : on;
      program.Mark();
      ASSERT_EQ(program.Pick(name, position), Outcome::kDone);
      EXPECT_EQ(program.Written(), std::string("REGTYPE_MINOR=") + (position == 1 ? on : off));
    }
  }
}

TEST(IpAddress, TheOldFrameShowsAndStoresNothing) {
  for (const char* release : {"R14", "R15"}) {
    Installed program({"V1300", release});
    ASSERT_EQ(program.Start(), Outcome::kDone);
    for (int byte = 0; byte < 4; ++byte)
      program.SetByte("TCPIP", program.Fixed(65 + byte), ByteToHex(10 + byte));
    ASSERT_EQ(program.Register("TCPIP"), Outcome::kDone);
    program.Fill("EE");
    for (int member = 0; member < 4; ++member) {
      EXPECT_EQ(program.app.frmMain.ComboTCPIP[static_cast<std::size_t>(member)].position, 10 + member);
      ASSERT_EQ(program.Pick("ComboTCPIP(" + std::to_string(member) + ")", 192), Outcome::kDone);
    }
    EXPECT_EQ(program.Written(), "");
  }
}

}  // namespace
}  // namespace ovl::testing
