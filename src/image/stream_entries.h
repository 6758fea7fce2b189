// The entries of the fields that a download to a firmware contains.
#pragma once

#include "firmware/traits.h"
#include "image/field_map.h"

namespace ovl::image {

// Calls the function with row and entry, in stream order.
template <class Function>
void ForEachStreamEntry(const firmware::FirmwareId& firmware, const Function& function) {
  const auto layout = firmware::LayoutOf(firmware);
  const auto capabilities = firmware::CapabilitiesOf(firmware);
  for (const auto& row : FieldTable()) {
    if (!InStream(row, layout, firmware, capabilities, Direction::kWrite)) continue;
    for (int entry = 1; entry <= EntryCount(row.id); ++entry) function(row, entry);
  }
}

}  // namespace ovl::image
