// Pictures of the windows for the documents.
#pragma once

#include <QSize>
#include <QString>

#include "core/failure.h"

namespace ovl::pictures {

// Starts a program on a simulated serial port without message boxes, brings it into its states and writes a
// picture of each into the folder, light and dark, and beside it what a screen reader says. Program folder
// and store are those of the program. `size` is that of the main window.
core::Result SavePictures(const QString& program_folder, const QString& store, const QString& folder,
                          QSize size);

}  // namespace ovl::pictures
