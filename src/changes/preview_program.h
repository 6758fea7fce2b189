// A second program without a screen that shows another image. It finds the words for stored bytes: the panels
// themselves select the entries, so that no rule of theirs is written twice.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/application.h"
#include "phrases/phrases.h"

namespace ovl::changes {

// Gives a new program the firmware, the panels and the register options of another, without an image and
// without a platform.
void SetUpWithoutScreen(core::Application& app, const core::Application& like);

class PreviewProgram {
 public:
  // Shows the image on the panels and on the options of its register, as the program `like` would after a
  // load. It asks nothing of the platform and changes nothing in `like`.
  PreviewProgram(const core::Application& like, const image::ConfigImage& image);

  // Shows another image of the same firmware.
  void Show(const image::ConfigImage& image);

  // What a pick makes of an image: entry of a list, element of an option array. The panels show what they
  // showed before; the list keeps the pick. Nothing for a control without a handler or without the entry.
  std::optional<image::ConfigImage> AfterPick(std::string_view control, int entry,
                                              const image::ConfigImage& image);

  // Shows one exception, 1 to 24, or one alarm, 1 to 16, on its panel.
  void ShowException(int number);
  void ShowAlarm(int number);

  const core::Application& Form() const { return app_; }

  // The control of this program.
  const controls::NamedControl& Named(std::string_view name) const;

  // Whether the control is visible, and the frame around it that some firmware hide as a whole.
  bool Shows(std::string_view control) const;

  // The entry of a list, or the element of an option array, that the control shows; -1: none.
  int EntryShown(std::string_view control) const;

  // The fixed text over a list that has no meaning as long as another one has its entry, such as "N/A".
  std::optional<std::string> CoverOf(std::string_view control) const;

  // What the control shows: the entry of a list, the caption of the chosen option, a text, ON or OFF. Nothing
  // if the list has no entry for the stored byte.
  std::optional<phrases::Words> WordsOf(std::string_view name) const;

 private:
  void ApplyAll();

  core::Application app_;
  image::ConfigImage image_;
};

}  // namespace ovl::changes
