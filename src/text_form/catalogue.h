// All settings of a firmware. What the entries of the lists store is found out by picking each of them in a
// program without a screen, so that no rule of the panels is written twice. Making a catalogue takes some
// hundred times as long as a load; it can be used for any number of images.
#pragma once

#include <deque>
#include <map>
#include <utility>
#include <vector>

#include "changes/preview_program.h"
#include "text_form/settings.h"

namespace ovl::text_form {

using OptionRows = std::vector<const registers::OptionRow*>;

// The on and off that another control of the form decides is no setting of its own.
bool IsDecidedByAnother(std::string_view control);

class Catalogue {
 public:
  // Of the firmware of the image of `like`, which has to outlive it.
  explicit Catalogue(const core::Application& like);
  Catalogue(const Catalogue&) = delete;

  const firmware::FirmwareId& Firmware() const { return firmware_; }

  // The tables in the order of the text form.
  const std::vector<std::string>& Tables() const { return tables_; }

  // The settings of the panels, in the order of the tables. The register comes first.
  std::span<const Setting> OfPanels() const { return panels_; }

  // The setting of the panels with this name; null if there is none.
  const Setting* Find(std::string_view table, std::string_view key) const;

  // The setting of the panels that this control shows; null if there is none.
  const Setting* Showing(std::string_view control, int slot) const;

  // The options that the register of the image offers, as the form shows them after a load. The latest
  // answers are kept.
  std::vector<Setting> OfRegister(const image::ConfigImage& image);

  // The names of the options of every register.
  std::vector<std::string> OptionKeys() const;

 private:
  // What the entries of an option store, whatever the image.
  struct Encoding {
    std::vector<FieldPart> parts;  // none: the words of the option are not stored
    std::vector<std::vector<std::string>> stored;
  };

  // The options for some stored values of the fields of options.
  struct Offer {
    std::string stored;
    std::vector<Setting> settings;
  };

  std::string StoredOptions(const image::ConfigImage& image) const;
  void AddFields();
  void AddSite(const changes::Site& site, image::FieldId field, int entry);
  void DropHidden(const changes::PreviewProgram& off, const changes::PreviewProgram& on);
  void GiveChoices();
  void SortByTable();
  std::optional<Setting> OptionSetting(const changes::PreviewProgram& program, const OptionRows& rows,
                                       const image::ConfigImage& image);
  const Encoding& EncodingOf(const OptionRows& rows, const image::ConfigImage& image);
  bool ShowsWhatItStores(const Encoding& encoding, std::string_view control,
                         const image::ConfigImage& image) const;

  const core::Application& like_;
  firmware::FirmwareId firmware_;
  std::vector<std::string> tables_;
  std::vector<Setting> panels_;
  std::map<std::pair<std::string_view, std::string_view>, const Setting*> by_name_;
  std::vector<OptionRows> options_;                                         // those of one control together
  std::map<std::pair<std::string, std::string_view>, Encoding> encodings_;  // by register and control
  std::deque<Offer> offers_;                                                // the latest first
};

}  // namespace ovl::text_form
