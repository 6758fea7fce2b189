// A program without a screen in which handlers store, to find out what they would store over an image. So the
// rules of the panels and of the register options are not repeated.
#pragma once

#include "core/application.h"

namespace ovl::checks {

class TrialProgram {
 public:
  // Shows the image on the panels, without its register. It asks nothing of the platform.
  TrialProgram(const core::Application& like, const image::ConfigImage& image);

  // The image after an act, which can move the lists: one act for each program.
  image::ConfigImage After(core::Routine act);

  // The image after its register was shown, with all that the options of the register force.
  image::ConfigImage WithForcedSettings();

 private:
  core::Application app_;
  image::ConfigImage image_;
};

}  // namespace ovl::checks
