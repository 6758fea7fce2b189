#include "panels/exceptions/scroll_matching.h"

#include "core/actions.h"

namespace ovl {

void ApplyScrollMatching(Application& app) {
  auto& lists = app.frmMain.ComboScroll;
  const int timeout = HexToInt(app.image[FieldId::SCROLLMATCH_BAK]);
  AssignPosition(app, lists[0], timeout == 0 ? 0 : 1);
  AssignPosition(app, lists[1], timeout);
}

// Switched on without a timeout cannot be stored: each list takes the other along.
void ComboScroll_Click(Application& app, int index) {
  if (!app.PanelsReady) return;
  auto& lists = app.frmMain.ComboScroll;
  if (index == 0) {
    const bool on = lists[0].position != 0;
    if (!on) AssignPosition(app, lists[1], 0);
    if (on && lists[1].position == 0) AssignPosition(app, lists[1], 1);
    return;
  }
  const int timeout = lists[1].position;
  app.image[FieldId::SCROLLMATCH_BAK] = ByteToHex(timeout);
  AssignPosition(app, lists[0], timeout == 0 ? 0 : 1);
}

}  // namespace ovl
