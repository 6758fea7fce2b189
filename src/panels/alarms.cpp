#include "panels/alarms.h"

#include <array>

#include "firmware/traits.h"
#include "image/slot_records.h"
#include "panels/exceptions/text_entry.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Part;
using core::Place;
using enum core::ValueDisplay;
using controls::Alm;
using controls::TriggerList;

constexpr int kFlagTypeMask = 7;

// The stored values of the durations in list order: 256 minus the time; the last one is a pulse.
constexpr std::array kDurations = {0xFF, 0xFD, 0xFB, 0xF6, 0xF1, 0xEC, 0xE2, 0xC4, 0x88, 0x4C, 0x10, 0x00};

controls::List& Member(core::Application& app, int member) {
  return app.frmMain.ComboALM.at(static_cast<std::size_t>(member));
}

// The alarm on the panel, 1 to 16; 0 if none is selected yet.
int Shown(const core::Application& app) {
  return app.frmMain.ComboALM[Alm::kNumber].position + 1;
}

void ShowTriggerMark(core::Application& app, int trigger) {
  app.frmMain.lbAlmTrig.visible = trigger != image::kNoTrigger && trigger != image::kRtsTrigger;
}

void ShowNormalState(core::Application& app, int number) {
  AssignPosition(app, Member(app, Alm::kNormalState), image::IsNormallyClosed(app.image, number) ? 1 : 0);
}

void ShowDuration(core::Application& app, int value) {
  for (int position = 0; position < static_cast<int>(kDurations.size()); ++position) {
    if (kDurations[static_cast<std::size_t>(position)] == value)
      AssignPosition(app, Member(app, Alm::kDuration), position);
  }
}

void ShowTriggeredText(core::Application& app, int number) {
  const auto record = app.image.at(TRIGGER_TEXT, number);
  const int flags = codecs::HexToInt(record);
  AssignPosition(app, app.frmMain.ComboTrigger[TriggerList::kDisplay], flags & 1);
  AssignPosition(app, app.frmMain.ComboTrigger[TriggerList::kOutput], flags >> 1 & 1);
  AssignText(app, app.frmMain.TextTrigger,
             image::StoredText(image::WithoutEndMark(image::TriggeredDigits(record))));
}

void ShowByFirmware(core::Application& app, int number) {
  if (firmware::HasVideoLoss(app.firmware)) {
    AssignPosition(app, Member(app, Alm::kVideoLoss),
                   image::AlarmVideoLoss(app.image.at(ALMSTRUCT_BAK, number)));
    AssignPosition(app, app.frmMain.ComboTrigger[TriggerList::kDelay],
                   codecs::HexToInt(app.image.at(TRIGGER_DELAY, number)));
  }
  if (firmware::HasAlarmType(app.firmware))
    AssignPosition(app, Member(app, Alm::kType), codecs::HexToInt(app.image.at(ALM_MODE, number)));
}

void StoreTrigger(core::Application& app, std::string& record) {
  const int trigger = Member(app, Alm::kTrigger).position;
  ShowTriggerMark(app, trigger);
  image::StoreAlarmTrigger(record, trigger);
}

void StoreDuration(core::Application& app, std::string& record) {
  if (!firmware::IsKnownFamily(app.firmware.version)) return;
  const int position = Member(app, Alm::kDuration).position;
  const int counter = kDurations.at(static_cast<std::size_t>(position));
  image::StoreAlarmDuration(record, app.firmware, counter, position);
}

void StoreVideoLoss(core::Application& app, std::string& record) {
  if (firmware::HasVideoLoss(app.firmware))
    image::StoreAlarmVideoLoss(record, Member(app, Alm::kVideoLoss).position);
}

void StoreFlagType(core::Application& app) {
  auto& flags = app.image[ALMCFG_BAK];
  app.ImageTouched = true;
  flags =
      codecs::ByteToHex((codecs::HexToInt(flags) & ~kFlagTypeMask) | Member(app, Alm::kFlagType).position);
}

// Stores the list that was clicked for the shown alarm.
void StoreMember(core::Application& app, int index) {
  auto& record = app.image.at(ALMSTRUCT_BAK, Shown(app));
  switch (index) {
    case Alm::kTrigger:
      StoreTrigger(app, record);
      break;
    case Alm::kNormalState:
      StoreNormalState(app.image, Shown(app), Member(app, Alm::kNormalState).position != 0);
      break;
    case Alm::kDuration:
      StoreDuration(app, record);
      break;
    case Alm::kVideoLoss:
      StoreVideoLoss(app, record);
      break;
    case Alm::kType:
      save_Alarm_Type(app);
      break;
    default:
      break;
  }
}

constexpr std::array kEditors = {
    core::Editor{ALMCFG_BAK, Place::kAlarmOutputs, "ComboALM(4)"},
    core::Editor{ALMNORMAL_BAK, Place::kAlarmOutputs, "ComboALM(2)"},
    core::Editor{FLAGDWLIND, Place::kAlarmOutputs, "ComboALM(5)"},
    core::Editor{ALMSTRUCT_BAK, Place::kAlarmOutputs, "ComboALM(1)", core::kWholeByte, kNothing,
                 Part::kFirstByte},
    core::Editor{ALMSTRUCT_BAK, Place::kAlarmOutputs, "ComboALM(3)", core::kWholeByte, kNothing,
                 Part::kDuration},
    core::Editor{ALMSTRUCT_BAK, Place::kAlarmOutputs, "ComboALM(6)", core::kWholeByte, kNothing,
                 Part::kVideoLoss},
    core::Editor{TRIGGER_TEXT, Place::kAlarmOutputs, "TextTrigger", core::kWholeByte, kNothing, Part::kText},
    core::Editor{TRIGGER_TEXT, Place::kAlarmOutputs, "ComboTrigger(0)", 0x01, kNothing, Part::kFirstByte},
    core::Editor{TRIGGER_TEXT, Place::kAlarmOutputs, "ComboTrigger(1)", 0x02, kNothing, Part::kFirstByte},
    core::Editor{TRIGGER_DELAY, Place::kAlarmOutputs, "ComboTrigger(2)"},
    core::Editor{ALM_MODE, Place::kAlarmOutputs, "ComboALM(7)"},
};

}  // namespace

// This counts alarms from 0, while loading counts them from 1. The state of the ninth alarm can therefore not
// be stored. It stays so, because the images of the units were made that way.
void StoreNormalState(image::ConfigImage& image, int number, bool closed) {
  const int index = number - 1;
  const bool upper = index > 8;
  const int bit = upper ? index - 8 : index;
  if (bit > 7) return;
  auto& states = image.at(ALMNORMAL_BAK, upper ? 2 : 1);
  states = codecs::ByteToHex(codecs::WithBit(codecs::HexToInt(states), bit, closed));
}

void ApplyAlarmGlobals(core::Application& app) {
  AssignPosition(app, Member(app, Alm::kFlagType), codecs::HexToInt(app.image[ALMCFG_BAK]) & kFlagTypeMask);
  AssignPosition(app, Member(app, Alm::kFlagDuration),
                 codecs::HalfToEven(codecs::HexToInt(app.image[FLAGDWLIND])));
  AssignPosition(app, Member(app, Alm::kNumber), 1);
  AssignPosition(app, Member(app, Alm::kNumber), 0);
}

void LoadAlarm(core::Application& app, int number) {
  const auto record = app.image.at(ALMSTRUCT_BAK, number);
  const int trigger = image::AlarmTrigger(record);
  ShowTriggerMark(app, trigger);
  AssignPosition(app, Member(app, Alm::kTrigger), trigger);
  ShowNormalState(app, number);
  ShowDuration(app, image::AlarmCounter(record));
  ShowTriggeredText(app, number);
  ShowByFirmware(app, number);
}

void ComboALM_Click(core::Application& app, int index) {
  if (index == Alm::kNumber) LoadAlarm(app, Shown(app));
  if (index == Alm::kFlagType) StoreFlagType(app);
  if (index == Alm::kFlagDuration)
    app.image[FLAGDWLIND] = codecs::ByteToHex(Member(app, Alm::kFlagDuration).position * 2);
  if (Shown(app) > 0) StoreMember(app, index);
  RefreshSavedIndexes(app, "ComboALM", app.frmMain.ComboALM);
}

void save_Alarm_Type(core::Application& app) {
  app.image.at(ALM_MODE, Shown(app)) = codecs::ByteToHex(Member(app, Alm::kType).position);
}

void ComboTrigger_Click(core::Application& app, int index) {
  const auto& lists = app.frmMain.ComboTrigger;
  if (Shown(app) > 0) {
    auto& record = app.image.at(TRIGGER_TEXT, Shown(app));
    if (index == TriggerList::kDelay) {
      save_RTS_TRGGERED(app);
    } else {
      const int flags =
          WithSelection(codecs::HexToInt(record), index, lists.at(static_cast<std::size_t>(index)));
      image::StoreFirstByte(record, flags);
    }
  }
  RefreshSavedIndexes(app, "ComboTrigger", lists);
}

void save_RTS_TRGGERED(core::Application& app) {
  app.image.at(TRIGGER_DELAY, Shown(app)) =
      codecs::ByteToHex(app.frmMain.ComboTrigger[TriggerList::kDelay].position);
}

void TextTrigger_Change(core::Application& app, int) {
  if (Shown(app) == 0) return;
  auto& record = app.image.at(TRIGGER_TEXT, Shown(app));
  record =
      codecs::ByteToHex(codecs::HexToInt(record)) + image::PaddedText(app.frmMain.TextTrigger.text) + "00";
}

void cmdSetTrigger_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kTrigger);
}

std::span<const core::Editor> AlarmEditors() {
  return kEditors;
}

}  // namespace ovl::panels
