#include "firmware/traits.h"

#include <algorithm>

namespace ovl::firmware {
namespace {

constexpr FamilySet k1400 = kFamily1400;
constexpr FamilySet k1300 = kFamily1300;
constexpr FamilySet k1310 = kFamily1310;
constexpr FamilySet k1324 = kFamily1324;
constexpr FamilySet k1334 = kFamily1334;

// One row for each family, with the first and the last release that has it.
constexpr std::array kShortImage = {Releases{k1400, 0, 5}};
constexpr std::array kOldV13Layout = {Releases{k1300, 0, 25}, Releases{k1324, 0, 24}};
constexpr std::array kAlarmType = {Releases{k1400, 6}, Releases{k1300, 26}, Releases{k1324, 25},
                                   Releases{k1310 | k1334}};
constexpr std::array kOneRecorderPair = {Releases{k1300, 0, 26}, Releases{k1324, 0, 25}};
constexpr std::array kStoredDemo = {Releases{k1400, 1}, Releases{k1300 | k1310 | k1324 | k1334}};
constexpr std::array kPackedDemo = {Releases{k1400, 2}, Releases{k1300, 27}, Releases{k1324, 26},
                                    Releases{k1310 | k1334}};
constexpr std::array kDemoFromOne = {Releases{k1400, 1, 1}, Releases{k1300, 0, 26}, Releases{k1324, 0, 25}};
constexpr std::array kDemoType = {Releases{k1400, 2, 2}, Releases{k1400, 4, 4}, Releases{k1400, 6, 7},
                                  Releases{k1400, 11}};
constexpr std::array kDemoSpeedV1400 = {Releases{k1400, 13}};
constexpr std::array kEpsonWritten = {Releases{k1400, 7}};
constexpr std::array kEpsonRead = {Releases{k1400, 6}, Releases{k1310 | k1324, 24}, Releases{k1334}};
constexpr std::array kGilbarcoStored = {Releases{k1300 | k1310}};
constexpr std::array kGilbarcoXml = {Releases{k1400, 6}, Releases{k1300, 23}, Releases{k1310}};
constexpr std::array kGilbarcoXmlList = {Releases{k1300, 27}, Releases{k1310}};
constexpr std::array kMicros3700 = {Releases{k1400, 7}};
constexpr std::array kNcr5972 = {Releases{k1400, 6}};

template <class Rows>
bool IsIn(const Rows& rows, const FirmwareId& firmware) {
  return std::any_of(rows.begin(), rows.end(),
                     [&](const Releases& row) { return IsInReleases(firmware, row); });
}

constexpr std::array kEarlyV1400 = {"R1", "R2", "R4", "R6"};

constexpr InterfaceCodes kEarlyV1400Codes = {"0A", "19", "36"};
constexpr InterfaceCodes kLateV1400Codes = {"0E", "1D", "36"};
constexpr InterfaceCodes kOldV13Codes = {"0A", "19", "26"};
constexpr InterfaceCodes kNewV13Codes = {"0E", "1D", "26"};

constexpr std::array kFirstScales = {"AVERY", "MOLENS", "LEON LD5204"};
constexpr std::array kScalesOfRelease4 = {"AVERY 2ND HEADER", "AVERY PC OUTPUT", "MOLENS", "LEON LD5204"};
constexpr std::array kScalesOfRelease6 = {"AVERY 2ND HEADER", "AVERY PC OUTPUT", "MOLENS", "LEON LD5204",
                                          "PINAL"};
constexpr std::array kScalesOfRelease7 = {
    "AVERY 2ND HEADER",         "AVERY PC OUTPUT", "DE LA RUE 2800", "LEON LD5204",
    "LEON ENG. LD52XX",         "MOLENS",          "PINAL",          "RITEWEIGH",
    "TOLEDO 8142 DIRECT OUTPUT"};

struct Scales {
  int last_release;
  std::span<const char* const> models;
};
constexpr std::array kScales = {Scales{3, kFirstScales}, Scales{4, kScalesOfRelease4}, Scales{5, {}},
                                Scales{6, kScalesOfRelease6}};

}  // namespace

bool IsInReleases(const FirmwareId& firmware, const Releases& releases) {
  const int release = firmware.Number();
  return (releases.families & FamilyOf(firmware.version)) != 0 && release >= releases.first &&
         release <= releases.last;
}

bool IsFromRelease(const FirmwareId& firmware, int first) {
  return firmware.Number() >= first;
}

Layout LayoutOf(const FirmwareId& firmware) {
  if (firmware.IsV1400()) {
    const bool early =
        std::find(kEarlyV1400.begin(), kEarlyV1400.end(), firmware.release) != kEarlyV1400.end();
    return early ? Layout::kEarlyV1400 : Layout::kLateV1400;
  }
  return IsIn(kOldV13Layout, firmware) ? Layout::kOldV13 : Layout::kNewV13;
}

Capabilities CapabilitiesOf(const FirmwareId& firmware) {
  constexpr int kFirstWithTcpIp = 19;
  Capabilities capabilities;
  if (FamilyOf(firmware.version) != k1324) return capabilities;
  const std::string_view release = firmware.release;
  const auto tail = release.substr(std::max<std::size_t>(release.size(), 2) - 2);
  capabilities.HasTcpIp = codecs::LeadingNumber(tail) >= kFirstWithTcpIp;
  return capabilities;
}

Layout SavedLayoutOf(const FirmwareId& firmware) {
  return firmware.IsV1400() ? Layout::kEarlyV1400 : LayoutOf(firmware);
}

bool SavedFileReopens(const FirmwareId& firmware) {
  const auto layout = LayoutOf(firmware);
  return layout == Layout::kEarlyV1400 || layout == Layout::kOldV13;
}

bool ReadsSavedFileShifted(const FirmwareId& firmware) {
  return firmware.IsV1400() && !SavedFileReopens(firmware);
}

bool HasShortImage(const FirmwareId& firmware) {
  return IsIn(kShortImage, firmware);
}

bool StoresBlankByRts(const FirmwareId& firmware) {
  const auto layout = LayoutOf(firmware);
  return layout == Layout::kNewV13 || (layout == Layout::kLateV1400 && IsFromRelease(firmware, 11));
}

bool HasVideoLoss(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool HasCharactersPerLine(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

std::size_t RangeIntegersOf(const FirmwareId& firmware) {
  return firmware.IsV1400() ? 8 : 4;
}

const InterfaceCodes& InterfaceCodesOf(Layout layout) {
  switch (layout) {
    case Layout::kEarlyV1400:
      return kEarlyV1400Codes;
    case Layout::kLateV1400:
      return kLateV1400Codes;
    case Layout::kOldV13:
      return kOldV13Codes;
    default:
      return kNewV13Codes;
  }
}

const InterfaceCodes* InterfaceCodesOf(const FirmwareId& firmware) {
  return IsKnownFamily(firmware.version) ? &InterfaceCodesOf(LayoutOf(firmware)) : nullptr;
}

int AutoSpeedPosition(const FirmwareId& firmware) {
  return firmware.IsV1400() ? 10 : 8;
}

bool HasNetwork(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool HasFixedMasterAddress(const FirmwareId& firmware) {
  const auto name = firmware.Joined();
  return name == "V1400R1" || name == "V1400R2";
}

bool HasAlarmType(const FirmwareId& firmware) {
  return IsIn(kAlarmType, firmware);
}

bool StoresRecorder(const FirmwareId& firmware) {
  return IsKnownFamily(firmware.version) && !firmware.IsV1400();
}

bool HasSecondRecorderPair(const FirmwareId& firmware) {
  return !IsIn(kOneRecorderPair, firmware);
}

bool StoresDemo(const FirmwareId& firmware) {
  return IsIn(kStoredDemo, firmware);
}

bool HasPackedDemo(const FirmwareId& firmware) {
  return IsIn(kPackedDemo, firmware);
}

bool CountsDemoCharactersFromOne(const FirmwareId& firmware) {
  return IsIn(kDemoFromOne, firmware);
}

bool StoresDemoType(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool StoresUnpackedDemoSpeed(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool ShowsDemoType(const FirmwareId& firmware) {
  return IsIn(kDemoType, firmware);
}

bool ShowsDemoSpeed(const FirmwareId& firmware) {
  return firmware.IsV1400() ? IsIn(kDemoSpeedV1400, firmware) : HasPackedDemo(firmware);
}

bool ReplacesSlashesInImageNames(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool RefillsPrintouts(const FirmwareId& firmware) {
  return firmware.IsV1400();
}

bool WritesNixdorfToExtension(const FirmwareId& firmware) {
  return IsFromRelease(firmware, 7);
}

bool WritesEpsonToExtension(const FirmwareId& firmware) {
  return IsIn(kEpsonWritten, firmware);
}

bool ReadsEpsonFromExtension(const FirmwareId& firmware) {
  return IsIn(kEpsonRead, firmware);
}

bool HasSharpCodes(const FirmwareId& firmware) {
  return LayoutOf(firmware) == Layout::kNewV13;
}

bool StoresOldSharpModel(const FirmwareId& firmware) {
  return IsKnownFamily(firmware.version) && !firmware.IsV1400();
}

bool StoresGilbarco(const FirmwareId& firmware) {
  return IsIn(kGilbarcoStored, firmware);
}

bool OffersGilbarcoXml(const FirmwareId& firmware) {
  return IsIn(kGilbarcoXml, firmware);
}

bool HasGilbarcoXmlList(const FirmwareId& firmware) {
  return IsIn(kGilbarcoXmlList, firmware);
}

bool OffersMicros3700(const FirmwareId& firmware) {
  return IsIn(kMicros3700, firmware);
}

bool OffersNcr5972(const FirmwareId& firmware) {
  return IsIn(kNcr5972, firmware);
}

std::span<const char* const> WeighScaleModelsOf(const FirmwareId& firmware) {
  const int release = firmware.Number();
  for (const auto& row : kScales) {
    if (release <= row.last_release) return row.models;
  }
  return kScalesOfRelease7;
}

bool IsCompact(const FirmwareId& firmware) {
  return firmware.version == "V1410";
}

FirmwareId ServedAs(const FirmwareId& compact) {
  return {"V1400", compact.release == "R1" ? "R7" : compact.release};
}

}  // namespace ovl::firmware
