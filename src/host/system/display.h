// How programs find the display.
#pragma once

namespace ovl::host {

// Whether the environment names it. Without a name there is none.
bool DisplayHasName();

}  // namespace ovl::host
