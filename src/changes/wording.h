// The words for a part of a field, and the name of the setting.
#pragma once

#include <optional>
#include <string>

#include "changes/preview_program.h"
#include "changes/sites.h"
#include "phrases/phrases.h"

namespace ovl::changes {

// "byte 7F", or "bytes 01 02"; at most eight bytes.
phrases::Words BytesInWords(std::string_view digits);

// Tab, title of the panel where a caption alone is not clear, number of the exception or alarm.
int TabOf(core::Place place);
phrases::Words TabCaption(const core::Application& app, int tab);
phrases::Words SlotCaption(const core::Application& app, const Site& site);

// The control of the main form with which a person reaches the setting, and the list that first selects the
// exception or alarm.
std::string ReachedBy(const PreviewProgram& program, const Site& site);
std::string_view SlotListOf(const Site& site);

// One image, and the program that shows it. It loads an exception or an alarm when it is asked for it.
class Wording {
 public:
  Wording(const core::Application& like, const image::ConfigImage& image) : program_(like, image) {}

  // Nothing if the form does not show the value.
  std::optional<phrases::Words> WordsOf(const Site& site, std::string_view value);

  const PreviewProgram& Program() const { return program_; }
  std::string RegisterName() const { return program_.Form().frmMain.ComboReg.Text(); }

 private:
  void Show(const Site& site);
  std::optional<phrases::Words> FlagWords(const Site& site, std::string_view value) const;

  PreviewProgram program_;
  int exception_ = 0;
  int alarm_ = 0;
};

}  // namespace ovl::changes
