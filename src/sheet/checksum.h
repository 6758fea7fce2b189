// A number by which a sheet on paper, a file and a unit can be matched.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "firmware/firmware_id.h"
#include "image/config_image.h"

namespace ovl::sheet {

// The CRC-32 of zip, gzip and PNG.
std::uint32_t Crc32(std::string_view bytes);

// Eight hexadecimal digits: the CRC-32 of the file that a backup of the image is. Nothing if there is no such
// file.
std::optional<std::string> Checksum(const image::ConfigImage& image, const firmware::FirmwareId& firmware);

}  // namespace ovl::sheet
