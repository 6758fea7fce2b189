#include "panels/text_display.h"

#include <algorithm>
#include <array>

#include "image/slot_records.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;
using enum core::ValueDisplay;
using controls::Dip;
using controls::Td;

constexpr int kRts = 12;
constexpr int kFirstCharacters = 10;

// A blank time as it is stored: 256 minus the minutes, and a mask for the display flags. The masks also clear
// flags of other lists; only one time has a mask that keeps them.
struct BlankTime {
  int value;
  int mask;
};
constexpr std::array kBlankTimes = {
    BlankTime{0xFF, 0xF1}, BlankTime{0xFD, 0xF1}, BlankTime{0xFB, 0xF1}, BlankTime{0xF6, 0xFF},
    BlankTime{0xF1, 0xF1}, BlankTime{0xEC, 0xF1}, BlankTime{0xE2, 0xF1}, BlankTime{0xC4, 0xF1},
    BlankTime{0x88, 0xF1}, BlankTime{0x4C, 0xF1}, BlankTime{0x10, 0xF1}, BlankTime{0x00, 0xF0},
    BlankTime{0x00, 0xF0},
};

// The lists that are stored in one bit of the display flags, in the order in which a load sets them.
struct FlagMember {
  int member;
  int bit;
};
constexpr std::array kFlagMembers = {FlagMember{Dip::kFormat, 1}, FlagMember{Dip::kLineCompress, 2},
                                     FlagMember{Dip::kScrollDelay, 3}, FlagMember{Dip::kLineJustified, 6},
                                     FlagMember{Dip::kDisplayed, image::kTextBit}};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboDIP.at(static_cast<std::size_t>(member));
}

// A value that no blank time has changes nothing, even if the number is a valid position.
void ApplyBlankTime(core::Application& app) {
  const int value = codecs::HexToInt(app.image[BLNKVAL]);
  for (int position = 0; position < kRts; ++position) {
    if (kBlankTimes[static_cast<std::size_t>(position)].value != value) continue;
    AssignPosition(app, Member(app, Dip::kScreenBlank), position);
    break;
  }
  if (app.image[BLNKRTS_BAK] == "01") AssignPosition(app, Member(app, Dip::kScreenBlank), kRts);
}

int GatherBlankTime(core::Application& app, int flags) {
  const int position = Member(app, Dip::kScreenBlank).position;
  const auto& time = kBlankTimes.at(static_cast<std::size_t>(position));
  app.image[BLNKRTS_BAK] = position == kRts ? "01" : "00";
  app.image[BLNKVAL] = codecs::ByteToHex(time.value);
  app.image[BLNKIND] = codecs::ByteToHex(position);
  return flags & time.mask;
}

constexpr std::array kEditors = {
    core::Editor{DSPLINES_BAK, Place::kText, "ComboDIP(1)", core::kWholeByte, kPicked},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(0)", 0x01},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(2)", 0x02, kSetIsOn},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(3)", 0x04, kSetIsOn},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(4)", 0x40, kSetIsOn},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(5)", 0x08, kSetIsOn},
    core::Editor{DSPCFG_BAK, Place::kText, "ComboDIP(6)", 0x20, kSetIsOn},
    core::Editor{BLNKVAL, Place::kText, "ComboDIP(0)", core::kWholeByte, kPicked},
    core::Editor{BLNKIND, Place::kText, "ComboDIP(0)", core::kWholeByte, kPicked},
    core::Editor{SPCOMPRES_BAK, Place::kText, "ComboDIP(7)", core::kWholeByte, kPicked},
    core::Editor{DSPCHARS_BAK, Place::kText, "ComboDIP(8)", core::kWholeByte, kPicked},
    core::Editor{BLNKRTS_BAK, Place::kText, "ComboDIP(0)", core::kWholeByte, kPicked},
};

}  // namespace

void ApplyDisplay(core::Application& app) {
  const PanelsQuiet quiet(app);
  const int flags = codecs::HexToInt(app.image[DSPCFG_BAK]);
  for (const auto& row : kFlagMembers)
    AssignPosition(app, Member(app, row.member), codecs::HasBit(flags, row.bit) ? 1 : 0);
  AssignPosition(app, Member(app, Dip::kLines), codecs::HexToInt(app.image[DSPLINES_BAK]) - 1);
  ApplyBlankTime(app);
  AssignPosition(app, app.frmMain.ComboTD[Td::kTitler], codecs::HasBit(flags, image::kTitlerBit) ? 1 : 0);
  AssignPosition(app, app.frmMain.ComboTD[Td::kClockDisplay],
                 codecs::HasBit(flags, image::kClockBit) ? 1 : 0);
  AssignPosition(app, Member(app, Dip::kSpaceCompress), codecs::HexToInt(app.image[SPCOMPRES_BAK]));
  AssignPosition(app, Member(app, Dip::kCharacters),
                 codecs::HexToInt(app.image[DSPCHARS_BAK]) - kFirstCharacters);
}

void ComboDIP_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  int flags = codecs::HexToInt(app.image[DSPCFG_BAK]);
  if (index == Dip::kScreenBlank) flags = GatherBlankTime(app, flags);
  if (index == Dip::kLines) {
    ApplyLineRule(app);
    app.image[DSPLINES_BAK] = codecs::ByteToHex(Member(app, Dip::kLines).position + 1);
  }
  for (const auto& row : kFlagMembers) {
    if (row.member == index) flags = WithSelection(flags, row.bit, Member(app, index));
  }
  if (index == Dip::kSpaceCompress)
    app.image[SPCOMPRES_BAK] = codecs::ByteToHex(Member(app, Dip::kSpaceCompress).position);
  if (index == Dip::kCharacters)
    app.image[DSPCHARS_BAK] = codecs::ByteToHex(Member(app, Dip::kCharacters).position + kFirstCharacters);
  app.image[DSPCFG_BAK] = codecs::ByteToHex(flags);
  RefreshSavedIndexes(app, "ComboDIP", app.frmMain.ComboDIP);
}

void ApplyLineRule(core::Application& app) {
  const auto& form = app.frmMain;
  const int lines_taken = (form.ComboTD[Td::kClockDisplay].position == 1 ? 1 : 0) +
                          (form.ComboTD[Td::kTitler].position == 1 ? 1 : 0);
  const int position = Member(app, Dip::kLines).position;
  if (position >= 0) AssignPosition(app, Member(app, Dip::kLines), std::max(position, lines_taken));
}

std::span<const core::Editor> DisplayEditors() {
  return kEditors;
}

}  // namespace ovl::panels
