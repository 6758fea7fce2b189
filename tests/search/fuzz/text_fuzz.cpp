// Any text is imported as a text form, and some of them as changes to lines of a whole form. The first byte
// chooses one of four firmware and how strict the import is; the rest is the text. What is taken comes back
// from its own export.
#include <array>
#include <map>
#include <memory>
#include <sstream>
#include <unordered_set>

#include "bytes.h"
#include "firmware/firmware_table.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "image/stream_entries.h"
#include "start/start_up.h"
#include "text_form/encoding.h"
#include "text_form/export.h"
#include "text_form/import/import.h"

namespace {

using namespace ovl;
using fuzz::Require;
using text_form::Strictness;

constexpr std::array kFirmware = {"V1400R12", "V1400R2", "V1300R14", "V1310R1"};

struct Reader {
  explicit Reader(const firmware::FirmwareId& firmware) {
    start::ServeFirmware(app, firmware);
    catalogue = std::make_unique<text_form::Catalogue>(app);
    base = text_form::FilledImage(catalogue->Firmware(), '0');
    std::istringstream form(text_form::Export(*catalogue, base));
    for (std::string line; std::getline(form, line);) lines.push_back(line);
  }

  core::Application app;
  std::unique_ptr<text_form::Catalogue> catalogue;
  image::ConfigImage base;
  std::vector<std::string> lines;             // of the whole form of the base
  std::unordered_set<std::size_t> came_back;  // by their hashes
};

Reader& ReaderOf(const firmware::FirmwareId& firmware) {
  static std::map<std::string, std::unique_ptr<Reader>> readers;
  auto& reader = readers[firmware.Joined()];
  if (reader == nullptr) reader = std::make_unique<Reader>(firmware);
  return *reader;
}

text_form::Imported Import(Reader& reader, const text_form::Document& document,
                           Strictness strictness = Strictness::kWhole) {
  const auto catalogue_of = [](const firmware::FirmwareId& firmware) -> text_form::Catalogue& {
    return *ReaderOf(firmware).catalogue;
  };
  return text_form::Import(*reader.catalogue, catalogue_of, reader.base, document, strictness);
}

// Each line of the changes has the number of a line of the form in its first two bytes, and what replaces it.
std::string Edited(std::vector<std::string> lines, std::string_view changes) {
  while (!changes.empty()) {
    auto change = fuzz::Bytes(reinterpret_cast<const std::uint8_t*>(changes.data()),
                              std::min(changes.find('\n'), changes.size()));
    changes.remove_prefix(std::min(change.Rest().size() + 1, changes.size()));
    const std::size_t high = change.Next(), low = change.Next();
    lines[(high * 256 + low) % lines.size()] = change.Rest();
  }
  std::string form;
  for (const auto& line : lines) form.append(line) += '\n';
  return form;
}

std::size_t HashOf(const image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  std::string all;
  image::ForEachStreamEntry(firmware, [&](const image::FieldRow& row, int entry) {
    all.append(image.at(row.id, entry)).append(1, '\n');
  });
  return std::hash<std::string>()(all);
}

void RequirePlaces(const std::vector<text_form::Problem>& problems) {
  for (const auto& problem : problems) {
    Require(problem.at.line > 0 && problem.at.column > 0, "a problem has its place");
    Require(!problem.words.empty() && problem.words.find('\n') == std::string::npos, "and one line of words");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  auto& reader = ReaderOf(firmware::ServedFirmware(kFirmware.at(data[0] % kFirmware.size())));
  const auto strictness = (data[0] & 4U) != 0 ? Strictness::kPartial : Strictness::kWhole;
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
  // A whole form takes a hundred times as long as a short text.
  const bool is_whole = (data[0] & 8U) != 0 && fuzz::OneIn(64, text);

  const auto document = host::ReadToml(is_whole ? Edited(reader.lines, text) : std::string(text));
  RequirePlaces(document.problems);
  if (!document.problems.empty()) return 0;
  const auto imported = Import(reader, document, strictness);
  RequirePlaces(imported.problems);
  RequirePlaces(imported.left_out);
  if (!imported.problems.empty()) return 0;

  // So does the way back.
  if (!reader.came_back.insert(HashOf(imported.image, reader.catalogue->Firmware())).second) return 0;
  const auto again = Import(reader, host::ReadToml(text_form::Export(*reader.catalogue, imported.image)));
  Require(again.problems.empty(), "what was taken is exported without a problem");
  Require(image::Differences(imported.image, again.image, reader.catalogue->Firmware()).empty(),
          "and comes back as it was");
  return 0;
}
