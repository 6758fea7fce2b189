// The default images that the program needs at run time: one record stream for each name of a firmware's
// register list.
#pragma once

#include <string>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::images {

// The image of a firmware's first register: no exceptions, no alarms, a plain display.
image::ConfigImage FactoryImage(const firmware::FirmwareId& firmware);

// Writes the images of one firmware below the folder and gives their number. They can be made again, so they
// are not flushed one by one. Throws Failure.
int WriteDefaultImages(const std::string& folder, const firmware::FirmwareId& firmware);

}  // namespace ovl::images
