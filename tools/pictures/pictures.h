// Pictures of the windows, for people to look at.
#pragma once

#include <QString>

#include "core/failure.h"

namespace ovl::pictures {

// Plays through the states of a program on a line of its own, with boxes left out, and writes a picture of
// each into the folder, light and dark. Program folder and store are those of the program.
core::Result SavePictures(const QString& program_folder, const QString& store, const QString& folder);

}  // namespace ovl::pictures
