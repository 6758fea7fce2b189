#include "acts/backup.h"

#include <algorithm>
#include <string_view>

#include "files/files.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/record_stream.h"
#include "image/report.h"
#include "phrases/phrases.h"

namespace ovl::acts {
namespace {

constexpr std::string_view kNotInNames = "/\\:*?\"<>|";

std::string AsFileName(std::string text) {
  const auto forbidden = [](char character) {
    return static_cast<unsigned char>(character) < ' ' || kNotInNames.find(character) != kNotInNames.npos;
  };
  std::replace_if(text.begin(), text.end(), forbidden, '-');
  return text;
}

std::string WithDigits(int number, std::size_t digits) {
  auto text = std::to_string(number);
  text.insert(0, digits - std::min(digits, text.size()), '0');
  return text;
}

// One release sends a flag that its own reader does not expect. In a file it would shift everything behind
// it.
void ClearUnread(image::ConfigImage& image, const firmware::FirmwareId& firmware) {
  const auto layout = firmware::LayoutOf(firmware);
  const auto capabilities = firmware::CapabilitiesOf(firmware);
  for (const auto& row : image::FieldTable()) {
    if (InStream(row, layout, firmware, capabilities, image::Direction::kRead)) continue;
    for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) image.at(row.id, entry).clear();
  }
}

// A file of another length would read back, too, if only its last records are short.
bool ReadsBack(const std::string& file, const image::ConfigImage& image,
               const firmware::FirmwareId& firmware) {
  const auto stream = files::JoinLines(file);
  auto read = image::DecodeStream(stream, firmware);
  if (!read || !image::FitsFirmware(stream, firmware)) return false;
  ClearUnread(*read, firmware);
  return *read == image;
}

}  // namespace

std::string FirmwareName(const core::Application& app) {
  return AsFileName(app.frmMain.lbVersionID[0].caption);
}

std::string BackupName(const core::Application& app) {
  const auto today = app.platform.clock();
  const auto register_name = AsFileName(app.frmMain.ComboReg.Text());
  return FirmwareName(app) + (register_name.empty() ? "" : " " + register_name) + " " +
         WithDigits(today.year, 4) + "-" + WithDigits(today.month, 2) + "-" + WithDigits(today.day, 2) +
         ".bin";
}

std::optional<std::string> ReopenableFile(const image::ConfigImage& image,
                                          const firmware::FirmwareId& firmware) {
  auto read_fields = image;
  ClearUnread(read_fields, firmware);
  const auto sections = image::WriteSections(read_fields, firmware::LayoutOf(firmware), firmware,
                                             firmware::CapabilitiesOf(firmware));
  auto file = image::BlockRecords(sections.SYSCFG + sections.SYSFIXED + sections.SYSSTR,
                                  image::ReadRegion(firmware)) +
              "\r\n";
  if (!ReadsBack(file, read_fields, firmware)) return std::nullopt;
  return file;
}

std::string ReopenableFileOf(const core::Application& app) {
  auto file = ReopenableFile(app.image, app.image_firmware);
  if (!file)
    throw core::Failure(FirmwareName(app), phrases::Marked("Reason", "The configuration is not complete"));
  return *std::move(file);
}

core::Result SaveBackup(const core::Application& app, const std::string& path) {
  try {
    app.platform.files.replace(path, ReopenableFileOf(app));
    return {};
  } catch (const core::Failure& failure) {
    return failure;
  }
}

}  // namespace ovl::acts
