#include "support/firmware_facts.h"

#include <algorithm>

namespace ovl::testing {
namespace {

using enum Feature;
using Features = std::vector<Feature>;

constexpr StreamFacts kFirstV1400 = {"$2000", "$2840", 64, 206, 4272};
constexpr StreamFacts kR6 = {"$2000", "$2860", 64, 206, 4304};
constexpr StreamFacts kR7 = {"$2000", "$2860", 64, 224, 4322};
constexpr StreamFacts kLateV1400 = {"$2000", "$2860", 64, 226, 4324};
constexpr StreamFacts kOldV13 = {"$7800", "$7FE0", 96, 192, 4066};
constexpr StreamFacts kNewV13 = {"$77F0", "$7FF0", 96, 192, 4098};

Features operator+(Features some, const Features& more) {
  some.insert(some.end(), more.begin(), more.end());
  return some;
}

std::vector<FirmwareFacts> Rows() {
  const Features r2 = {kVista, kOldInterfaceCodes};
  const Features r7 = {kVista, kAlarmType};
  const Features r11 = r7 + Features{kRtsBlankTime, kLastSharpModel, kUniparSharesNumber};
  const Features r12 = r11 + Features{kMasterReset, kSpanishFirst, kNewIbmModels};
  const Features old_v13 = {kReducedForm, kOnePairOfIds, kOldDemo, kOldInterfaceCodes};
  const Features first_v13 = old_v13 + Features{kNoDemo};
  const Features v1300_r27 = {kReducedForm, kAlarmType, kRtsBlankTime, kTenthSharpModel};
  const Features v1324_r26 = {kReducedForm, kAlarmType, kRtsBlankTime, kLastEpsonOption};
  const Features old_demo = {kOnePairOfIds, kOldDemo};
  return {
      {{"V1400", "R1"}, kFirstV1400, {kOldDemo, kOldInterfaceCodes}},
      {{"V1400", "R2"}, kFirstV1400, r2},
      {{"V1400", "R4"}, kFirstV1400, r2},
      {{"V1400", "R6"}, kR6, r2 + Features{kAlarmType}},
      {{"V1400", "R7"}, kR7, r7},
      {{"V1400", "R11"}, kLateV1400, r11},
      {{"V1400", "R12"}, kLateV1400, r12},
      {{"V1300", "R14"}, kOldV13, first_v13},
      {{"V1300", "R15"}, kOldV13, first_v13},
      {{"V1300", "R16"}, kOldV13, first_v13},
      {{"V1300", "R17"}, kOldV13, first_v13},
      {{"V1300", "R18"}, kOldV13, old_v13},
      {{"V1300", "R19"}, kOldV13, old_v13},
      {{"V1300", "R20"}, kOldV13, old_v13},
      {{"V1300", "R21"}, kOldV13, old_v13},
      {{"V1300", "R23"}, kOldV13, old_v13},
      {{"V1300", "R26"}, kNewV13, v1300_r27 + old_demo},
      {{"V1300", "R27"}, kNewV13, v1300_r27},
      {{"V1324", "R17"}, kOldV13, first_v13},
      {{"V1324", "R18"}, kOldV13, first_v13},
      {{"V1324", "R19"}, kOldV13, first_v13},
      {{"V1324", "R20"}, kOldV13, first_v13},
      {{"V1324", "R21"}, kOldV13, old_v13},
      {{"V1324", "R23"}, kOldV13, old_v13},
      {{"V1324", "R24"}, kOldV13, old_v13},
      {{"V1324", "R25"}, kNewV13, v1324_r26 + old_demo},
      {{"V1324", "R26"}, kNewV13, v1324_r26},
      {{"V1310", "R1"}, kNewV13, v1300_r27},
      {{"V1334", "R1"}, kNewV13, v1324_r26},
  };
}

}  // namespace

bool FirmwareFacts::Has(Feature feature) const {
  return std::ranges::find(features, feature) != features.end();
}

const std::vector<FirmwareFacts>& AllFirmwareFacts() {
  static const auto rows = Rows();
  return rows;
}

const FirmwareFacts& FactsOf(const firmware::FirmwareId& firmware) {
  const FirmwareFacts* found = nullptr;
  for (const auto& row : AllFirmwareFacts()) {
    if (row.id.version != firmware.version) continue;
    if (found == nullptr || row.id.Number() <= firmware.Number()) found = &row;
  }
  return found != nullptr ? *found : AllFirmwareFacts().back();
}

std::vector<firmware::FirmwareId> EveryFirmware() {
  std::vector<firmware::FirmwareId> all;
  for (const auto& row : AllFirmwareFacts()) all.push_back(row.id);
  return all;
}

}  // namespace ovl::testing
