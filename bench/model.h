// The model on a platform without screen or line, for what is measured of it alone.
#pragma once

#include "core/gate.h"

namespace ovl::bench {

class Site;

// Fills the platform record and starts the program in the site's folder. What a received event reads is
// `received`, which must outlive the model.
void StartModel(core::Application& app, const Site& site, const char& received);

void Click(core::Application& app, const char* name);

}  // namespace ovl::bench
