// Pictures of the windows, for people to look at.
#pragma once

#include <QString>

namespace ovl {

// Plays through the states of a program on a line of its own, with boxes left out, and writes a picture of
// each into the folder, light and dark. Program folder and store are those of the program. False if it does
// not start or the folder cannot be written.
bool SavePictures(const QString& program_folder, const QString& store, const QString& folder);

}  // namespace ovl
