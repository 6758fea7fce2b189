#include "checks/trial_program.h"

#include "changes/preview_program.h"
#include "registers/selection_driver.h"

namespace ovl::checks {

TrialProgram::TrialProgram(const core::Application& like, const image::ConfigImage& image) : image_(image) {
  changes::SetUpWithoutScreen(app_, like);
  app_.LinkMode = core::kLinkUpload;  // the window of MICROS stays closed
  for (const auto& routine : app_.Setting_Code) {
    app_.image = image_;
    if (routine.run != registers::ApplyRegisterSelection) routine.run(app_);
  }
}

image::ConfigImage TrialProgram::After(core::Routine act) {
  app_.image = image_;
  app_.PanelsReady = true;
  act(app_);
  return app_.image;
}

image::ConfigImage TrialProgram::WithForcedSettings() {
  app_.UploadApplying = true;  // the register is shown, and its default image is not loaded
  return After(registers::ApplyRegisterSelection);
}

}  // namespace ovl::checks
