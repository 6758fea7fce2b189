// The seven tabs of the main form, each laid out by the names of its controls.
#pragma once

#include <array>
#include <vector>

#include "ui/kit/bindings.h"
#include "ui/pages/overview_list.h"

class QWidget;

namespace ovl::ui {

using PageBuilder = QWidget* (*)(Bindings& bindings);

// In the order of the tabs. Whoever places a page owns it.
extern const std::array<PageBuilder, 7> kPages;

// The register tab: the list of registers, and the options of the one that is selected.
QWidget* BuildRegisterPage(Bindings& bindings);

// All alarms, or all exceptions, at the left, the one that is edited at the right.
QWidget* BuildAlarmPage(Bindings& bindings);
QWidget* BuildExceptionPage(Bindings& bindings);

// The alarms and the exceptions as the image holds them, in the words of the panels' lists.
std::vector<OverviewLine> AlarmLines(const core::Application& app);
std::vector<OverviewLine> ExceptionLines(const core::Application& app);

// The centre of the program: the link to the unit and what is done over it.
QWidget* BuildRemotePage(Bindings& bindings);

}  // namespace ovl::ui
