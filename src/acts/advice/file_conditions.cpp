#include "acts/advice/file_conditions.h"

#include "acts/act_names.h"
#include "acts/advice/link_conditions.h"
#include "changes/editors.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/field_map.h"
#include "image/report.h"
#include "registers/selection_driver.h"

namespace ovl::acts {
namespace {

using core::Place;
using image::FieldId;
using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

Advice GoToRegisterList(const core::Application& app, Words words) {
  return {AdviceId::kCount,
          {},
          std::move(words),
          AdviceAction::kGoToControl,
          changes::PlaceName(app, Place::kRegister),
          "ComboReg"};
}

// The register of the configuration, whatever the list shows.
Words RegisterOfImage(const core::Application& app) {
  const auto& names = app.frmMain.ComboReg.items;
  const auto code = static_cast<std::size_t>(codecs::HexToInt(app.image[FieldId::REGTYPE]));
  return code < names.size() ? Words(names[code]) : Sentence(Pattern("Advice", "another register"));
}

bool IsSwallowed(const core::Application& app, const Observed& observed) {
  return observed.files.PickSwallowed() &&
         app.frmMain.ComboReg.position != codecs::HexToInt(app.image[FieldId::REGTYPE]);
}

// What went wrong, where such files come from, and what to do.
Words AboutSavedFiles(const core::Application& app, const Words& problem, const Words& cure) {
  const Words blank(std::string(" "));
  if (firmware::SavedFileReopens(app.image_firmware)) return phrases::SideBySide({problem, blank, cure});
  return phrases::SideBySide(
      {problem, blank,
       Sentence(Pattern("Advice", "Files that \"Save\" writes under this firmware have this format.")), blank,
       cure});
}

std::string FieldName(const core::UnfitOption& unfit) {
  return image::EntryName(image::RowOf(unfit.field).name, image::EntryCount(unfit.field), unfit.entry);
}

}  // namespace

Advice UploadNotTaken(const core::Application& app, const Observed& observed) {
  const auto& problem = observed.files.UploadProblem();
  const auto of_image = RegisterOfImage(app);
  if (problem.empty() || app.frmMain.ComboReg.Text() == of_image) return {};
  return GoToRegisterList(app, Sentence(Pattern("Advice",
                                                "The program could not use the upload: %1. The list shows "
                                                "%2, but the configuration is still that of "
                                                "%3. Upload again, or pick %3."),
                                        {problem, app.frmMain.ComboReg.Text(), of_image}));
}

Advice RegisterReset(const core::Application& app, const Observed& observed) {
  const auto& reset = observed.files.Reset();
  if (!reset || app.image[FieldId::REGTYPE] != reset->code) return {};
  return {AdviceId::kCount,
          {},
          Sentence(Pattern("Advice",
                           "The answer of the unit had a wrong parity, so the program changed the register "
                           "to %1, with its options and its line settings. Undo restores %2."),
                   {RegisterOfImage(app), reset->register_before}),
          AdviceAction::kUndo,
          Sentence(Pattern("EditMenu", "Undo"))};
}

Advice FileMisread(const core::Application& app, const Observed& observed) {
  const auto path = observed.files.MisreadIn(app);
  if (path.empty()) return {};
  const auto misread = Sentence(Pattern("Advice",
                                        "%1 does not have the format of %2, so the register options and all "
                                        "settings after them are in the wrong place. Do not download them."),
                                {FileNameOf(path), app.image_firmware.Joined()});
  return {AdviceId::kCount,
          {},
          AboutSavedFiles(app, misread, Sentence(Pattern("Advice", "Upload again, or open a backup.")))};
}

Advice FileRefused(const core::Application& app, const Observed& observed) {
  const auto& path = observed.files.Refused();
  if (path.empty() || app.image != observed.files.ImageAtRefusal()) return {};
  const auto refused =
      Sentence(Pattern("Advice", "%1 is not a configuration that %2 can open. Nothing has changed."),
               {FileNameOf(path), app.image_firmware.Joined()});
  return {AdviceId::kCount,
          {},
          AboutSavedFiles(
              app, refused,
              Sentence(Pattern("Advice",
                               "Open a backup, or pick the firmware of the file in the Version menu.")))};
}

Advice PickSwallowed(const core::Application& app, const Observed& observed) {
  if (!IsSwallowed(app, observed)) return {};
  const auto picked = app.frmMain.ComboReg.Text();
  return GoToRegisterList(app, Sentence(Pattern("Advice",
                                                "The list shows %1, but the options and the configuration "
                                                "are still those of %2. Pick %1 again."),
                                        {picked, RegisterOfImage(app)}));
}

Advice NextPickSwallowed(const core::Application& app, const Observed& observed) {
  if (!app.UploadApplying || app.handling) return {};
  const auto& problem = observed.files.OpenProblem();
  return GoToRegisterList(
      app, problem.empty()
               ? Sentence(Pattern("Advice",
                                  "Open was cancelled. The next pick in the register list has no effect: the "
                                  "list shows it, but the program loads nothing. Pick the register twice."))
               : Sentence(Pattern("Advice",
                                  "Open failed: %1. The next pick in the register list has no effect: the "
                                  "list shows it, but the program loads nothing. Pick the register twice."),
                          {problem}));
}

Advice UnknownFirmware(const core::Application& app, const Observed&) {
  if (!app.frmMain.ComboReg.items.empty()) return {};
  const auto menu = OfForm(app.frmMain.VersionMenu.caption);
  return {
      AdviceId::kCount,
      {},
      Sentence(
          Pattern("Advice",
                  "The program does not know the firmware %1, so the register list and the tabs are empty. "
                  "Pick the firmware on the label of the unit in the %2 menu. The program then ends. Start "
                  "it again."),
          {app.image_firmware.Joined(), menu}),
      AdviceAction::kPickVersion,
      menu};
}

Advice OptionsHidden(const core::Application& app, const Observed& observed) {
  if (IsSwallowed(app, observed) || !registers::OptionsAreHidden(app)) return {};
  const auto name = app.frmMain.ComboReg.Text();
  const auto* unfit = registers::UnfitOptionOf(app);
  return GoToRegisterList(
      app, unfit == nullptr
               ? Sentence(Pattern("Advice",
                                  "The options of %1 are hidden: a stored option is not in its list. Pick %1 "
                                  "again to load its default options and its default line settings."),
                          {name})
               : Sentence(Pattern("Advice",
                                  "The options of %1 are hidden: %2 contains %3, which is not in its list. "
                                  "Pick %1 again to load its default options and its default line settings."),
                          {name, FieldName(*unfit), unfit->value}));
}

Advice SavedFile(const core::Application& app, const Observed& observed) {
  const auto& path = observed.files.Saved();
  if (path.empty() || firmware::SavedFileReopens(app.image_firmware)) return {};
  const auto backup = Sentence(Pattern("FileActs", "Save Backup..."));
  const std::vector<Words> parts = {FileNameOf(path), app.image_firmware.Joined(), backup};
  return {
      AdviceId::kCount,
      {},
      firmware::ReadsSavedFileShifted(app.image_firmware)
          ? Sentence(Pattern("Advice",
                             "%1 does not open again correctly: under %2, \"Open\" reads its settings in the "
                             "wrong place. Use \"%3\" for a file that opens again."),
                     parts)
          : Sentence(Pattern("Advice",
                             "%1 does not open again: under %2, \"Open\" refuses it. Use \"%3\" for a file "
                             "that opens again."),
                     parts),
      AdviceAction::kSaveBackup,
      backup};
}

Advice OtherTabsChanged(const core::Application& app, const Observed& observed) {
  const auto& change = observed.files.OtherTabs();
  if (!change || app.image[FieldId::REGTYPE] != change->code) return {};
  if (app.image == change->before) return {};  // taken back
  const std::vector<Words> parts = {RegisterOfImage(app), change->words};
  return {AdviceId::kCount,
          {},
          change->picked
              ? Sentence(Pattern("Advice",
                                 "The pick of %1 also changed %2. Check these tabs before you download."),
                         parts)
              : Sentence(Pattern("Advice",
                                 "The options of %1 also changed %2. Check these tabs before you download."),
                         parts)};
}

Advice FirstSteps(const core::Application& app, const Observed& observed) {
  if (observed.files.Begun()) return {};
  const auto tab = changes::PlaceName(app, Place::kRemote);
  const auto upload = OfForm(app.frmMain.CmdUpDow[controls::kUpload].caption);
  const auto* next = !app.frmMain.MSComm1.PortOpen ? "cmdConnect"
                     : app.RemoteHeld              ? "CmdUpDow(0)"
                                                   : "CmdUpDow(4)";
  return {
      AdviceId::kCount,
      {},
      Sentence(Pattern("Advice", "The tabs show default settings, not those of the unit. On %1, press %2."),
               {tab, StepsOnRemote(app, upload)}),
      AdviceAction::kGoToControl,
      tab,
      next};
}

}  // namespace ovl::acts
