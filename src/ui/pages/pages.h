// Builds the pages of the seven tabs of the main form from the names of their controls.
#pragma once

#include <array>
#include <vector>

#include "ui/kit/bindings.h"
#include "ui/pages/overview_list.h"

class QWidget;

namespace ovl::ui {

using PageBuilder = QWidget* (*)(Bindings& bindings);

// In the order of the tabs. The caller owns the page.
extern const std::array<PageBuilder, 7> kPages;

// The register tab: the list of registers, and the options of the selected one.
QWidget* BuildRegisterPage(Bindings& bindings);

// All alarms or exceptions at the left, the editor of one of them at the right.
QWidget* BuildAlarmPage(Bindings& bindings);
QWidget* BuildExceptionPage(Bindings& bindings);

// The alarms and the exceptions of the image, in the words of the lists of the panels.
std::vector<OverviewLine> AlarmLines(const core::Application& app);
std::vector<OverviewLine> ExceptionLines(const core::Application& app);

// The tab of the link: the state of the link, the transfers and the clock of the unit.
QWidget* BuildRemotePage(Bindings& bindings);

}  // namespace ovl::ui
