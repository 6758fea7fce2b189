// Writes the help page "Fields" from the table of the fields, so that the page always matches it.
#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "changes/editors.h"
#include "core/application.h"
#include "firmware/firmware_table.h"
#include "firmware/traits.h"
#include "image/field_map.h"

namespace ovl {
namespace {

constexpr std::array kSections = {"System configuration (SYSCFG)", "Fixed configuration (SYSFIXED)",
                                  "Strings (SYSSTR)"};

// The digit at which each field begins in its section; -1 if the firmware does not have it. Firmware with the
// same places share a column.
using Places = std::vector<int>;

struct Column {
  Places places;
  std::string firmware;
};

Places PlacesOf(const firmware::FirmwareId& firmware) {
  const auto layout = firmware::LayoutOf(firmware);
  const auto capabilities = firmware::CapabilitiesOf(firmware);
  std::array<int, kSections.size()> next = {};
  Places places;
  for (const auto& row : image::FieldTable()) {
    auto& digit = next.at(static_cast<std::size_t>(row.section));
    const bool has = image::InStream(row, layout, firmware, capabilities, image::Direction::kRead);
    places.push_back(has ? digit : -1);
    if (has) digit += image::DigitsOf(row, layout) * image::EntryCount(row.id);
  }
  return places;
}

std::vector<Column> Columns() {
  std::vector<Column> columns;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (!entry.in_menu) continue;
    const auto places = PlacesOf({std::string(entry.version), std::string(entry.release)});
    auto column = std::find_if(columns.begin(), columns.end(),
                               [&](const Column& known) { return known.places == places; });
    if (column == columns.end()) column = columns.insert(columns.end(), {places, {}});
    auto& firmware = column->firmware;
    const auto family = firmware.rfind(entry.version);
    if (!firmware.empty()) firmware += ", ";
    if (family == std::string::npos) firmware.append(entry.version).append(" ");
    firmware += entry.release;
  }
  return columns;
}

std::string LetterOf(std::size_t column) {
  return std::string(1, static_cast<char>('A' + column));
}

class Page {
 public:
  explicit Page(const core::Application& app) : app_(app), columns_(Columns()) {}

  std::string Text() {
    AddHead();
    for (std::size_t section = 0; section < kSections.size(); ++section) AddSection(section);
    return text_;
  }

 private:
  void AddHead() {
    text_ +=
        "# Fields\n\nThis page lists every field of a configuration, in the order of the record stream and "
        "of a "
        "file: three sections, one behind the other. A byte is two hexadecimal digits.\n\n"
        "The columns with letters show at which byte of its section a field begins under these firmware. The "
        "first byte has the number 0. A dash means that the firmware does not have the field:\n\n";
    for (std::size_t at = 0; at < columns_.size(); ++at) {
      text_ += "- **" + LetterOf(at) + "** " + columns_[at].firmware + "\n";
    }
    text_ +=
        "\n\"Register\" marks the fields that a pick of a register takes from its default image. No control "
        "edits a field that is \"kept\": the program reads it, keeps it and writes it back.\n";
  }

  void AddSection(std::size_t section) {
    text_.append("\n## ").append(kSections.at(section)).append("\n\n| Field | Bytes ");
    for (std::size_t at = 0; at < columns_.size(); ++at) text_ += "| " + LetterOf(at) + " ";
    text_ += "| Register | Edited by |\n|---|---";
    for (std::size_t at = 0; at < columns_.size(); ++at) text_ += "|---";
    text_ += "|---|---|\n";
    const auto rows = image::FieldTable();
    std::string notes;
    for (std::size_t field = 0; field < rows.size(); ++field) {
      const auto& row = rows[field];
      if (static_cast<std::size_t>(row.section) != section) continue;
      AddRow(row, field);
      if (row.since.readers_only) {
        notes.append("\n`").append(row.name);
        notes += "` is read by V1400 from R" + std::to_string(row.since.release) +
                 " on; the late releases before it write it too, once it holds something.\n";
      }
    }
    text_ += notes;
  }

  void AddRow(const image::FieldRow& row, std::size_t field) {
    text_.append("| `").append(row.name).append("` | ").append(WidthOf(row)).append(" ");
    for (const auto& column : columns_) {
      const int digit = column.places.at(field);
      text_.append("| ").append(digit < 0 ? "-" : std::to_string(digit / 2)).append(" ");
    }
    text_.append(row.is_default ? "| yes | " : "| | ").append(Editing(row, field)).append(" |\n");
  }

  static std::string WidthOf(const image::FieldRow& row) {
    auto width = std::to_string(row.width.digits / 2);
    if (row.width.digits_v13 != row.width.digits)
      width += ", V13xx " + std::to_string(row.width.digits_v13 / 2);
    const int entries = image::EntryCount(row.id);
    return entries == 1 ? width : std::to_string(entries) + " times " + width;
  }

  std::string Editing(const image::FieldRow& row, std::size_t field) const {
    const auto words = changes::EditedBy(app_, row.id, "[options](register_options.md)");
    if (!words.empty()) return words;
    const bool somewhere = std::any_of(columns_.begin(), columns_.end(),
                                       [&](const Column& column) { return column.places.at(field) >= 0; });
    return somewhere ? "kept" : "in no firmware of today";
  }

  const core::Application& app_;
  std::vector<Column> columns_;
  std::string text_;
};

}  // namespace
}  // namespace ovl

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "ovl-fields-page FILE\n\nWrites the help page of the fields.\n";
    return 2;
  }
  try {
    const ovl::core::Application app;
    std::ofstream file(argv[1], std::ios::binary);
    file << ovl::Page(app).Text();
    if (!file.flush()) throw std::runtime_error(std::string(argv[1]) + " cannot be written");
  } catch (const std::exception& failure) {
    std::cerr << "ovl-fields-page: " << failure.what() << "\n";
    return 1;
  }
  return 0;
}
