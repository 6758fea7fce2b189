#include "script/image_fields.h"

#include <charconv>

#include "core/configuration.h"
#include "image/record_stream.h"
#include "image/report.h"
#include "script/parser.h"
#include "script/stop.h"

namespace ovl::script {

std::string FieldEntry::Name() const {
  return image::EntryName(row->name, image::EntryCount(row->id), entry);
}

std::vector<FieldEntry> FieldsNamed(std::string_view name) {
  const auto bracket = name.find('(');
  const auto* row = image::FindField(name.substr(0, bracket));
  if (row == nullptr) Wrong("no field has the name " + Quoted(name));
  const int count = image::EntryCount(row->id);
  std::vector<FieldEntry> fields;
  if (bracket == std::string_view::npos) {
    for (int entry = 1; entry <= count; ++entry) fields.push_back({row, entry});
    return fields;
  }
  int entry = 0;
  const auto digits = name.substr(bracket + 1);
  const auto* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, entry);
  if (error != std::errc() || std::string_view(stop, static_cast<std::size_t>(end - stop)) != ")" ||
      entry < 1 || entry > count) {
    Wrong("the entries of " + std::string(row->name) + " are 1 to " + std::to_string(count) + ", not " +
          Quoted(name));
  }
  fields.push_back({row, entry});
  return fields;
}

FieldEntry FieldNamed(std::string_view name) {
  const auto fields = FieldsNamed(name);
  if (fields.size() != 1)
    Wrong(std::string(name) + " has several entries. Name one, such as " + fields.front().Name());
  return fields.front();
}

std::string StreamOf(core::Application& app) {
  const auto image = app.image;
  const auto capabilities = app.capabilities;
  const image::Sections sections{app.SYSCFG, app.SYSFIXED, app.SYSSTR};
  auto stream = SectionsToStream(app);
  app.image = image;
  app.capabilities = capabilities;
  app.SYSCFG = sections.SYSCFG;
  app.SYSFIXED = sections.SYSFIXED;
  app.SYSSTR = sections.SYSSTR;
  return stream;
}

void WriteStream(core::Application& app, const std::string& path) {
  app.platform.files.replace(path, StreamOf(app) + "\r\n");
}

}  // namespace ovl::script
