// The image that is checked, and the programs that show it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "changes/wording.h"

namespace ovl::checks {

class Subject {
 public:
  Subject(const core::Application& like, const image::ConfigImage& image)
      : like_(like), image_(image), wording_(like, image) {}

  const core::Application& Like() const { return like_; }
  const image::ConfigImage& Image() const { return image_; }
  const firmware::FirmwareId& Firmware() const { return like_.image_firmware; }
  int Byte(image::FieldId field, int entry = 1) const;
  bool HasBit(image::FieldId field, int bit) const;

  // The program that shows the image, and its form.
  changes::Wording& Words() { return wording_; }
  const changes::PreviewProgram& Program() const { return wording_.Program(); }
  const core::Application& Shown() const { return Program().Form(); }
  const controls::MainForm& Form() const { return Shown().frmMain; }

  // What the control shows without an exception or alarm; empty if its list has no entry for the byte.
  phrases::Words Entry(std::string_view control) const;

  // The image as the rules of the panels about lines of the display and about the network would store it.
  const image::ConfigImage& ByPanelRules();

  // The image after the entry that the list or the option array shows was picked again. Nothing if it shows
  // none, or if the pick moves it to another entry.
  std::optional<image::ConfigImage> AfterPickAgain(const changes::Site& site);

  // Whether a load shows another entry of the option after that was picked. Some firmware read another field
  // than they write. Only for options with an entry that was picked again.
  bool ShowsPicks(const changes::Site& site);

  // Whether a person can see the control and use it.
  bool Offers(const std::string& control) const;

 private:
  const core::Application& like_;
  const image::ConfigImage& image_;
  changes::Wording wording_;
  std::optional<image::ConfigImage> by_panel_rules_;
  std::optional<changes::PreviewProgram> picks_;  // its lists move
};

}  // namespace ovl::checks
