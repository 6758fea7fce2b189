// Gives the controls of the settings panels and of their windows their handlers.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void WirePanels(core::Application& app);

}  // namespace ovl::panels
