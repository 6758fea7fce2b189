// Which firmware is being served: a family such as "V1400" and a release such as "R7".
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "codecs/codecs.h"

namespace ovl::firmware {

// The number behind the "R" of a release. All release rules compare it, never the text.
inline int ReleaseNumber(std::string_view release) {
  return release.empty() ? 0 : codecs::LeadingNumber(release.substr(1));
}

// The families that have a folder of images and an upload file.
inline bool IsKnownFamily(std::string_view version) {
  constexpr std::array<std::string_view, 5> kFamilies = {"V1400", "V1300", "V1310", "V1324", "V1334"};
  return std::find(kFamilies.begin(), kFamilies.end(), version) != kFamilies.end();
}

// The layouts of the fixed section that the families use.
enum class Layout { kEarlyV1400, kLateV1400, kOldV13, kNewV13 };

struct FirmwareId {
  std::string version;
  std::string release;

  int Number() const { return ReleaseNumber(release); }
  std::string Joined() const { return version + release; }
  bool IsV1400() const { return version == "V1400"; }
  bool operator==(const FirmwareId&) const = default;
};

// What only some firmware have. Set before any stream is read or written.
struct Capabilities {
  bool HasAtmInterface = false;
  bool HasTcpIp = true;
  bool HasTimeFields = true;
  bool HasAnsiTerm = false;
};

}  // namespace ovl::firmware
