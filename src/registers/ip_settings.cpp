#include "registers/ip_settings.h"

namespace ovl {

// The first four lists stand in the old frame, which can be looked at only.
void ComboTCPIP_Click(Application& app, int index) {
  const int entry = index - 3;
  if (entry < 1) return;
  const auto& list = app.frmMain.ComboTCPIP.at(static_cast<std::size_t>(index));
  app.image.at(FieldId::IPADDRESS, entry) = ByteToHex(list.position);
}

void ComboTCPINFO_Click(Application& app, int index) {
  const int mask = 1 << index;
  const int flags = HexToInt(app.image[FieldId::REGTYPE_MINOR]);
  const bool on = app.frmMain.ComboTCPINFO.at(static_cast<std::size_t>(index)).position == 1;
  app.image[FieldId::REGTYPE_MINOR] = ByteToHex(on ? flags | mask : flags & ~mask);
}

}  // namespace ovl
