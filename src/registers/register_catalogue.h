// The register list of the running firmware, in the form and by key.
#pragma once

#include <string_view>

#include "core/application.h"

namespace ovl::registers {

// Marks every key absent.
void ResetRegisterIndexes(core::Application& app);

// Fills ComboReg and the indexes for the running firmware. A firmware without a list leaves ComboReg empty.
void BuildRegisterList(core::Application& app);

// The position of the key in the current list, or -1 if the list does not have it.
int RegisterIndexOf(const core::Application& app, std::string_view key);

}  // namespace ovl::registers
