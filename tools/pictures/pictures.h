// Pictures of the windows for the documents.
#pragma once

#include <QString>

namespace ovl::pictures {

// Starts a program on a simulated serial port without message boxes, brings it into its states and writes a
// picture of each into the folder, light and dark. Program folder and store are those of the program. Returns
// the path and the reason of a failure; empty on success.
QString SavePictures(const QString& program_folder, const QString& store, const QString& folder);

}  // namespace ovl::pictures
