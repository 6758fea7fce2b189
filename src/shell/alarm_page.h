// The ALARM OUTPUTS tab: all alarms at the left, the one that is edited at the right.
#pragma once

#include "shell/overview_list.h"

namespace ovl {

QWidget* BuildAlarmPage(Bindings& bindings);

// The alarms as the image holds them, in the words of the panel's lists.
std::vector<OverviewLine> AlarmLines(const Application& app);

}  // namespace ovl
