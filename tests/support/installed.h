// A program with the default images of its firmware, and the changes that an act makes in the image.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "image/field_map.h"
#include "image/report.h"
#include "images/default_images.h"
#include "support/harness.h"

namespace ovl::testing {

// Bytes of the image text, counted from 0. Those of the fixed section differ by family.
inline constexpr int kReceiveSpeed = 3, kUnitAddress = 11;

// The default images that exist at the start. With kOwn the test writes its own and starts the program
// itself.
enum class Images { kAll, kFirstRegister, kOwn };

class Installed : public Harness {
 public:
  using Bytes = std::initializer_list<std::pair<image::FieldId, std::string>>;

  explicit Installed(const firmware::FirmwareId& firmware, Images images = Images::kAll)
      : Harness(firmware), firmware_(firmware), trace_(__FILE__, __LINE__, firmware.Joined()) {
    if (images == Images::kAll) images::WriteDefaultImages(folder.Path().string(), firmware);
    if (images != Images::kOwn && Start() != core::Outcome::kDone)
      throw std::runtime_error(firmware.Joined() + " does not start");
  }

  int Fixed(int byte) const { return (firmware_.IsV1400() ? 32 : 48) + byte; }
  int Code() const { return Fixed(0); }
  int Minor() const { return Fixed(1); }
  int Ext1() const { return Fixed(2); }
  int Ext2() const { return Fixed(3); }

  std::string PathOf(std::string name) const {
    const auto stands_for_blank = [](char character) { return character == '/' || character == ','; };
    if (firmware_.IsV1400()) std::replace_if(name.begin(), name.end(), stands_for_blank, ' ');
    return folder.File(firmware_.version + "/" + firmware_.release + "/" + name + ".bin");
  }

  // Changes one byte of a register's default image.
  void SetByte(const std::string& name, int byte, std::string_view hex) const {
    auto text = ReadFile(PathOf(name));
    const auto digit = static_cast<std::size_t>(2 * byte);
    text.replace(digit / 64 * 71 + 5 + digit % 64, 2, hex);
    WriteFile(PathOf(name), text);
  }

  int CodeOf(std::string_view name) const {
    const auto& names = app.frmMain.ComboReg.items;
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? -1 : static_cast<int>(found - names.begin());
  }
  core::Outcome Register(std::string_view name) { return Pick("ComboReg", CodeOf(name)); }
  // Clicks a button that asks for a file, and answers.
  core::Outcome Answer(std::string_view button, const std::optional<std::string>& path) {
    file_answers.push_back(path);
    return Click(button);
  }
  core::Outcome Open(const std::optional<std::string>& path) { return Answer("OpenMenu", path); }
  core::Outcome Type(controls::TextBox& box, std::string text) {
    return Dispatch(app, core::TypeEvent{&box, std::move(text)});
  }
  core::Outcome Leave(controls::TextBox& box) { return Dispatch(app, core::LeaveEvent{&box}); }
  core::Outcome Close(controls::Form& form) { return Dispatch(app, core::CloseEvent{&form}); }

  // From here on Written() lists every field that changes, by its name; some names are shortened.
  void Mark() { before_ = app.image; }
  // Fills the image with a byte that nothing writes, so that a write of the old value is seen too.
  void Fill(const std::string& byte, Bytes others = {}) {
    for (const auto& row : image::FieldTable()) {
      for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) app.image.at(row.id, entry) = byte;
    }
    for (const auto& [field, other] : others) app.image[field] = other;
    Mark();
  }
  static std::string NameOf(image::FieldId field) {
    using enum image::FieldId;
    static const std::map<image::FieldId, std::string> kShort = {{RX_BAUDRATE, "RX"},
                                                                 {TX_BAUDRATE, "TX"},
                                                                 {REGTYPE_MINOR, "MINOR"},
                                                                 {REGTYPE_EXT1, "EXT1"},
                                                                 {REGTYPE_EXT2, "EXT2"}};
    if (kShort.contains(field)) return kShort.at(field);
    return std::string(std::ranges::find(image::FieldTable(), field, &image::FieldRow::id)->name);
  }
  std::string Written() const {
    std::string written;
    for (const auto& row : image::FieldTable()) {
      for (int entry = 1; entry <= image::EntryCount(row.id); ++entry) {
        if (app.image.at(row.id, entry) == before_.at(row.id, entry)) continue;
        written.append(written.empty() ? "" : " ")
            .append(image::EntryName(NameOf(row.id), image::EntryCount(row.id), entry));
        written.append("=").append(app.image.at(row.id, entry));
      }
    }
    return written;
  }
  // The fields that a pick writes into an image of EE bytes.
  std::string Effect(std::string_view control, int position, Bytes others = {}) {
    Fill("EE", others);
    return Pick(control, position) == core::Outcome::kDone ? Written() : "refused";
  }

  controls::List& ListOf(std::string_view name) { return *std::get<controls::List*>(Known(name)); }
  controls::OptionArray& ArrayOf(std::string_view name) {
    return *std::get<controls::OptionArray*>(Known(name));
  }

  // The entry selected in a list, or the element chosen in an option array.
  int Selected(std::string_view name) {
    return std::holds_alternative<controls::List*>(Known(name)) ? ListOf(name).position
                                                                : ArrayOf(name).chosen;
  }
  // What a list or an option array offers, as "A|B|C".
  std::string Offered(std::string_view name) {
    std::vector<std::string> texts;
    if (std::holds_alternative<controls::List*>(Known(name))) {
      texts = ListOf(name).items;
    } else {
      for (const auto& element : ArrayOf(name).elements) {
        if (element.visible) texts.push_back(element.caption);
      }
    }
    std::string all;
    for (const auto& text : texts) all += (all.empty() ? "" : "|") + text;
    return all;
  }
  // Shows and enables a control that the firmware or the register does not offer.
  void Reveal(std::string_view name) {
    Control(name).visible = Control(name).enabled = true;
    if (!std::holds_alternative<controls::OptionArray*>(Known(name))) return;
    for (auto& element : ArrayOf(name).elements) element.visible = true;
  }
  // The numbers of the visible option frames. Only 49 and 18 are visible together: "49 18".
  std::string Frames() const {
    std::string shown;
    for (const auto& frame : app.frmMain.frmAddress) {
      if (frame.visible) shown = std::to_string(frame.index) + (shown.empty() ? "" : " ") + shown;
    }
    return shown;
  }

 private:
  firmware::FirmwareId firmware_;
  ::testing::ScopedTrace trace_;  // a failure names the firmware
  image::ConfigImage before_;
};

}  // namespace ovl::testing
