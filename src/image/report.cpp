#include "image/report.h"

#include <array>

#include "codecs/codecs.h"
#include "firmware/firmware_table.h"
#include "firmware/register_lists.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/record_stream.h"
#include "image/stream_entries.h"

namespace ovl::image {
namespace {

constexpr std::array kHeadings = {"::SYSCFG::", "::SYSFIXED::", "::SYSSTR::"};

// The number of digits in an image of the firmware.
std::size_t DigitsOfImage(const firmware::FirmwareId& firmware) {
  const auto layout = LayoutOf(firmware);
  const auto capabilities = CapabilitiesOf(firmware);
  ConfigImage image;
  for (const auto& row : FieldTable()) {
    if (!InStream(row, layout, firmware, capabilities, Direction::kRead)) continue;
    for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
      image.at(row.id, entry).assign(static_cast<std::size_t>(DigitsOf(row, layout)), '0');
    }
  }
  const auto sections = WriteSections(image, layout, firmware, capabilities);
  return sections.SYSCFG.size() + sections.SYSFIXED.size() + sections.SYSSTR.size();
}

FirmwareFit FitOf(const firmware::FirmwareId& firmware, std::string_view digits) {
  FirmwareFit fit{firmware, codecs::HexToInt(CutSections(digits, firmware).SYSFIXED), {}};
  const auto entries = firmware::BuildRegisterEntries(firmware.version, firmware.release);
  const auto code = static_cast<std::size_t>(fit.register_code);
  if (code < entries.size()) fit.register_name = entries[code].name;
  return fit;
}

}  // namespace

std::string EntryName(std::string_view field, int entries, int entry) {
  std::string name(field);
  return entries == 1 ? name : name + "(" + std::to_string(entry) + ")";
}

std::string LabelledDump(const ConfigImage& image, const firmware::FirmwareId& firmware) {
  std::string text;
  std::size_t headings = 0;
  ForEachStreamEntry(firmware, [&](const FieldRow& row, int entry) {
    while (headings <= static_cast<std::size_t>(row.section))
      text.append(kHeadings.at(headings++)).append("\r\n");
    text += EntryName(row.name, EntryCount(row.id), entry) + " = " + image.at(row.id, entry) + "\r\n";
  });
  return text;
}

std::optional<ConfigImage> DecodeStream(std::string_view stream, const firmware::FirmwareId& firmware) {
  std::string digits;
  if (ParseRecords(stream, ReadRegion(firmware), digits) != ParseResult::kOk) return std::nullopt;
  ConfigImage image;
  ReadSections(CutSections(digits, firmware), firmware, CapabilitiesOf(firmware), Scope::kWhole, image);
  return image;
}

std::vector<FieldDifference> Differences(const ConfigImage& before, const ConfigImage& after,
                                         const firmware::FirmwareId& firmware) {
  std::vector<FieldDifference> differences;
  const auto layout = LayoutOf(firmware);
  std::array<std::size_t, kHeadings.size()> next_digit = {};
  ForEachStreamEntry(firmware, [&](const FieldRow& row, int entry) {
    auto& digit = next_digit.at(static_cast<std::size_t>(row.section));
    const auto first = digit;
    digit += static_cast<std::size_t>(DigitsOf(row, layout));
    const auto& old_value = before.at(row.id, entry);
    const auto& new_value = after.at(row.id, entry);
    if (old_value == new_value) return;
    const auto name = EntryName(row.name, EntryCount(row.id), entry);
    differences.push_back({&row, name, first / 2, old_value, new_value, entry});
  });
  return differences;
}

bool FitsFirmware(std::string_view stream, const firmware::FirmwareId& firmware) {
  std::string digits;
  return ParseRecords(stream, ReadRegion(firmware), digits) == ParseResult::kOk &&
         digits.size() == DigitsOfImage(firmware);
}

std::vector<FirmwareFit> FittingFirmware(std::string_view stream) {
  std::vector<FirmwareFit> fits;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (!entry.in_menu) continue;
    const firmware::FirmwareId firmware{std::string(entry.version), std::string(entry.release)};
    std::string digits;
    if (ParseRecords(stream, ReadRegion(firmware), digits) != ParseResult::kOk) continue;
    if (digits.size() == DigitsOfImage(firmware)) fits.push_back(FitOf(firmware, digits));
  }
  return fits;
}

OpenOutcome OutcomeOfOpening(std::string_view stream, const firmware::FirmwareId& firmware) {
  std::string digits;
  switch (ParseRecords(stream, ReadRegion(firmware), digits)) {
    case ParseResult::kOk:
      return FitsFirmware(stream, firmware) ? OpenOutcome::kLoads : OpenOutcome::kShifts;
    case ParseResult::kOtherFirmware:
      return OpenOutcome::kRefused;
    default:
      return OpenOutcome::kEndsProgram;
  }
}

}  // namespace ovl::image
