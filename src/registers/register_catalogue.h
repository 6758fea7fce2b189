// The register list of the running firmware, in the form and by key.
#pragma once

#include <string_view>

#include "core/application.h"

namespace ovl::registers {

// Marks every key absent.
void ResetRegisterIndexes(core::Application& app);

// Fills ComboReg and the indexes for the running firmware; a pair without a list leaves the list empty.
void BuildRegisterList(core::Application& app);

// The key's position in the current list, -1 if the list lacks it.
int RegisterIndexOf(const core::Application& app, std::string_view key);

}  // namespace ovl::registers
