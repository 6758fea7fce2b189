#include "acts/inspection.h"

#include "acts/backup.h"
#include "firmware/traits.h"

namespace ovl::acts {
namespace {

using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

// "It fits V1300R14, V1300R15."
Words FitText(const std::vector<image::FirmwareFit>& fits) {
  if (fits.empty())
    return Sentence(
        Pattern("Question",
                "The file does not fit any firmware: it is not complete, damaged, or not a configuration."));
  std::string names;
  for (const auto& fit : fits) names += (names.empty() ? "" : ", ") + fit.firmware.Joined();
  return Sentence(Pattern("Question", "The file fits %1."), {names});
}

// Two sentences.
Words Followed(const Words& first, const Words& second) {
  return phrases::SideBySide({first, std::string(" "), second});
}

Question QuestionOfEnd(const std::string& file, const Inspection& inspection, const std::string& served) {
  auto detail =
      Followed(FitText(inspection.fits), Sentence(Pattern("Question", "This program uses %1."), {served}));
  if (!inspection.fits.empty()) {
    detail = Followed(
        detail, Sentence(Pattern("Question", "Pick the firmware of the file in the Version menu first.")));
  }
  return {Sentence(Pattern("Question", "Opening %1 ends the program."), {file}), detail};
}

Question QuestionOfShift(const std::string& file, const Inspection& inspection, const std::string& served,
                         bool saved_files_reopen) {
  auto detail = Followed(
      FitText(inspection.fits),
      Sentence(Pattern("Question", "This program uses %1 and reads the file as a file of this firmware."),
               {served}));
  if (!saved_files_reopen) {
    detail = Followed(
        detail, Sentence(Pattern("Question", "\"Save\" under %1 writes such files. Open a backup instead."),
                         {served}));
  }
  return {Sentence(Pattern("Question", "Opening %1 puts settings in the wrong place."), {file}), detail};
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
