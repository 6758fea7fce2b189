// Writes the guide for the installer: the pages of the help, with pictures, as one PDF.
#pragma once

#include <QString>

#include "core/failure.h"
#include "ui/help/help_pages.h"

namespace ovl::ui {

// Leaves out pictures that are not in the folder.
core::Result WriteGuide(const HelpPages& pages, const QString& pictures, const QString& file);

}  // namespace ovl::ui
