// The exceptions and the alarms of a sheet.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "acts/copy_slot.h"
#include "core/application.h"
#include "text_form/export.h"

namespace ovl::sheet {

// A text as it is on the picture: all 40 characters in cells of one width.
std::string PictureText(std::string text);

// Those that are in use, one a row with a column for each setting, and below them which are free. Empty if no
// line is one of them.
std::string SlotTable(acts::SlotKind kind, std::span<const text_form::Line> lines,
                      const core::Application& like, const image::ConfigImage& image);

// What a line stores, in words or as bytes.
std::string ValueOf(const text_form::Line& line);

}  // namespace ovl::sheet
