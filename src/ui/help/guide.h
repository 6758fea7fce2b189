// The installer's guide: the pages of the help, with pictures, as one PDF.
#pragma once

#include <QString>

#include "ui/help/help_pages.h"

namespace ovl::ui {

// Pictures that the folder lacks are left out. What went wrong, with path and reason; empty when done.
QString WriteGuide(const HelpPages& pages, const QString& pictures, const QString& file);

}  // namespace ovl::ui
