#include "panels/exceptions/scroll_matching.h"

#include "core/actions.h"

namespace ovl::panels {

void ApplyScrollMatching(core::Application& app) {
  auto& lists = app.frmMain.ComboScroll;
  const int timeout = codecs::HexToInt(app.image[image::FieldId::SCROLLMATCH_BAK]);
  AssignPosition(app, lists[0], timeout == 0 ? 0 : 1);
  AssignPosition(app, lists[1], timeout);
}

// The field cannot store "on" without a timeout. Therefore each list also changes the other one.
void ComboScroll_Click(core::Application& app, int index) {
  if (!app.PanelsReady) return;
  auto& lists = app.frmMain.ComboScroll;
  if (index == 0) {
    const bool on = lists[0].position != 0;
    if (!on) AssignPosition(app, lists[1], 0);
    if (on && lists[1].position == 0) AssignPosition(app, lists[1], 1);
    return;
  }
  const int timeout = lists[1].position;
  app.image[image::FieldId::SCROLLMATCH_BAK] = codecs::ByteToHex(timeout);
  AssignPosition(app, lists[0], timeout == 0 ? 0 : 1);
}

}  // namespace ovl::panels
