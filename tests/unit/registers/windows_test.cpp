// The windows that a register brings: the MICROS network and the sub-menus of CASIO, SHARP and TEC; and the
// address frames of TCPIP.
#include <gtest/gtest.h>

#include "registers/selection_driver.h"
#include "support/firmware_facts.h"
#include "unit/registers/register_program.h"

namespace ovl::testing {
namespace {

// MICROS selected, its window closed.
class Micros : public ::testing::Test {
 protected:
  Micros() {
    program.Register("MICROS");
    Close();
  }

  void Close() { program.Close(window.form); }
  std::string Panels() const {
    return std::string(window.frmIDN.visible ? "IDN " : "") + (window.frmISN.visible ? "ISN " : "") +
           (window.frm3700.visible ? "3700 " : "") + (window.form.visible ? "shown" : "closed");
  }

  Installed program{kLatest};
  controls::MicrosForm& window = program.app.frmMicros;
};

TEST_F(Micros, EachModeOpensItsPanelAndStoresItselfAtOnce) {
  const std::tuple<int, const char*, const char*> rows[] = {{1, "MINOR=01", "IDN shown"},
                                                            {2, "MICROS_STATUS=00 MINOR=02", "ISN shown"},
                                                            {3, "MINOR=03", "3700 shown"},
                                                            {0, "MINOR=00", "closed"}};
  for (const auto& [mode, written, panels] : rows) {
    EXPECT_EQ(program.Effect("OpMicros", mode), written);
    EXPECT_EQ(Panels(), panels);
    Close();
    EXPECT_EQ(program.Written(), written) << "closing stores nothing and takes nothing back";
    program.Fill("EE");
    ASSERT_EQ(program.Click("cmdMicros"), core::Outcome::kDone);
    EXPECT_EQ(Panels(), panels);
    EXPECT_EQ(program.Written(), "") << "the button only shows";
    Close();
  }
}

TEST_F(Micros, NoWindowOpensWhileAnUploadIsApplied) {
  program.app.LinkMode = core::kLinkUpload;
  EXPECT_EQ(program.Effect("OpMicros", 1, {{F::DEVICE_INDEX_BAK, "01"}}), "MINOR=01");
  EXPECT_FALSE(window.form.visible);
  EXPECT_EQ(window.ComboMICROS.Text(), "VIDEO");
  program.Fill("EE");
  program.Click("cmdMicros");
  EXPECT_EQ(Panels() + window.ComboMICROS.Text(), "IDN shown")
      << "what came in the closed window is forgotten";
}

TEST_F(Micros, TheIdnPanelStoresOnlyWithSetAndShowsTheStoredBytes) {
  const auto texts = [&] {
    return window.ComboMICROS.Text() + window.ComboMICROSADD.Text() + window.ComboMODE.Text();
  };
  program.Pick("OpMicros", 1);
  program.Fill("EE");
  for (const auto& [list, last] : {std::pair{"ComboMICROS", 1}, {"ComboMICROSADD", 16}, {"ComboMODE", 1}}) {
    EXPECT_EQ(program.Pick(list, last + 1), core::Outcome::kRefused);
    program.Pick(list, last);
  }
  EXPECT_EQ(program.Written(), "");
  program.Click("cmdSetMicros");
  EXPECT_EQ(program.Written(), "DV_ADDRIND_BAK=10 DEVICE_INDEX_BAK=01 MICROS_STATUS=01");
  EXPECT_FALSE(window.form.visible);
  program.Click("cmdMicros");
  EXPECT_EQ(texts(), "VIDEO15EMULATE");
  Close();

  EXPECT_EQ(program.Effect("OpMicros", 1), "MINOR=01");
  EXPECT_EQ(texts(), "") << "a window opened anew selects nothing for a byte that the list lacks";
  program.Pick("ComboMODE", 1);
  Close();
  program.Click("cmdMicros");
  program.Click("cmdSetMicros");
  EXPECT_EQ(program.Written(), "MINOR=01") << "closing forgets what was picked";
}

TEST_F(Micros, TheIsnPanelStoresEightFields) {
  const std::size_t entries[] = {11, 34, 34, 17, 11, 34, 34, 17};
  program.Effect("OpMicros", 2);
  for (const bool stored : {false, true}) {
    for (std::size_t member = 0; member < 8; ++member) {
      const auto& list = window.ComboISN[member];
      const auto position = 10 - static_cast<int>(member);
      EXPECT_EQ(list.position, stored ? position : -1);
      EXPECT_EQ(list.items.size(), entries[member]);
      EXPECT_EQ(list.items[0] + list.items[1], "ANY00");
      program.Pick("ComboISN(" + std::to_string(member) + ")", position);
    }
    program.Mark();
    program.Click("cmdISNset");
    EXPECT_EQ(program.Written(), stored ? ""
                                        : "REGDV_TYPE_BAK=0A REG_GNA_BAK=09 REG_LNA_BAK=08 REG_IDNA_BAK=07 "
                                          "PCDV_TYPE_BAK=06 PC_GNA_BAK=05 PC_LNA_BAK=04 PC_IDNA_BAK=03");
    EXPECT_FALSE(window.form.visible);
    program.Click("cmdMicros");
  }
}

TEST_F(Micros, TheEcrNumberHasSevenDigits) {
  struct Row {
    std::string typed, left;  // the text after the field was left
  };
  const Row rows[] = {
      {"123", "0000123"},     {"", "0000000"},           {"12AB", "0000012"},        {"AB12", "0000000"},
      {"9999999", "9999999"}, {"0000000012", "0000012"}, {"123456789", "123456789"},
  };
  program.Pick("OpMicros", 3);
  for (const auto& [typed, left] : rows) {
    for (const bool leaves : {true, false}) {
      program.Fill("EE");
      ASSERT_EQ(program.Type(window.ECRNumber, typed), core::Outcome::kDone);
      if (leaves) program.Leave(window.ECRNumber);
      EXPECT_EQ(window.ECRNumber.text, leaves ? left : typed);
      program.Pick("HandSHKCombo", 1);
      EXPECT_EQ(program.Written(), "");
      program.Click("CMD3700Set");
      std::string written = "EXT2=01";
      for (std::size_t digit = 7; digit > 0; --digit)
        written += " ECRDIGIT_" + std::to_string(digit) + "=0" + left[digit - 1];
      EXPECT_EQ(program.Written(), written);
      EXPECT_FALSE(window.form.visible);
      program.Click("cmdMicros");
      EXPECT_EQ(window.ECRNumber.text + window.HandSHKCombo.Text(), left.substr(0, 7) + "ON");
    }
  }
}

// The title of the sub-menu's window, those of the frames that it shows, and the model.
std::string Titles(const controls::SubMenuForm& menu) {
  if (!menu.form.visible) return "closed";
  std::string shown = menu.form.caption + ":";
  for (const auto* frame : {&menu.Frame1, &menu.Frame2, &menu.SharpSubMenuFrame, &menu.UP3000Frm}) {
    if (frame->visible) shown += " " + frame->caption;
  }
  return menu.Frame2.visible ? shown + " (" + menu.Combo1[0].Text() + ")" : shown;
}

// What a sub-menu shows, the control that holds REGTYPE_EXT2, and what that control offers.
struct SubMenu {
  std::string models;  // the option array
  int model;
  const char *titles, *member, *offered;
};
constexpr const char *kMode = "FrmSubMenu.Combo1(1)", *kModes = "TAPPING|EMULATING";
const std::vector<SubMenu> kSubMenus = {
    {"CASIOOP", 18, "CASIO SUBMENU: TE2200 TE2200 (TE-2200)", kMode, kModes},
    {"CASIOOP", 19, "CASIO SUBMENU: TE3000 (TE3000)", kMode, kModes},
    {"CASIOOP", 20, "CASIO SUBMENU: TE4000 (TE4000)", kMode, kModes},
    {"CASIOOP", 21, "CASIO SUBMENU: TE4500 (TE4500)", kMode, kModes},
    {"CASIOOP", 33, "CASIO SUBMENU: TK-T500 (TK-T500)", kMode, kModes},
    {"SharpOP", 12, "SHARP SUBMENU: A410,420", "Option1", "TAP|EMULATE|TAP US|EMULATE US"},
    {"SharpOP", 19, "SHARP SUBMENU: A-750/A-770 ER-01PU", "Option1", "RECEIPT|JOURNAL"},
    {"SharpOP", 21, "SHARP SUBMENU: UP600/700", "Option1", "TAP|EMULATE"},
    {"SharpOP", 22, "SHARP SUBMENU: UP300/3300", "Combo2", "ANY|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16"},
    {"TECOP", 9, "TEC SUBMENU: TEC SLIP PRINTER (TEC SLIP PRINTER)", kMode, kModes},
};

const SubMenu* SubMenuOf(const std::string& models, int model) {
  for (const auto& row : kSubMenus) {
    if (row.models == models && row.model == model) return &row;
  }
  return nullptr;
}

void ExpectSubMenu(Installed& program, const SubMenu& expected, const std::string& button) {
  auto& menu = program.app.FrmSubMenu;
  const auto& [models, model, titles, member, offered] = expected;
  EXPECT_EQ(Titles(menu), titles);
  for (const int stored : {1, 0}) {
    program.Effect(models, model, {{F::REGTYPE_EXT1, "00"}, {F::REGTYPE_EXT2, codecs::ByteToHex(stored)}});
    EXPECT_EQ(Titles(menu), titles);
    EXPECT_EQ(program.Selected(member), stored);
  }
  EXPECT_EQ(program.Offered(member), offered);
  EXPECT_EQ(program.Effect(member, 1), "EXT2=01");
  EXPECT_EQ(program.Close(menu.form), core::Outcome::kDone);
  EXPECT_EQ(Titles(menu), "closed");
  EXPECT_EQ(program.Click(button), core::Outcome::kDone);
  EXPECT_EQ(Titles(menu), titles);
  EXPECT_EQ(program.Written(), "MINOR=" + codecs::ByteToHex(model) + " EXT2=01");
}

TEST(SubMenus, OpenOnlyForTheirModelsAndStoreAtOnce) {
  Installed program(kLatest);
  struct Row {
    std::string register_name, models, button;
    int count;
  };
  const Row rows[] = {
      {"CASIO", "CASIOOP", "Command1", 35},
      {"SHARP", "SharpOP", "SharpCom", 27},
      {"TEC", "TECOP", "Command2", 11},
  };
  for (const auto& [register_name, models, button, count] : rows) {
    ASSERT_EQ(program.Register(register_name), core::Outcome::kDone);
    EXPECT_EQ(program.Pick(models, count), core::Outcome::kRefused);
    for (int model = 0; model < count; ++model) {
      SCOPED_TRACE(models + " " + std::to_string(model));
      const auto* menu = SubMenuOf(models, model);
      const auto written = "MINOR=" + codecs::ByteToHex(model);
      EXPECT_EQ(program.Effect(models, model), written);
      EXPECT_EQ(program.Control(button).enabled, menu != nullptr);
      EXPECT_EQ(program.app.FrmSubMenu.form.visible, menu != nullptr);
      // The button stores the model again, except for the last model of SHARP, which it does not know.
      program.Reveal(button);
      program.Fill("EE");
      program.Click(button);
      EXPECT_EQ(program.Written(), register_name == "SHARP" && model == 26 ? "" : written);
      if (menu != nullptr) ExpectSubMenu(program, *menu, button);
    }
  }
}

TEST(SubMenus, Te2200HidesItsModeBehindThePrinterAdapter) {
  Installed program(kLatest);
  const auto& menu = program.app.FrmSubMenu;
  program.Register("CASIO");
  program.Effect("CASIOOP", 18, {{F::REGTYPE_EXT1, "01"}});
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200");
  EXPECT_EQ(program.Offered("F1OP"), "RS-232 PORT|TPIF PRINTER ADAPTER");
  EXPECT_EQ(menu.Label1[0].caption + menu.Label1[1].caption, "Model :Mode :");
  EXPECT_EQ(program.Effect("F1OP", 0), "EXT1=00");
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200 TE2200 (TE-2200)");
  EXPECT_EQ(program.Effect("F1OP", 1), "EXT1=01");
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200");
  program.Pick("CASIOOP", 19);
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE3000 (TE3000)");
  program.Effect("CASIOOP", 18);  // its byte names neither port
  EXPECT_EQ(Titles(menu), "CASIO SUBMENU: TE2200 TE2200 (TE-2200)");
  EXPECT_EQ(program.Selected("F1OP"), -1);
}

TEST(RegisterWindows, StayOpenForTheirOwnModelAndCloseForAnyOther) {
  const std::tuple<std::string, const char*, int> rows[] = {
      {"CASIO", "CASIOOP", 18}, {"SHARP", "SharpOP", 12}, {"TEC", "TECOP", 9}, {"MICROS", "OpMicros", 1}};
  Installed program(kLatest);
  for (const auto& [name, models, model] : rows) {
    SCOPED_TRACE(name);
    auto& form = name == "MICROS" ? program.app.frmMicros.form : program.app.FrmSubMenu.form;
    for (const char* next : {"GENERIC", name.c_str()}) {
      program.SetByte(name, program.Minor(), codecs::ByteToHex(model));
      program.Register(name);
      program.Close(form);
      program.Register(name);
      EXPECT_EQ(form.visible, name == "MICROS") << "the others open with a choice alone";
      ASSERT_EQ(program.Pick(models, model), core::Outcome::kDone);
      program.Register(name);
      EXPECT_TRUE(form.visible);
      program.SetByte(name, program.Minor(), "00");
      program.Register(next);
      EXPECT_FALSE(form.visible) << next;
    }
  }
}

TEST(IpAddress, FrameAndImageAgreeByteByByteButTheOldFrameStoresNothing) {
  for (const firmware::FirmwareId& firmware : {kLatest, firmware::FirmwareId{"V1300", "R15"}}) {
    Installed program(firmware);
    ASSERT_EQ(program.Register("TCPIP"), core::Outcome::kDone);
    auto& image = program.app.image;
    for (int byte = 0; byte < 4; ++byte) image.at(F::IPADDRESS, byte + 1) = codecs::ByteToHex(250 + byte);
    image[F::REGTYPE_MINOR] = "05";
    registers::ShowRegisterOptions(program.app);
    const bool old = firmware != kLatest;
    for (int byte = 0; byte < 4; ++byte) {
      const auto list = "ComboTCPIP(" + std::to_string(old ? byte : byte + 4) + ")";
      const auto information = "ComboTCPINFO(" + std::to_string(byte) + ")";
      EXPECT_EQ(program.Selected(list), 250 + byte);
      EXPECT_EQ(program.Selected(information), old ? -1 : 1 - byte % 2);
      const auto written = "IPADDRESS(" + std::to_string(byte + 1) + ")=" + codecs::ByteToHex(192 + byte);
      EXPECT_EQ(program.Effect(list, 192 + byte), old ? "" : written);
      for (const int others : {0x00, 0xFF}) {
        const int bit = 1 << byte, on = others | bit, off = others & ~bit;
        EXPECT_EQ(program.Effect(information, 1, {{F::REGTYPE_MINOR, codecs::ByteToHex(off)}}),
                  "MINOR=" + codecs::ByteToHex(on));
        EXPECT_EQ(program.Effect(information, 0, {{F::REGTYPE_MINOR, codecs::ByteToHex(on)}}),
                  "MINOR=" + codecs::ByteToHex(off));
      }
    }
  }
}

}  // namespace
}  // namespace ovl::testing
