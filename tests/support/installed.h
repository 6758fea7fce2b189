// A program started on the default images of its firmware, and what an act left in the configuration.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "default_images.h"
#include "image/field_map.h"
#include "image/files.h"
#include "support/harness.h"

namespace ovl::testing {

// Bytes of the image text, counted from 0. Those of the fixed section differ by family.
inline constexpr int kLineFlags = 1, kInterface = 2, kReceiveSpeed = 3, kTransmitSpeed = 4, kUnitAddress = 11,
                     kConsole = 13, kTciAddress = 14, kTitle = 17;

// Which default images are there at the start; with kOwn the test writes its own and starts the program
// itself.
enum class Images { kAll, kFirstRegister, kOwn };

class Installed : public Harness {
 public:
  using Bytes = std::initializer_list<std::pair<FieldId, std::string>>;

  explicit Installed(const FirmwareId& firmware, Images images = Images::kAll)
      : Harness(firmware), firmware_(firmware) {
    if (images == Images::kAll) WriteDefaultImages(folder.Path().string(), firmware);
    if (images != Images::kOwn && Start() != Outcome::kDone)
      throw std::runtime_error(firmware.Joined() + " does not start");
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
  Outcome Open(const std::optional<std::string>& path) {
    file_answers.push_back(path);
    return Click("OpenMenu");
  }

  // From here on Written() tells every field that changes, by its name; the commonest have short ones. Where
  // all bytes were filled with one that nothing writes, no write hides behind the value that was there.
  void Mark() { before_ = app.image; }
  void Fill(const std::string& byte, Bytes others = {}) {
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) app.image.at(row.id, entry) = byte;
    }
    for (const auto& [field, other] : others) app.image[field] = other;
    Mark();
  }
  std::string Written() const {
    std::string written;
    for (const auto& row : FieldTable()) {
      for (int entry = 1; entry <= EntryCount(row.id); ++entry) {
        if (app.image.at(row.id, entry) == before_.at(row.id, entry)) continue;
        written += written.empty() ? "" : " ";
        written += ShortName(row) + (EntryCount(row.id) > 1 ? "(" + std::to_string(entry) + ")" : "");
        written += "=" + app.image.at(row.id, entry);
      }
    }
    return written;
  }
  // What a pick writes into an image of EE bytes.
  std::string Effect(std::string_view control, int position, Bytes others = {}) {
    Fill("EE", others);
    return Pick(control, position) == Outcome::kDone ? Written() : "refused";
  }

  List& ListOf(std::string_view name) { return *std::get<List*>(Known(name)); }
  OptionArray& ArrayOf(std::string_view name) { return *std::get<OptionArray*>(Known(name)); }

  // The entry selected in a list, or the element chosen in an option array.
  int Selected(std::string_view name) {
    const auto& control = Known(name);
    if (const auto* list = std::get_if<List*>(&control)) return (*list)->position;
    return std::get<OptionArray*>(control)->chosen;
  }
  // What a list or an option array offers, as "A|B|C".
  std::string Offered(std::string_view name) {
    std::string texts;
    const auto add = [&](const std::string& text) { texts += (texts.empty() ? "" : "|") + text; };
    const auto& control = Known(name);
    if (const auto* list = std::get_if<List*>(&control)) {
      for (const auto& item : (*list)->items) add(item);
    } else {
      for (const auto& element : std::get<OptionArray*>(control)->elements) {
        if (element.visible) add(element.caption);
      }
    }
    return texts;
  }
  // A control that this firmware, or the register selected, does not offer.
  void Reveal(std::string_view name) {
    const auto& control = Known(name);
    FaceOf(control).visible = FaceOf(control).enabled = true;
    if (const auto* array = std::get_if<OptionArray*>(&control)) {
      for (auto& element : (*array)->elements) element.visible = true;
    }
  }
  // The option frames on the screen, "49 18" at the most.
  std::string Frames() const {
    std::string shown;
    for (const auto& frame : app.frmMain.frmAddress) {
      if (frame.visible) shown = std::to_string(frame.index) + (shown.empty() ? "" : " ") + shown;
    }
    return shown;
  }

 private:
  static std::string ShortName(const FieldRow& row) {
    switch (row.id) {
      case FieldId::RX_BAUDRATE:
        return "RX";
      case FieldId::TX_BAUDRATE:
        return "TX";
      case FieldId::REGTYPE_MINOR:
        return "M";
      case FieldId::REGTYPE_EXT1:
        return "E";
      case FieldId::REGTYPE_EXT2:
        return "X";
      default:
        return std::string(row.name);
    }
  }
  const ControlRef& Known(std::string_view name) {
    Control(name);
    return app.registry.Find(name)->control;
  }

  FirmwareId firmware_;
  ConfigImage before_;
};

}  // namespace ovl::testing
