#include "acts/inspection.h"

#include "acts/backup.h"
#include "firmware/traits.h"

namespace ovl::acts {
namespace {

// "It fits V1300R14, V1300R15."
std::string FitText(const std::vector<image::FirmwareFit>& fits) {
  if (fits.empty()) return "It fits no firmware: it is cut, or damaged, or no configuration.";
  std::string names;
  for (const auto& fit : fits) names += (names.empty() ? "" : ", ") + fit.firmware.Joined();
  return "It fits " + names + ".";
}

Question QuestionOfEnd(const std::string& file, const Inspection& inspection, const std::string& served) {
  auto detail = FitText(inspection.fits) + " This program serves " + served + ".";
  if (!inspection.fits.empty()) detail += " Pick the firmware of the file in the Version menu first.";
  return {"Opening " + file + " ends the program.", detail};
}

Question QuestionOfShift(const std::string& file, const Inspection& inspection, const std::string& served,
                         bool saved_files_reopen) {
  auto detail = FitText(inspection.fits) + " This program serves " + served + " and reads it as such a file.";
  if (!saved_files_reopen) detail += " \"Save\" under " + served + " writes such files. A backup opens.";
  return {"Opening " + file + " puts settings in the wrong place.", detail};
}

}  // namespace

Inspection Inspect(std::string_view stream, const firmware::FirmwareId& firmware) {
  return {image::FittingFirmware(stream), image::OutcomeOfOpening(stream, firmware)};
}

std::optional<Question> QuestionBeforeOpening(std::string_view stream, std::string_view file_name,
                                              const core::Application& app) {
  const auto inspection = Inspect(stream, app.image_firmware);
  const std::string file(file_name), served = FirmwareName(app);
  if (inspection.outcome == image::OpenOutcome::kEndsProgram) return QuestionOfEnd(file, inspection, served);
  if (inspection.outcome == image::OpenOutcome::kShifts)
    return QuestionOfShift(file, inspection, served, firmware::SavedFileReopens(app.image_firmware));
  return std::nullopt;
}

}  // namespace ovl::acts
