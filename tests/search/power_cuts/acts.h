#pragma once

#include "search/disk_faults/obstacles.h"

namespace ovl::testing {

// The acts of the program, and those of the backup, the unit in software and ovl-setup.
std::vector<Act> ActsOfAllTools();

}  // namespace ovl::testing
