// The fields of the image by name, and the image as a stream.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/application.h"
#include "image/field_map.h"

namespace ovl::script {

// One entry of a field; entries count from 1.
struct FieldEntry {
  const image::FieldRow* row;
  int entry;

  // As the script writes it: the number stands only behind fields that have several entries.
  std::string Name() const;
  std::string& In(image::ConfigImage& image) const { return image.at(row->id, entry); }
};

// "EXCPSTRS(3)" is one entry, "EXCPSTRS" all of them. A name that means nothing throws Stop with
// kWrongStatement, and so does FieldNamed for a name that means several entries.
std::vector<FieldEntry> FieldsNamed(std::string_view name);
FieldEntry FieldNamed(std::string_view name);

// The text that a download would send now. Nothing of the program changes by looking.
std::string StreamOf(core::Application& app);

// The same into a file, its last line ended like the others. Throws Failure.
void WriteStream(core::Application& app, const std::string& path);

}  // namespace ovl::script
