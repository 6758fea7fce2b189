#include "image/record_stream.h"

#include <algorithm>
#include <utility>

#include "codecs/codecs.h"
#include "firmware/traits.h"

namespace ovl::image {
namespace {

constexpr std::size_t kMarkerLength = 5;
constexpr std::size_t kPayloadDigits = 64;
constexpr std::size_t kRecordLength = kMarkerLength + kPayloadDigits;
constexpr int kBytesPerRecord = 0x20;

constexpr Region kV1400Short = {0x2000, 0x2840};
constexpr Region kV1400Long = {0x2000, 0x2860};
constexpr Region kOldV13Region = {0x7800, 0x7FE0};
constexpr Region kNewV13Region = {0x77F0, 0x7FF0};

}  // namespace

Region ReadRegion(const firmware::FirmwareId& firmware) {
  return LayoutOf(firmware) == firmware::Layout::kLateV1400 ? kV1400Long : WriteRegion(firmware);
}

Region WriteRegion(const firmware::FirmwareId& firmware) {
  switch (LayoutOf(firmware)) {
    case firmware::Layout::kOldV13:
      return kOldV13Region;
    case firmware::Layout::kNewV13:
      return kNewV13Region;
    default:
      return firmware::HasShortImage(firmware) ? kV1400Short : kV1400Long;
  }
}

Region SavedRegion(const firmware::FirmwareId& firmware) {
  const auto region = WriteRegion(firmware);
  return region.first == kNewV13Region.first ? kOldV13Region : region;
}

std::string AddressMarker(int address) {
  return "$" + codecs::ByteToHex(address >> 8) + codecs::ByteToHex(address);
}

std::string BlockRecords(std::string_view digits, const Region& region) {
  std::string stream;
  stream.reserve(digits.size() * (kRecordLength + 2) / kPayloadDigits + 2 * kRecordLength);
  for (int address = region.first; address < region.last; address += kBytesPerRecord) {
    const auto payload = digits.substr(0, kPayloadDigits);
    stream.append(AddressMarker(address)).append(payload).append("\r\n");
    digits.remove_prefix(payload.size());
  }
  return stream.append(AddressMarker(region.last)).append(digits).append("#");
}

ParseResult ParseRecords(std::string_view stream, const Region& region, std::string& digits) {
  const auto start = stream.find(AddressMarker(region.first));
  if (start == std::string_view::npos) return ParseResult::kOtherFirmware;
  stream.remove_prefix(start);

  auto end = stream.find('#');
  digits.clear();
  digits.reserve(stream.size());
  while (end != std::string_view::npos && end >= kRecordLength) {
    digits.append(stream.substr(kMarkerLength, kPayloadDigits));
    stream.remove_prefix(kRecordLength);
    end -= kRecordLength;
  }
  if (end == std::string_view::npos || stream.find(AddressMarker(region.last)) == std::string_view::npos) {
    return ParseResult::kBroken;
  }
  digits.append(stream, kMarkerLength, std::max(end, kMarkerLength) - kMarkerLength);
  return ParseResult::kOk;
}

Sections CutSections(std::string_view digits, const firmware::FirmwareId& firmware) {
  const auto [syscfg, sysfixed] = [&]() -> std::pair<std::size_t, std::size_t> {
    switch (LayoutOf(firmware)) {
      case firmware::Layout::kEarlyV1400:
        return {64, 206};
      case firmware::Layout::kLateV1400:
        return {64, firmware::StoresBlankByRts(firmware) ? 226 : 224};
      default:
        return {96, 192};
    }
  }();
  Sections sections;
  const auto take = [&](std::size_t count) {
    const auto part = digits.substr(0, count);
    digits.remove_prefix(part.size());
    return std::string(part);
  };
  sections.SYSCFG = take(syscfg);
  sections.SYSFIXED = take(sysfixed);
  sections.SYSSTR = std::string(digits);
  return sections;
}

}  // namespace ovl::image
