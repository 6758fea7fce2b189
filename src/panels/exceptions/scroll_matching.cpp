#include "panels/exceptions/scroll_matching.h"

#include <array>

#include "core/actions.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;

constexpr std::array kEditors = {
    core::Editor{SCROLLMATCH_BAK, Place::kExceptionReport, "ComboScroll(0) ComboScroll(1)"},
};

}  // namespace

using controls::Scroll;

void ApplyScrollMatching(core::Application& app) {
  auto& lists = app.frmMain.ComboScroll;
  const int timeout = codecs::HexToInt(app.image[image::FieldId::SCROLLMATCH_BAK]);
  AssignPosition(app, lists[Scroll::kMatching], timeout == 0 ? 0 : 1);
  AssignPosition(app, lists[Scroll::kTimeout], timeout);
}

// The field cannot store "on" without a timeout. Therefore each list also changes the other one.
void ComboScroll_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  auto& lists = app.frmMain.ComboScroll;
  if (index == Scroll::kMatching) {
    const bool on = lists[Scroll::kMatching].position != 0;
    if (!on) AssignPosition(app, lists[Scroll::kTimeout], 0);
    if (on && lists[Scroll::kTimeout].position == 0) AssignPosition(app, lists[Scroll::kTimeout], 1);
    return;
  }
  const int timeout = lists[Scroll::kTimeout].position;
  app.image[image::FieldId::SCROLLMATCH_BAK] = codecs::ByteToHex(timeout);
  AssignPosition(app, lists[Scroll::kMatching], timeout == 0 ? 0 : 1);
}

std::span<const core::Editor> ScrollMatchingEditors() {
  return kEditors;
}

}  // namespace ovl::panels
