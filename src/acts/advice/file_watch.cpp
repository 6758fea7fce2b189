#include "acts/advice/file_watch.h"

#include <system_error>

#include "changes/also_stored.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/report.h"

namespace ovl::acts {

using image::FieldId;

void FileWatch::Before(const core::Application& app, const core::Event& event) {
  const bool reachable = app.frmMain.form.visible && app.frmMain.form.enabled;
  before_.picks_register = reachable && core::Picks(event, app.frmMain.ComboReg);
  before_.opens = reachable && core::Clicks(event, app.frmMain.OpenMenu);
  before_.saves = reachable && core::Clicks(event, app.frmMain.menuSave);
  before_.upload_applying = app.UploadApplying;
  before_.position = app.frmMain.ComboReg.position;
  before_.code = app.image[FieldId::REGTYPE];
  before_.register_name = app.frmMain.ComboReg.Text();
  before_.failures = app.failures_noted;
  before_.of_installer = core::IsOfInstaller(event);
  if (before_.picks_register) before_.image = app.image;
}

void FileWatch::After(const core::Application& app, const LinkWatch& link) {
  renewed_.reset();
  if (link.UploadCompleted()) TakenIn(app);
  if (!before_.of_installer) WatchLine(app, link);
  if (link.DownloadCompleted()) other_tabs_.reset();
  if (before_.opens) WatchOpen(app);
  if (before_.saves) WatchSave(app);
  WatchRegister(app);
}

// An undone Open has another known image, and so has a complete upload.
std::string FileWatch::MisreadIn(const core::Application& app) const {
  return misread_.empty() || app.known_image != misread_image_ ? std::string() : misread_;
}

// The configuration is a new one: what was said about the old one no longer holds.
void FileWatch::TakenIn(const core::Application& app) {
  begun_ = true;
  refused_.clear();
  saved_.clear();
  upload_problem_.clear();
  WatchOtherTabs(app, app.known_image, false);
}

void FileWatch::WatchOtherTabs(const core::Application& app, const image::ConfigImage& before, bool picked) {
  other_tabs_.reset();
  auto words = app.image == before ? phrases::Words() : changes::OtherTabsStored(app, before);
  if (words.empty()) return;
  other_tabs_ = TabsChange{app.image[FieldId::REGTYPE], before, std::move(words), picked};
  Add(renewed_, AdviceId::kOtherTabsChanged);
}

// A wrong parity selects the first register. An upload that could not be stored only moves the list.
void FileWatch::WatchLine(const core::Application& app, const LinkWatch& link) {
  if (link.UploadCompleted()) return;
  const auto& code = app.image[FieldId::REGTYPE];
  if (code != before_.code) {
    reset_ = RegisterChange{code, before_.register_name};
    Add(renewed_, AdviceId::kRegisterReset);
  } else if (app.frmMain.ComboReg.position != before_.position && app.failures_noted != before_.failures) {
    upload_problem_ = app.StatusNote;
    Add(renewed_, AdviceId::kUploadNotTaken);
  }
}

// An Open that has read its file has also used up the guard of the register list.
void FileWatch::WatchOpen(const core::Application& app) {
  refused_.clear();
  if (app.UploadApplying) {
    const bool cancelled = app.noted_failure && app.noted_failure->Is(std::errc::operation_canceled);
    open_problem_ = cancelled ? std::string() : app.StatusNote;
    Add(renewed_, AdviceId::kNextPickSwallowed);
    return;
  }
  const auto outcome = image::OutcomeOfOpening(app.StreamText, app.image_firmware);
  if (outcome != image::OpenOutcome::kLoads && outcome != image::OpenOutcome::kShifts) {
    refused_ = app.CurrentFilePath;
    refused_image_ = app.image;
    Add(renewed_, AdviceId::kFileRefused);
    return;
  }
  TakenIn(app);
  if (outcome == image::OpenOutcome::kLoads) return;
  misread_ = app.CurrentFilePath;
  misread_image_ = app.known_image;
  Add(renewed_, AdviceId::kFileMisread);
}

void FileWatch::WatchSave(const core::Application& app) {
  if (app.saved_path.empty()) return;
  saved_ = app.saved_path;
  Add(renewed_, AdviceId::kSavedFile);
}

void FileWatch::WatchRegister(const core::Application& app) {
  const auto& code = app.image[FieldId::REGTYPE];
  const int position = app.frmMain.ComboReg.position;
  if (before_.picks_register) {
    reset_.reset();
    upload_problem_.clear();
    WatchOtherTabs(app, before_.image, true);
  }
  const bool guarded = before_.upload_applying && before_.picks_register;
  if (position != before_.position && code == before_.code && guarded) {
    pick_swallowed_ = true;
    Add(renewed_, AdviceId::kPickSwallowed);
  }
  if (pick_swallowed_ && position == codecs::HexToInt(code)) pick_swallowed_ = false;
}

}  // namespace ovl::acts
