// The windows that a register brings: the MICROS network and the sub-menus of CASIO, SHARP and TEC; and the
// address frames of TCPIP.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/installed.h"

namespace ovl::testing {
namespace {

using F = FieldId;

const FirmwareId kLatest{"V1400", "R12"};

// MICROS selected, its window closed.
class Micros : public ::testing::Test {
 protected:
  Micros() {
    program.Register("MICROS");
    Close();
  }

  void Close() { Dispatch(program.app, CloseEvent{&window.form}); }
  std::string Panels() const {
    return std::string(window.frmIDN.visible ? "IDN " : "") + (window.frmISN.visible ? "ISN " : "") +
           (window.frm3700.visible ? "3700 " : "") + (window.form.visible ? "shown" : "closed");
  }
  void TypeNumber(const char* text) {
    ASSERT_EQ(Dispatch(program.app, TypeEvent{&window.ECRNumber, text}), Outcome::kDone);
  }
  void LeaveNumber() { Dispatch(program.app, LeaveEvent{&window.ECRNumber}); }
  std::string StoredNumber() const {
    std::string digits;
    for (const F digit : {F::ECRDIGIT_1, F::ECRDIGIT_2, F::ECRDIGIT_3, F::ECRDIGIT_4, F::ECRDIGIT_5,
                          F::ECRDIGIT_6, F::ECRDIGIT_7}) {
      digits += program.app.image[digit];
    }
    return digits;
  }

  Installed program{kLatest};
  MicrosForm& window = program.app.frmMicros;
};

TEST_F(Micros, EachModeOpensItsPanelAndStoresItselfAtOnce) {
  const std::tuple<int, const char*, const char*> rows[] = {{1, "M=01", "IDN shown"},
                                                            {2, "MICROS_STATUS=00 M=02", "ISN shown"},
                                                            {3, "M=03", "3700 shown"},
                                                            {0, "M=00", "closed"}};
  for (const auto& [mode, written, panels] : rows) {
    EXPECT_EQ(program.Effect("OpMicros", mode), written);
    EXPECT_EQ(Panels(), panels);
    Close();
    EXPECT_EQ(program.Written(), written) << "closing stores nothing and takes nothing back";
    program.Fill("EE");
    ASSERT_EQ(program.Click("cmdMicros"), Outcome::kDone);
    EXPECT_EQ(Panels(), panels);
    EXPECT_EQ(program.Written(), "") << "the button only shows";
    Close();
  }
}

TEST_F(Micros, NoWindowOpensWhileAnUploadIsApplied) {
  program.app.LinkMode = kLinkUpload;
  EXPECT_EQ(program.Effect("OpMicros", 1, {{F::DEVICE_INDEX_BAK, "01"}}), "M=01");
  EXPECT_FALSE(window.form.visible);
  EXPECT_EQ(window.ComboMICROS.Text(), "VIDEO");
  program.Click("cmdMicros");
  EXPECT_EQ(Panels(), "IDN shown");
}

TEST_F(Micros, TheIdnPanelShowsTheFieldsAndStoresThemWithSetAlone) {
  program.Effect("OpMicros", 1,
                 {{F::DEVICE_INDEX_BAK, "01"}, {F::DV_ADDRIND_BAK, "10"}, {F::MICROS_STATUS, "01"}});
  EXPECT_EQ(window.ComboMICROS.Text() + window.ComboMICROSADD.Text() + window.ComboMODE.Text(),
            "VIDEO15EMULATE");
  for (const char* list : {"ComboMICROS", "ComboMICROSADD", "ComboMODE"})
    EXPECT_EQ(program.Effect(list, 0), "");
  program.Click("cmdSetMicros");
  EXPECT_EQ(program.Written(), "DV_ADDRIND_BAK=00 DEVICE_INDEX_BAK=00 MICROS_STATUS=00");
  EXPECT_FALSE(window.form.visible);
  program.Effect("OpMicros", 1);
  EXPECT_EQ(window.ComboMICROSADD.Text(), "")
      << "a window opened anew selects nothing for a byte that the list lacks";
}

TEST_F(Micros, TheIsnPanelHoldsEightFields) {
  program.Effect("OpMicros", 2,
                 {{F::REGDV_TYPE_BAK, "01"},
                  {F::REG_GNA_BAK, "02"},
                  {F::REG_LNA_BAK, "03"},
                  {F::REG_IDNA_BAK, "04"},
                  {F::PCDV_TYPE_BAK, "05"},
                  {F::PC_GNA_BAK, "06"},
                  {F::PC_LNA_BAK, "07"},
                  {F::PC_IDNA_BAK, "08"}});
  const std::size_t entries[] = {11, 34, 34, 17, 11, 34, 34, 17};
  for (int member = 0; member < 8; ++member) {
    const auto& list = window.ComboISN[static_cast<std::size_t>(member)];
    EXPECT_EQ(list.items.size(), entries[member]);
    EXPECT_EQ(list.items[0] + list.items[1] + list.Text(), "ANY000" + std::to_string(member));
    EXPECT_EQ(program.Effect("ComboISN(" + std::to_string(member) + ")", 10 - member), "");
  }
  program.Click("cmdISNset");
  EXPECT_EQ(program.Written(),
            "REGDV_TYPE_BAK=0A REG_GNA_BAK=09 REG_LNA_BAK=08 REG_IDNA_BAK=07 PCDV_TYPE_BAK=06 PC_GNA_BAK=05 "
            "PC_LNA_BAK=04 PC_IDNA_BAK=03");
  EXPECT_FALSE(window.form.visible);
}

TEST_F(Micros, TheEcrNumberIsSevenDigits) {
  program.Effect("OpMicros", 3,
                 {{F::REGTYPE_EXT2, "01"},
                  {F::ECRDIGIT_1, "01"},
                  {F::ECRDIGIT_2, "02"},
                  {F::ECRDIGIT_3, "03"},
                  {F::ECRDIGIT_4, "04"},
                  {F::ECRDIGIT_5, "05"},
                  {F::ECRDIGIT_6, "06"},
                  {F::ECRDIGIT_7, "07"}});
  EXPECT_EQ(window.ECRNumber.text + window.HandSHKCombo.Text(), "1234567ON");

  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"123", "0000123", "00000000010203"},     {"", "0000000", "00000000000000"},
      {"12AB", "0000012", "00000000000102"},    {"AB12", "0000000", "00000000000000"},
      {"9999999", "9999999", "09090909090909"}, {"123456789", "123456789", "01020304050607"}};
  for (const auto& [typed, left, stored] : rows) {
    for (const bool leaves : {true, false}) {
      program.Click("cmdMicros");
      program.Fill("EE");
      TypeNumber(typed);
      if (leaves) LeaveNumber();
      EXPECT_EQ(window.ECRNumber.text, leaves ? left : typed);
      program.Pick("HandSHKCombo", 0);
      EXPECT_EQ(program.Written(), "");
      program.Click("CMD3700Set");
      EXPECT_EQ(StoredNumber(), stored);
      EXPECT_EQ(program.app.image[F::REGTYPE_EXT2], "00");
      EXPECT_FALSE(window.form.visible);
    }
  }
}

// The title of the sub-menu's window, and of the frames that it shows.
std::string Titles(const SubMenuForm& menu) {
  if (!menu.form.visible) return "closed";
  std::string shown = menu.form.caption + ":";
  for (const auto* frame : {&menu.Frame1, &menu.Frame2, &menu.SharpSubMenuFrame, &menu.UP3000Frm}) {
    if (frame->visible) shown += " " + frame->caption;
  }
  return shown;
}

struct Family {
  const char *name, *models, *button;
  int count;
  std::vector<int> opening;
};
const Family kCasio{"CASIO", "CASIOOP", "Command1", 35, {18, 19, 20, 21, 33}};
const Family kSharp{"SHARP", "SharpOP", "SharpCom", 27, {12, 19, 21, 22}};
const Family kTec{"TEC", "TECOP", "Command2", 11, {9}};

TEST(SubMenus, OpenForTheModelsThatHaveOneAndStoreAtOnce) {
  const char *mode = "FrmSubMenu.Combo1(1)", *modes = "TAPPING|EMULATING";
  struct Row {
    const Family& family;
    int model;
    const char *titles, *member, *offered;  // the member holds REGTYPE_EXT2
  };
  const Row rows[] = {
      {kCasio, 18, "CASIO SUBMENU: TE2200 TE2200", mode, modes},
      {kCasio, 19, "CASIO SUBMENU: TE3000", mode, modes},
      {kCasio, 20, "CASIO SUBMENU: TE4000", mode, modes},
      {kCasio, 21, "CASIO SUBMENU: TE4500", mode, modes},
      {kCasio, 33, "CASIO SUBMENU: TK-T500", mode, modes},
      {kSharp, 12, "SHARP SUBMENU: A410,420", "Option1", "TAP|EMULATE|TAP US|EMULATE US"},
      {kSharp, 19, "SHARP SUBMENU: A-750/A-770 ER-01PU", "Option1", "RECEIPT|JOURNAL"},
      {kSharp, 21, "SHARP SUBMENU: UP600/700", "Option1", "TAP|EMULATE"},
      {kSharp, 22, "SHARP SUBMENU: UP300/3300", "Combo2", "ANY|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16"},
      {kTec, 9, "TEC SUBMENU: TEC SLIP PRINTER", mode, modes},
  };
  Installed program(kLatest);
  auto& menu = program.app.FrmSubMenu;
  for (const auto& [family, model, titles, member, offered] : rows) {
    SCOPED_TRACE(family.name + std::to_string(model));
    ASSERT_EQ(program.Register(family.name), Outcome::kDone);
    for (const int stored : {1, 0}) {
      const auto byte = ByteToHex(stored);
      EXPECT_EQ(program.Effect(family.models, model, {{F::REGTYPE_EXT1, "00"}, {F::REGTYPE_EXT2, byte}}),
                "M=" + ByteToHex(model));
      EXPECT_EQ(Titles(menu), titles);
      EXPECT_TRUE(program.Control(family.button).enabled);
      EXPECT_EQ(program.Selected(member), stored);
    }
    EXPECT_EQ(program.Offered(member), offered);
    EXPECT_EQ(program.Effect(member, 1), "X=01");
    EXPECT_EQ(Dispatch(program.app, CloseEvent{&menu.form}), Outcome::kDone);
    EXPECT_EQ(Titles(menu), "closed");
    EXPECT_EQ(program.Click(family.button), Outcome::kDone);
    EXPECT_EQ(Titles(menu), titles);
    EXPECT_EQ(program.Written(), "M=" + ByteToHex(model) + " X=01");
  }
}

TEST(SubMenus, StayClosedForEveryOtherModel) {
  Installed program(kLatest);
  const auto& menu = program.app.FrmSubMenu;
  for (const auto& family : {kCasio, kSharp, kTec}) {
    ASSERT_EQ(program.Register(family.name), Outcome::kDone);
    program.Reveal(family.models);
    EXPECT_EQ(program.Pick(family.models, family.count), Outcome::kRefused);
    for (int model = 0; model < family.count; ++model) {
      SCOPED_TRACE(std::string(family.models) + " " + std::to_string(model));
      program.Pick(family.models, family.opening.front());
      ASSERT_TRUE(menu.form.visible);
      EXPECT_EQ(program.Effect(family.models, model), "M=" + ByteToHex(model));
      const bool opens = std::count(family.opening.begin(), family.opening.end(), model) == 1;
      EXPECT_EQ(menu.form.visible, opens);
      EXPECT_EQ(program.Control(family.button).enabled, opens);
    }
  }
  program.Pick("SharpOP", 26);
  program.Reveal("SharpCom");
  program.Fill("EE");
  EXPECT_EQ(program.Click("SharpCom"), Outcome::kDone);
  EXPECT_EQ(program.Written(), "") << "the last model is not among those that the button looks at";
}

TEST(SubMenus, Te2200HidesItsModeBehindThePrinterAdapter) {
  Installed program(kLatest);
  const auto& menu = program.app.FrmSubMenu;
  program.Register("CASIO");
  program.Effect("CASIOOP", 18, {{F::REGTYPE_EXT1, "01"}});
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200");
  EXPECT_EQ(program.Offered("F1OP"), "RS-232 PORT|TPIF PRINTER ADAPTER");
  EXPECT_EQ(menu.Label1[0].caption + menu.Label1[1].caption + menu.Combo1[0].Text(), "Model :Mode :TE-2200");
  EXPECT_EQ(program.Effect("F1OP", 0), "E=00");
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200 TE2200");
  EXPECT_EQ(program.Effect("F1OP", 1), "E=01");
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200");
  program.Pick("CASIOOP", 19);
  EXPECT_EQ(Titles(menu) + menu.Combo1[0].Text(), "CASIO SUBMENU: TE3000TE3000");
  program.Register("TEC");
  program.Pick("TECOP", 9);
  EXPECT_EQ(menu.Combo1[0].Text(), "TEC SLIP PRINTER");
}

TEST(IpAddress, FrameAndImageAgreeByteByByte) {
  const std::pair<FirmwareId, int> rows[] = {
      {kLatest, 83}, {{"V1300", "R16"}, 65}, {{"V1324", "R19"}, 65}, {{"V1334", "R1"}, 67}};
  for (const auto& [firmware, address] : rows) {
    SCOPED_TRACE(firmware.Joined());
    Installed program(firmware);
    for (int byte = 0; byte < 4; ++byte) {
      program.SetByte("TCPIP", program.Fixed(address + byte), ByteToHex(250 + byte));
    }
    program.SetByte("TCPIP", program.Minor(), "05");
    ASSERT_EQ(program.Register("TCPIP"), Outcome::kDone);
    for (int byte = 0; byte < 4; ++byte) {
      const auto list = "ComboTCPIP(" + std::to_string(byte + 4) + ")";
      EXPECT_EQ(program.Selected(list), 250 + byte);
      EXPECT_EQ(program.Selected("ComboTCPINFO(" + std::to_string(byte) + ")"), byte % 2 == 0 ? 1 : 0);
      EXPECT_EQ(program.Effect(list, 192 + byte),
                "IPADDRESS(" + std::to_string(byte + 1) + ")=" + ByteToHex(192 + byte));
    }
  }
}

TEST(IpAddress, AnInformationSwitchIsOneBit) {
  const std::tuple<const char*, const char*, const char*> rows[] = {{"ComboTCPINFO(0)", "00", "01"},
                                                                    {"ComboTCPINFO(1)", "05", "07"},
                                                                    {"ComboTCPINFO(2)", "A0", "A4"},
                                                                    {"ComboTCPINFO(3)", "F0", "F8"}};
  Installed program(kLatest);
  for (const auto& [list, off, on] : rows) {
    EXPECT_EQ(program.Effect(list, 1, {{F::REGTYPE_MINOR, off}}), std::string("M=") + on);
    EXPECT_EQ(program.Effect(list, 0, {{F::REGTYPE_MINOR, on}}), std::string("M=") + off);
    EXPECT_EQ(program.Effect(list, 0, {{F::REGTYPE_MINOR, off}}), "");
  }
}

TEST(IpAddress, TheOldFrameShowsAndStoresNothing) {
  Installed program({"V1300", "R15"});
  for (int byte = 0; byte < 4; ++byte)
    program.SetByte("TCPIP", program.Fixed(65 + byte), ByteToHex(10 + byte));
  ASSERT_EQ(program.Register("TCPIP"), Outcome::kDone);
  for (int byte = 0; byte < 4; ++byte) {
    const auto list = "ComboTCPIP(" + std::to_string(byte) + ")";
    EXPECT_EQ(program.Selected(list), 10 + byte);
    EXPECT_EQ(program.Effect(list, 192), "");
  }
}

TEST(RegisterWindows, ASubMenuClosesWhenAnotherRegisterWithoutOneIsPicked) {
  Installed program({"V1400", "R12"});
  program.Register("CASIO");
  ASSERT_EQ(program.Pick("CASIOOP", 18), Outcome::kDone);
  EXPECT_TRUE(program.app.FrmSubMenu.form.visible);
  program.Register("GENERIC");
  EXPECT_FALSE(program.app.FrmSubMenu.form.visible);
}

TEST(RegisterWindows, ALongNumberKeepsItsFirstSevenDigitsAndClosingForgetsWhatWasPicked) {
  Installed program({"V1400", "R12"});
  program.Register("MICROS");
  auto& form = program.app.frmMicros;
  ASSERT_EQ(program.Pick("OpMicros", 3), Outcome::kDone);
  Dispatch(program.app, TypeEvent{&form.ECRNumber, "1234567890"});
  program.Click("CMD3700Set");
  EXPECT_EQ(program.app.image[FieldId::ECRDIGIT_1], "01");
  EXPECT_EQ(program.app.image[FieldId::ECRDIGIT_7], "07");

  program.app.image[FieldId::MICROS_STATUS] = "05";
  ASSERT_EQ(program.Pick("OpMicros", 1), Outcome::kDone);
  program.app.image[FieldId::MICROS_STATUS] = "05";
  program.Pick("ComboMODE", 1);
  Dispatch(program.app, CloseEvent{&form.form});
  program.Click("cmdMicros");
  program.Click("cmdSetMicros");
  EXPECT_EQ(program.app.image[FieldId::MICROS_STATUS], "05");
}

}  // namespace
}  // namespace ovl::testing
