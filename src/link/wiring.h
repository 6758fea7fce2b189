// Gives the controls of the link, its timers and its windows their handlers.
#pragma once

#include "core/application.h"

namespace ovl::link {

void WireLink(core::Application& app);

}  // namespace ovl::link
