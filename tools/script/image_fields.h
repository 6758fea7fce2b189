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

  // As scripts write it. Only a field with several entries has a number.
  std::string Name() const;
  std::string& In(image::ConfigImage& image) const { return image.at(row->id, entry); }
};

// "EXCPSTRS(3)" is one entry, "EXCPSTRS" all of them. An unknown name throws Stop with kWrongStatement, and
// so does a name of several entries in FieldNamed.
std::vector<FieldEntry> FieldsNamed(std::string_view name);
FieldEntry FieldNamed(std::string_view name);

// The text that a download would send now. The program does not change.
std::string StreamOf(core::Application& app);

// Writes the same text and a final line end into a file. Throws Failure.
void WriteStream(core::Application& app, const std::string& path);

}  // namespace ovl::script
