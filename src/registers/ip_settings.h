// The register that sends its text over the network: the address of the source, and which information is
// shown.
#pragma once

#include "core/application.h"

namespace ovl {

void ComboTCPIP_Click(Application& app, int index);
void ComboTCPINFO_Click(Application& app, int index);

}  // namespace ovl
