#include "acts/advice/file_conditions.h"

#include <algorithm>

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

constexpr const char* kSaveBackup = "Save Backup...";

Advice GoToRegisterList(const core::Application& app, std::string words) {
  return {AdviceId::kCount,
          {},
          std::move(words),
          AdviceAction::kGoToControl,
          changes::PlaceName(app, Place::kRegister),
          "ComboReg"};
}

// The register of the configuration, whatever the list shows.
std::string RegisterOfImage(const core::Application& app) {
  const auto& names = app.frmMain.ComboReg.items;
  const auto code = static_cast<std::size_t>(codecs::HexToInt(app.image[FieldId::REGTYPE]));
  return code < names.size() ? names[code] : "another register";
}

bool IsSwallowed(const core::Application& app, const Observed& observed) {
  return observed.files.PickSwallowed() &&
         app.frmMain.ComboReg.position != codecs::HexToInt(app.image[FieldId::REGTYPE]);
}

std::string FieldName(const core::UnfitOption& unfit) {
  const auto rows = image::FieldTable();
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&](const image::FieldRow& at) { return at.id == unfit.field; });
  return image::EntryName(row->name, image::EntryCount(unfit.field), unfit.entry);
}

}  // namespace

Advice UploadNotTaken(const core::Application& app, const Observed& observed) {
  const auto& problem = observed.files.UploadProblem();
  const auto of_image = RegisterOfImage(app);
  if (problem.empty() || app.frmMain.ComboReg.Text() == of_image) return {};
  return GoToRegisterList(app, "The upload was not taken: " + problem + ". The list shows " +
                                   app.frmMain.ComboReg.Text() + ", but the configuration is still that of " +
                                   of_image + ". Upload again, or pick " + of_image + ".");
}

Advice RegisterReset(const core::Application& app, const Observed& observed) {
  const auto& reset = observed.files.Reset();
  if (!reset || app.image[FieldId::REGTYPE] != reset->code) return {};
  return {AdviceId::kCount,
          {},
          "The answer had a wrong parity, so " + RegisterOfImage(app) +
              " was selected, with its options and its line. Undo brings " + reset->register_before +
              " back.",
          AdviceAction::kUndo,
          "Undo"};
}

Advice FileMisread(const core::Application& app, const Observed& observed) {
  const auto path = observed.files.MisreadIn(app);
  if (path.empty()) return {};
  auto words = FileNameOf(path) + " does not have the form of " + app.image_firmware.Joined() +
               ", so everything from the register options on is shifted. Do not download it.";
  if (!firmware::SavedFileReopens(app.image_firmware))
    words += " Files that \"Save\" writes under this firmware have this form.";
  return {AdviceId::kCount, {}, words + " Upload again, or open a backup."};
}

Advice FileRefused(const core::Application& app, const Observed& observed) {
  const auto& path = observed.files.Refused();
  if (path.empty() || app.image != observed.files.ImageAtRefusal()) return {};
  auto words = FileNameOf(path) + " is no configuration that " + app.image_firmware.Joined() +
               " opens. Nothing has changed.";
  if (!firmware::SavedFileReopens(app.image_firmware))
    words += " Files that \"Save\" writes under this firmware have this form.";
  return {
      AdviceId::kCount, {}, words + " Open a backup, or pick the firmware of the file in the Version menu."};
}

Advice PickSwallowed(const core::Application& app, const Observed& observed) {
  if (!IsSwallowed(app, observed)) return {};
  const auto picked = app.frmMain.ComboReg.Text();
  return GoToRegisterList(
      app, "The list shows " + picked + ", but the options and the configuration are those of " +
               RegisterOfImage(app) + ": the pick was swallowed. Pick " + picked + " again.");
}

Advice NextPickSwallowed(const core::Application& app, const Observed& observed) {
  if (!app.UploadApplying || app.handling) return {};
  const auto& problem = observed.files.OpenProblem();
  return GoToRegisterList(
      app, (problem.empty() ? "Open was cancelled." : "Open failed: " + problem + ".") +
               " The next pick in the register list is swallowed: the list moves, and nothing is "
               "loaded. Pick the register twice.");
}

Advice UnknownFirmware(const core::Application& app, const Observed&) {
  if (!app.frmMain.ComboReg.items.empty()) return {};
  const auto& menu = app.frmMain.VersionMenu.caption;
  return {AdviceId::kCount,
          {},
          "The program does not know the firmware " + app.image_firmware.Joined() +
              ", so the register list and the tabs are empty. Pick the firmware on the label of the unit in "
              "the " +
              menu + " menu. The program then ends; start it again.",
          AdviceAction::kPickVersion,
          menu};
}

Advice OptionsHidden(const core::Application& app, const Observed& observed) {
  if (IsSwallowed(app, observed) || !registers::OptionsAreHidden(app)) return {};
  const auto name = app.frmMain.ComboReg.Text();
  const auto* unfit = registers::UnfitOptionOf(app);
  const auto byte =
      unfit == nullptr ? "a stored option" : FieldName(*unfit) + " holds " + unfit->value + ", which";
  return GoToRegisterList(app, "The options of " + name + " are hidden: " + byte +
                                   " is not in its list. Pick " + name +
                                   " again: this loads its default options and its default line.");
}

Advice SavedFile(const core::Application& app, const Observed& observed) {
  const auto& path = observed.files.Saved();
  if (path.empty() || firmware::SavedFileReopens(app.image_firmware)) return {};
  const auto effect =
      firmware::ReadsSavedFileShifted(app.image_firmware) ? " reads it shifted" : " refuses it";
  return {AdviceId::kCount,
          {},
          FileNameOf(path) + " does not open again: under " + app.image_firmware.Joined() + " \"Open\"" +
              effect + ". Use \"" + kSaveBackup + "\" for a file that opens again.",
          AdviceAction::kSaveBackup,
          kSaveBackup};
}

Advice OtherTabsChanged(const core::Application& app, const Observed& observed) {
  const auto& change = observed.files.OtherTabs();
  if (!change || app.image[FieldId::REGTYPE] != change->code) return {};
  if (app.image == change->before) return {};  // taken back
  return {AdviceId::kCount,
          {},
          (change->picked ? "The pick of " : "The options of ") + RegisterOfImage(app) + " also stored " +
              change->words + ". Look at these tabs before you download."};
}

Advice FirstSteps(const core::Application& app, const Observed& observed) {
  if (observed.files.Begun()) return {};
  const auto tab = changes::PlaceName(app, Place::kRemote);
  const auto& upload = app.frmMain.CmdUpDow[controls::kUpload].caption;
  const auto* next = !app.frmMain.MSComm1.PortOpen ? "cmdConnect"
                     : app.RemoteHeld              ? "CmdUpDow(0)"
                                                   : "CmdUpDow(4)";
  return {AdviceId::kCount,           {},  "Begin on " + tab + ": " + StepsOnRemote(app, upload) + ".",
          AdviceAction::kGoToControl, tab, next};
}

}  // namespace ovl::acts
