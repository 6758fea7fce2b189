#include "acts/advice/file_watch.h"

#include <system_error>

#include "changes/also_stored.h"
#include "codecs/codecs.h"
#include "firmware/traits.h"
#include "image/report.h"

namespace ovl::acts {
namespace {

using image::FieldId;

bool Clicks(const core::Event& event, const controls::MenuItem& item) {
  const auto* click = std::get_if<core::ClickEvent>(&event);
  auto* const* clicked = click == nullptr ? nullptr : std::get_if<controls::MenuItem*>(&click->control);
  return clicked != nullptr && *clicked == &item;
}

bool PicksRegister(const core::Application& app, const core::Event& event) {
  const auto* pick = std::get_if<core::PickEvent>(&event);
  auto* const* list = pick == nullptr ? nullptr : std::get_if<controls::List*>(&pick->control);
  return list != nullptr && *list == &app.frmMain.ComboReg;
}

bool IsCancelled(const std::string& note) {
  return note.ends_with(std::make_error_code(std::errc::operation_canceled).message());
}

}  // namespace

void FileWatch::Before(const core::Application& app, const core::Event& event) {
  const bool reachable = app.frmMain.form.visible && app.frmMain.form.enabled;
  before_.picks_register = reachable && PicksRegister(app, event);
  before_.opens = reachable && Clicks(event, app.frmMain.OpenMenu);
  before_.saves = reachable && Clicks(event, app.frmMain.menuSave);
  before_.upload_applying = app.UploadApplying;
  before_.position = app.frmMain.ComboReg.position;
  before_.code = app.image[FieldId::REGTYPE];
  if (before_.picks_register) before_.image = app.image;
}

void FileWatch::After(const core::Application& app, const LinkWatch& link) {
  renewed_.reset();
  if (link.UploadCompleted()) TakenIn();
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
void FileWatch::TakenIn() {
  begun_ = true;
  misread_.clear();
  refused_.clear();
  saved_.clear();
  other_tabs_.reset();
}

// An Open that has read its file has also used up the guard of the register list.
void FileWatch::WatchOpen(const core::Application& app) {
  refused_.clear();
  if (app.UploadApplying) {
    open_problem_ = IsCancelled(app.StatusNote) ? std::string() : app.StatusNote;
    Add(renewed_, AdviceId::kNextPickSwallowed);
    return;
  }
  const auto outcome = image::OutcomeOfOpening(app.StreamText, app.image_firmware);
  if (outcome != image::OpenOutcome::kLoads && outcome != image::OpenOutcome::kShifts) {
    refused_ = app.CurrentFilePath;
    Add(renewed_, AdviceId::kFileRefused);
    return;
  }
  TakenIn();
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
    other_tabs_.reset();
    auto words = app.image == before_.image ? std::string() : changes::OtherTabsStored(app, before_.image);
    if (!words.empty()) other_tabs_ = TabsChange{code, std::move(words)};
    if (other_tabs_) Add(renewed_, AdviceId::kOtherTabsChanged);
  }
  const bool guarded = before_.upload_applying || !before_.picks_register;
  if (position != before_.position && code == before_.code && guarded) {
    pick_swallowed_ = true;
    Add(renewed_, AdviceId::kPickSwallowed);
  }
  if (pick_swallowed_ && position == codecs::HexToInt(code)) pick_swallowed_ = false;
}

}  // namespace ovl::acts
