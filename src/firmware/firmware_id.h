// The firmware that the program serves: a family such as "V1400" and a release such as "R7".
// firmware/traits.h says what the families and releases differ in.
#pragma once

#include <string>
#include <string_view>

#include "codecs/codecs.h"

namespace ovl::firmware {

// The number behind the "R" of a release. Nearly all rules in traits.h compare this number and not the text.
inline int ReleaseNumber(std::string_view release) {
  return release.empty() ? 0 : codecs::LeadingNumber(release.substr(1));
}

// Families, as bits.
using FamilySet = unsigned;
inline constexpr FamilySet kFamily1400 = 1;
inline constexpr FamilySet kFamily1300 = 2;
inline constexpr FamilySet kFamily1310 = 4;
inline constexpr FamilySet kFamily1324 = 8;
inline constexpr FamilySet kFamily1334 = 16;

// The bit of a family; 0 for an unknown one.
constexpr FamilySet FamilyOf(std::string_view version) {
  if (version == "V1400") return kFamily1400;
  if (version == "V1300") return kFamily1300;
  if (version == "V1310") return kFamily1310;
  if (version == "V1324") return kFamily1324;
  return version == "V1334" ? kFamily1334 : 0;
}

// A known family has a folder of default images and an upload file.
constexpr bool IsKnownFamily(std::string_view version) {
  return FamilyOf(version) != 0;
}

// The layouts of the fixed section, the middle one of the three sections of an image.
enum class Layout { kEarlyV1400, kLateV1400, kOldV13, kNewV13 };

struct FirmwareId {
  std::string version;
  std::string release;

  int Number() const { return ReleaseNumber(release); }
  std::string Joined() const { return version + release; }
  bool IsV1400() const { return version == "V1400"; }
  bool operator==(const FirmwareId&) const = default;
};

// What only some firmware have. The program sets this before it reads or writes a stream.
struct Capabilities {
  bool HasAtmInterface = false;
  bool HasTcpIp = true;
  bool HasTimeFields = true;
  bool HasAnsiTerm = false;
};

}  // namespace ovl::firmware
