#include "acts/copy_slot.h"

#include <array>
#include <vector>

#include "codecs/bytes.h"
#include "codecs/codecs.h"
#include "core/actions.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/slot_records.h"
#include "panels/alarms.h"

namespace ovl::acts {
namespace {

using enum image::FieldId;
using phrases::Pattern;
using phrases::Sentence;

constexpr std::array kAlarmFields = {ALMSTRUCT_BAK, TRIGGER_TEXT, TRIGGER_DELAY, ALM_MODE};

bool IsInOrder(const SlotCopy& copy) {
  const int count = SlotCount(copy.kind);
  return copy.from >= 1 && copy.from <= count && copy.first >= 1 && copy.first <= copy.last &&
         copy.last <= count;
}

std::vector<int> TargetsOf(const SlotCopy& copy) {
  std::vector<int> targets;
  for (int number = copy.first; number <= copy.last; ++number) {
    if (number != copy.from) targets.push_back(number);
  }
  return targets;
}

bool IsUsed(const core::Application& app, SlotKind kind, int number) {
  if (kind == SlotKind::kAlarm)
    return image::AlarmTrigger(app.image.at(ALMSTRUCT_BAK, number)) != image::kNoTrigger;
  const auto& slot = app.image.at(EXCPSTRS, number);
  if (image::IsFreeException(slot)) return false;
  return image::ExceptionText(slot, app.image_firmware).find_first_not_of(' ') != std::string::npos;
}

bool HasField(const core::Application& app, image::FieldId field) {
  for (const auto& row : image::FieldTable()) {
    if (row.id == field) {
      return image::InStream(row, firmware::LayoutOf(app.image_firmware), app.image_firmware,
                             firmware::CapabilitiesOf(app.image_firmware), image::Direction::kWrite);
    }
  }
  return false;
}

void StoreAlarm(core::Application& app, int from, int target) {
  auto& image = app.image;
  for (const auto field : kAlarmFields) {
    if (HasField(app, field)) image.at(field, target) = image.at(field, from);
  }
  panels::StoreNormalState(image, target, image::IsNormallyClosed(image, from));
}

}  // namespace

int SlotCount(SlotKind kind) {
  return kind == SlotKind::kAlarm ? image::kAlarms : image::kExceptions;
}

controls::List& SlotList(core::Application& app, SlotKind kind) {
  return kind == SlotKind::kAlarm ? app.frmMain.ComboALM[controls::Alm::kNumber]
                                  : app.frmMain.ComboExcp[controls::Excp::kNumber];
}

phrases::Words OverwriteWarning(const core::Application& app, const SlotCopy& copy) {
  std::vector<phrases::Words> used;
  for (const int number : IsInOrder(copy) ? TargetsOf(copy) : std::vector<int>()) {
    if (IsUsed(app, copy.kind, number)) used.push_back(std::to_string(number));
  }
  if (used.empty()) return {};
  const std::vector<phrases::Words> parts = {phrases::Listed(used)};
  if (copy.kind == SlotKind::kAlarm)
    return used.size() == 1 ? Sentence(Pattern("Act", "This overwrites alarm %1."), parts)
                            : Sentence(Pattern("Act", "This overwrites alarms %1."), parts);
  return used.size() == 1 ? Sentence(Pattern("Act", "This overwrites exception %1."), parts)
                          : Sentence(Pattern("Act", "This overwrites exceptions %1."), parts);
}

phrases::Words NameOfCopy(SlotKind kind) {
  return kind == SlotKind::kAlarm ? Sentence(Pattern("Act", "Copy alarm"))
                                  : Sentence(Pattern("Act", "Copy exception"));
}

bool CanCopySlot(const core::Application& app, const SlotCopy& copy) {
  const auto& form = app.frmMain.form;
  return IsInOrder(copy) && form.loaded && form.visible && form.enabled;
}

void CopySlot(core::Application& app, const SlotCopy& copy) {
  auto& list = SlotList(app, copy.kind);
  bool shown = false;
  for (const int target : TargetsOf(copy)) {
    if (copy.kind == SlotKind::kAlarm) {
      StoreAlarm(app, copy.from, target);
    } else {
      app.image.at(EXCPSTRS, target) = app.image.at(EXCPSTRS, copy.from);
    }
    shown = shown || target == list.position + 1;
  }
  if (shown) AssignPosition(app, list, list.position, core::Raise::kAlways);
}

}  // namespace ovl::acts
