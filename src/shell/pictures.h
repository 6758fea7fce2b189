// Pictures of the windows, for people to look at.
#pragma once

#include <QString>

namespace ovl {

class Program;

// Plays through the states of the program on a line of its own, with boxes left out, and writes a picture of
// each into the folder, light and dark. The program must not have been started. False if it does not start or
// the folder cannot be written.
bool SavePictures(Program& program, const QString& folder);

}  // namespace ovl
