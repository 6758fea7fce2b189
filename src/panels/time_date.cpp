#include "panels/time_date.h"

#include <array>

#include "image/slot_records.h"
#include "panels/exceptions/text_entry.h"
#include "panels/panel.h"
#include "panels/text_display.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;
using enum core::ValueDisplay;
using controls::Td;

constexpr std::array kDaylightCodes = {"01", "02", "04", "06", "08", "0A"};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboTD.at(static_cast<std::size_t>(member));
}

void GatherDisplayBit(core::Application& app, int member, int bit) {
  const int flags = WithSelection(codecs::HexToInt(app.image[DSPCFG_BAK]), bit, Member(app, member));
  ApplyLineRule(app);
  app.image[DSPCFG_BAK] = codecs::ByteToHex(flags);
}

constexpr std::array kEditors = {
    core::Editor{DSPCFG_BAK, Place::kTime, "ComboTD(0)", 0x80, kSetIsOn},
    core::Editor{DSPCFG_BAK, Place::kTime, "ComboTD(5)", 0x10, kSetIsOn},
    core::Editor{TIME_FORMAT_BAK, Place::kTime, "ComboTD(1)"},
    core::Editor{DATE_FORMAT_BAK, Place::kTime, "ComboTD(2)"},
    core::Editor{TD_LOCKING_BAK, Place::kTime, "ComboTD(4)"},
    core::Editor{DAYLIGHT_BAK, Place::kTime, "ComboTD(3)"},
    core::Editor{LANGUAGE_BAK, Place::kTime, "ComboLang"},
    core::Editor{ONSCRNTITL, Place::kTime, "Title_Text"},
};

}  // namespace

void ApplyTimeDate(core::Application& app) {
  const PanelsQuiet quiet(app);
  AssignPosition(app, Member(app, Td::kTimeFormat), codecs::HexToInt(app.image[TIME_FORMAT_BAK]));
  AssignPosition(app, Member(app, Td::kDateFormat), codecs::HexToInt(app.image[DATE_FORMAT_BAK]));
  AssignPosition(app, Member(app, Td::kDaylight),
                 codecs::HalfToEven(codecs::HexToInt(app.image[DAYLIGHT_BAK])));
  AssignPosition(app, Member(app, Td::kLocking), codecs::HexToInt(app.image[TD_LOCKING_BAK]));
  ApplyTitle(app);
  AssignPosition(app, app.frmMain.ComboLang, codecs::HexToInt(app.image[LANGUAGE_BAK]));
}

void ComboTD_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  const int position = Member(app, index).position;
  switch (index) {
    case Td::kClockDisplay:
      GatherDisplayBit(app, index, image::kClockBit);
      break;
    case Td::kTimeFormat:
      app.image[TIME_FORMAT_BAK] = codecs::ByteToHex(position);
      break;
    case Td::kDateFormat:
      app.image[DATE_FORMAT_BAK] = codecs::ByteToHex(position);
      break;
    case Td::kDaylight:
      if (position < static_cast<int>(kDaylightCodes.size())) {
        app.image[DAYLIGHT_BAK] = kDaylightCodes.at(static_cast<std::size_t>(position));
      }
      break;
    case Td::kLocking:
      app.image[TD_LOCKING_BAK] = codecs::ByteToHex(position);
      break;
    case Td::kTitler:
      GatherDisplayBit(app, index, image::kTitlerBit);
      break;
    default:
      break;
  }
  RefreshSavedIndexes(app, "ComboTD", app.frmMain.ComboTD);
}

void ComboLang_Click(core::Application& app, int) {
  if (app.PanelsReady) app.image[LANGUAGE_BAK] = codecs::ByteToHex(app.frmMain.ComboLang.position);
}

std::span<const core::Editor> TimeDateEditors() {
  return kEditors;
}

}  // namespace ovl::panels
