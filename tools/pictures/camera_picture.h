// A drawing of what a unit is for: the text of a register over the picture of a camera.
#pragma once

#include <QString>

#include "core/failure.h"

namespace ovl::pictures {

// Writes the drawing as a PNG file. Its text is placed as the sample settings say: title, clock, and a sale.
core::Result SaveCameraPicture(const QString& file);

}  // namespace ovl::pictures
