// The EXCEPTION REPORT tab: all exceptions at the left, the one that is edited at the right.
#pragma once

#include "shell/overview_list.h"

namespace ovl {

QWidget* BuildExceptionPage(Bindings& bindings);

// The exceptions as the image holds them.
std::vector<OverviewLine> ExceptionLines(const Application& app);

}  // namespace ovl
