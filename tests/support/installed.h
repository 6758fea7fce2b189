// A program on the default images of its firmware, and what an act left in the configuration.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "default_images.h"
#include "image/field_map.h"
#include "image/files.h"
#include "support/harness.h"

namespace ovl::testing {

// Bytes of the image text, counted from 0. The register's own bytes stand at the head of the fixed section.
inline constexpr int kLineFlags = 1, kInterface = 2, kReceiveSpeed = 3, kTransmitSpeed = 4, kUnitAddress = 11,
                     kConsole = 13, kTitle = 17;

enum class Images { kAll, kFirstRegister };

class Installed : public Harness {
 public:
  explicit Installed(const FirmwareId& firmware, Images images = Images::kAll)
      : Harness(firmware), firmware_(firmware) {
    if (images == Images::kAll) WriteDefaultImages(folder.Path().string(), firmware);
  }

  int Fixed(int byte) const { return (firmware_.IsV1400() ? 32 : 48) + byte; }
  int Code() const { return Fixed(0); }
  int Minor() const { return Fixed(1); }
  int Ext1() const { return Fixed(2); }
  int Ext2() const { return Fixed(3); }

  std::string PathOf(std::string name) const {
    if (firmware_.IsV1400()) {
      std::replace(name.begin(), name.end(), '/', ' ');
      std::replace(name.begin(), name.end(), ',', ' ');
    }
    return folder.File(firmware_.version + "/" + firmware_.release + "/" + name + ".bin");
  }

  // Changes one byte of a register's default image.
  void SetByte(const std::string& name, int byte, std::string_view hex) const {
    auto text = ReadWhole(PathOf(name));
    const auto digit = static_cast<std::size_t>(2 * byte);
    text.replace(digit / 64 * 71 + 5 + digit % 64, 2, hex);
    WriteWhole(PathOf(name), text);
  }

  int CodeOf(std::string_view name) const {
    const auto& names = app.frmMain.ComboReg.items;
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
  }

  Outcome Register(std::string_view name) { return Pick("ComboReg", CodeOf(name)); }

  // From here on Written() tells every field that changes. Filled with a byte that nothing writes, no write
  // hides behind the value that was there.
  void Mark() { before_ = app.image; }
  void Fill(const std::string& byte) {
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) app.image.at(row.id, entry) = byte;
    }
    Mark();
  }
  std::string Written() const {
    std::string written;
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
        if (app.image.at(row.id, entry) == before_.at(row.id, entry)) continue;
        if (!written.empty()) written += " ";
        written += std::string(row.name) + (EntryCount(row.id) > 1 ? "(" + std::to_string(entry) + ")" : "") +
                   "=" + app.image.at(row.id, entry);
      }
    }
    return written;
  }

  List& ListOf(std::string_view name) { return *std::get<List*>(Known(name)); }
  OptionArray& ArrayOf(std::string_view name) { return *std::get<OptionArray*>(Known(name)); }

  // A control that this firmware, or the register selected, does not offer.
  void Reveal(std::string_view name) {
    Control(name).visible = true;
    if (const auto* array = std::get_if<OptionArray*>(&Known(name))) {
      for (auto& element : (*array)->elements) element.visible = true;
    }
  }

  // The captions of the elements that can be chosen, as "A|B|C".
  std::string Offered(std::string_view name) {
    std::string captions;
    for (const auto& element : ArrayOf(name).elements) {
      if (element.visible) captions += (captions.empty() ? "" : "|") + element.caption;
    }
    return captions;
  }

 private:
  const ControlRef& Known(std::string_view name) {
    Control(name);
    return app.registry.Find(name)->control;
  }

  FirmwareId firmware_;
  ConfigImage before_;
};

}  // namespace ovl::testing
