#include "panels/alarms.h"

#include <array>

#include "panels/exceptions/text_entry.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;

constexpr int kNoTrigger = 0;
constexpr int kRtsTrigger = 28;
constexpr std::size_t kCommonDigits = 6;  // trigger and duration, in every family
constexpr int kFlagTypeMask = 7;

// What a duration stores: a down counter's start; the last one is a pulse.
constexpr std::array kDurations = {0xFF, 0xFD, 0xFB, 0xF6, 0xF1, 0xEC, 0xE2, 0xC4, 0x88, 0x4C, 0x10, 0x00};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboALM.at(static_cast<std::size_t>(member));
}

// The alarm that the panel shows, 1 to 16; 0 before one was picked.
int Shown(const core::Application& app) {
  return app.frmMain.ComboALM[0].position + 1;
}

bool HasAlarmType(const firmware::FirmwareId& firmware) {
  const int release = firmware.Number();
  if (firmware.IsV1400()) return release >= 6;
  return (firmware.version == "V1300" && release >= 26) || (firmware.version == "V1324" && release >= 25) ||
         firmware.version == "V1310" || firmware.version == "V1334";
}

void ShowTriggerMark(core::Application& app, int trigger) {
  app.frmMain.lbAlmTrig.visible = trigger != kNoTrigger && trigger != kRtsTrigger;
}

void ShowNormalState(core::Application& app, int number) {
  const bool upper = number > 8;
  const int states = codecs::HexToInt(app.image.at(ALMNORMAL_BAK, upper ? 2 : 1));
  AssignPosition(app, Member(app, 2), HasBit(states, upper ? number - 9 : number - 1) ? 1 : 0);
}

void ShowDuration(core::Application& app, int value) {
  for (int position = 0; position < static_cast<int>(kDurations.size()); ++position) {
    if (kDurations[static_cast<std::size_t>(position)] == value)
      AssignPosition(app, Member(app, 3), position);
  }
}

void ShowTriggeredText(core::Application& app, int number) {
  const auto record = app.image.at(TRIGGER_TEXT, number);
  const int flags = codecs::HexToInt(record);
  AssignPosition(app, app.frmMain.ComboTrigger[0], flags & 1);
  AssignPosition(app, app.frmMain.ComboTrigger[1], flags >> 1 & 1);
  const auto text = Slice(record, 2);
  AssignText(app, app.frmMain.TextTrigger,
             StoredText(Slice(text, 0, std::max<std::size_t>(text.size(), 2) - 2)));
}

void ShowByFirmware(core::Application& app, int number) {
  if (app.firmware.IsV1400()) {
    const auto& record = app.image.at(ALMSTRUCT_BAK, number);
    AssignPosition(app, Member(app, 6),
                   codecs::HexToInt(Slice(record, std::max<std::size_t>(record.size(), 2) - 2)));
    AssignPosition(app, app.frmMain.ComboTrigger[2], codecs::HexToInt(app.image.at(TRIGGER_DELAY, number)));
  }
  if (HasAlarmType(app.firmware))
    AssignPosition(app, Member(app, 7), codecs::HexToInt(app.image.at(ALM_MODE, number)));
}

// Counts the shown alarm from 0, where the load counts from 1: the ninth alarm's state is out of reach, and
// the unit's images were made that way.
void StoreNormalState(core::Application& app) {
  const int index = Member(app, 0).position;
  const bool upper = index > 8;
  const int bit = upper ? index - 8 : index;
  if (bit > 7) return;
  auto& states = app.image.at(ALMNORMAL_BAK, upper ? 2 : 1);
  states = codecs::ByteToHex(WithSelection(codecs::HexToInt(states), bit, Member(app, 2)));
}

void StoreTrigger(core::Application& app, std::string& record) {
  const int trigger = Member(app, 1).position;
  ShowTriggerMark(app, trigger);
  record = codecs::ByteToHex(trigger) + Slice(record, 2);
}

void StoreDuration(core::Application& app, std::string& record) {
  if (!firmware::IsKnownFamily(app.firmware.version)) return;
  const int position = Member(app, 3).position;
  auto stored = Slice(record, 0, 2) + codecs::ByteToHex(kDurations.at(static_cast<std::size_t>(position))) +
                codecs::ByteToHex(position);
  if (app.firmware.IsV1400()) stored += Slice(record, kCommonDigits);
  record = std::move(stored);
}

void StoreVideoLoss(core::Application& app, std::string& record) {
  if (!app.firmware.IsV1400()) return;
  record = Slice(record, 0, kCommonDigits) + codecs::ByteToHex(Member(app, 6).position);
}

void StoreFlagType(core::Application& app) {
  auto& flags = app.image[ALMCFG_BAK];
  app.ImageTouched = true;
  flags = codecs::ByteToHex((codecs::HexToInt(flags) & ~kFlagTypeMask) | Member(app, 4).position);
}

// What a click on one of the members of the shown alarm stores.
void StoreMember(core::Application& app, int index) {
  auto& record = app.image.at(ALMSTRUCT_BAK, Shown(app));
  switch (index) {
    case 1:
      StoreTrigger(app, record);
      break;
    case 2:
      StoreNormalState(app);
      break;
    case 3:
      StoreDuration(app, record);
      break;
    case 6:
      StoreVideoLoss(app, record);
      break;
    case 7:
      save_Alarm_Type(app);
      break;
    default:
      break;
  }
}

}  // namespace

void ApplyAlarmGlobals(core::Application& app) {
  AssignPosition(app, Member(app, 4), codecs::HexToInt(app.image[ALMCFG_BAK]) & kFlagTypeMask);
  AssignPosition(app, Member(app, 5), HalfToEven(codecs::HexToInt(app.image[FLAGDWLIND])));
  AssignPosition(app, Member(app, 0), 1);
  AssignPosition(app, Member(app, 0), 0);
}

void LoadAlarm(core::Application& app, int number) {
  const auto record = app.image.at(ALMSTRUCT_BAK, number);
  const int trigger = codecs::HexToInt(record);
  ShowTriggerMark(app, trigger);
  AssignPosition(app, Member(app, 1), trigger);
  ShowNormalState(app, number);
  ShowDuration(app, codecs::HexToInt(Slice(record, 2)));
  ShowTriggeredText(app, number);
  ShowByFirmware(app, number);
}

void ComboALM_Click(core::Application& app, int index) {
  if (index == 0) LoadAlarm(app, Shown(app));
  if (index == 4) StoreFlagType(app);
  if (index == 5) app.image[FLAGDWLIND] = codecs::ByteToHex(Member(app, 5).position * 2);
  if (Shown(app) > 0) StoreMember(app, index);
  RefreshSavedIndexes(app, "ComboALM", app.frmMain.ComboALM);
}

void save_Alarm_Type(core::Application& app) {
  app.image.at(ALM_MODE, Shown(app)) = codecs::ByteToHex(Member(app, 7).position);
}

void ComboTrigger_Click(core::Application& app, int index) {
  const auto& lists = app.frmMain.ComboTrigger;
  if (Shown(app) > 0) {
    auto& record = app.image.at(TRIGGER_TEXT, Shown(app));
    if (index == 2) {
      save_RTS_TRGGERED(app);
    } else {
      const int flags =
          WithSelection(codecs::HexToInt(record), index, lists.at(static_cast<std::size_t>(index)));
      record.replace(0, std::min<std::size_t>(record.size(), 2), codecs::ByteToHex(flags));
    }
  }
  RefreshSavedIndexes(app, "ComboTrigger", lists);
}

void save_RTS_TRGGERED(core::Application& app) {
  app.image.at(TRIGGER_DELAY, Shown(app)) = codecs::ByteToHex(app.frmMain.ComboTrigger[2].position);
}

void TextTrigger_Change(core::Application& app, int) {
  if (Shown(app) == 0) return;
  auto& record = app.image.at(TRIGGER_TEXT, Shown(app));
  record = codecs::ByteToHex(codecs::HexToInt(record)) + PaddedText(app.frmMain.TextTrigger.text) + "00";
}

void cmdSetTrigger_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kTrigger);
}

}  // namespace ovl::panels
