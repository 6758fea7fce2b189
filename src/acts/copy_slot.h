// Copies an exception or an alarm to other numbers.
#pragma once

#include "core/application.h"
#include "phrases/phrases.h"

namespace ovl::acts {

enum class SlotKind { kException, kAlarm };

// Numbers count from 1. A target that is the source itself is skipped.
struct SlotCopy {
  SlotKind kind;
  int from;
  int first;
  int last;
};

// The highest number: 24 exceptions, 16 alarms.
int SlotCount(SlotKind kind);

// The list of the panel that selects the slot.
controls::List& SlotList(core::Application& app, SlotKind kind);

// "This overwrites exceptions 4 and 7." Empty if all targets are free.
phrases::Words OverwriteWarning(const core::Application& app, const SlotCopy& copy);

// "Copy alarm", in the Edit menu.
phrases::Words NameOfCopy(SlotKind kind);

// False: the numbers are not in order, or the main form is not on the screen or another window blocks it.
bool CanCopySlot(const core::Application& app, const SlotCopy& copy);

// Stores in every target what a user would store there who picks all values of the source on the panel. Where
// no pick can store a value, such as an unknown bit of the flags, the target gets the bytes of the source;
// the normal state of alarm 9 stays as it is. If the panel shows a target, it shows it again. Runs inside
// the gate (`core::DispatchAct`).
void CopySlot(core::Application& app, const SlotCopy& copy);

}  // namespace ovl::acts
