// Backups: configuration files that Open reads back under their firmware without a difference.
#pragma once

#include <optional>
#include <string>

#include "core/application.h"
#include "core/failure.h"

namespace ovl::acts {

// The firmware that the image belongs to, as the program shows it, without what a file name must not have:
// "V1400R12".
std::string FirmwareName(const core::Application& app);

// The name that a backup made today gets: firmware, register and day, such as "V1400R12 DRESSER WAYNE
// 2026-11-25.bin".
std::string BackupName(const core::Application& app);

// The bytes of a file that Open reads back without a difference. It is the stream that a download sends, in
// the memory region and with the fields that a reader of the firmware expects. Nothing if no file does that:
// records of the image are too short or too long, because a file with the layout of another firmware was
// opened.
std::optional<std::string> ReopenableFile(const image::ConfigImage& image,
                                          const firmware::FirmwareId& firmware);

// ReopenableFile of the program's image. Without one, a failure that says so.
std::string ReopenableFileOf(const core::Application& app);

// Writes the backup. A failure leaves the old file as it was.
core::Result SaveBackup(const core::Application& app, const std::string& path);

}  // namespace ovl::acts
