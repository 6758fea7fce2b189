// The rules about the text display, the clock, the title and the demonstration.
#include <array>

#include "checks/conditions.h"
#include "checks/rule.h"
#include "codecs/codecs.h"
#include "image/slot_records.h"

namespace ovl::checks {
namespace {

using enum image::FieldId;
using enum Severity;
using core::Place;

// The panel itself says how many lines the clock and the title need.
Hits TooFewLines(Subject& subject) {
  if (subject.Form().ComboDIP[controls::Dip::kLines].position < 0) return {};
  const int lines = subject.Byte(DSPLINES_BAK);
  const int needed = codecs::HexToInt(subject.ByPanelRules()[DSPLINES_BAK]);
  if (lines == needed) return {};
  return {{0, {std::to_string(lines), std::to_string(needed)}}};
}

bool HasTitle(const Subject& subject) {
  return !IsBlank(subject.Form().Title_Text.text);
}

Hits TitleEmpty(Subject& subject) {
  return subject.HasBit(DSPCFG_BAK, image::kTitlerBit) && !HasTitle(subject) ? Hits{{}} : Hits();
}

Hits TitleOff(Subject& subject) {
  return !subject.HasBit(DSPCFG_BAK, image::kTitlerBit) && HasTitle(subject) ? Hits{{}} : Hits();
}

Hits ClockLocked(Subject& subject) {
  const bool hidden = subject.Byte(TD_LOCKING_BAK) != 0 && !subject.HasBit(DSPCFG_BAK, image::kClockBit);
  return hidden ? Hits{{}} : Hits();
}

Hits DemoOn(Subject& subject) {
  return subject.Form().DemoMode.checked ? Hits{{}} : Hits();
}

constexpr std::array kRules = {
    Rule{"too-few-lines", kWarning, "DISPLAY LINE is %1, but the clock and the title need at least %2 lines.",
         Place::kText, "ComboDIP(1)", TooFewLines},
    Rule{"title-empty", kWarning, "TITLER is ON, but the title is empty.", Place::kTime, "Title_Text",
         TitleEmpty},
    Rule{"demo-on", kWarning, "The unit starts its demo after power up.", Place::kRemote, "DemoMode", DemoOn},
    Rule{"title-off", kNote, "There is a title, but TITLER is OFF.", Place::kTime, "ComboTD(5)", TitleOff},
    Rule{"clock-locked", kNote, "T/D LOCKING is ON, but T/D DISPLAY is OFF.", Place::kTime, "ComboTD(0)",
         ClockLocked},
};

}  // namespace

std::span<const Rule> PanelRules() {
  return kRules;
}

}  // namespace ovl::checks
