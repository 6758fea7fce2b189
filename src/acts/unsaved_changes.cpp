#include "acts/unsaved_changes.h"

#include <algorithm>
#include <string>

#include "acts/inspection.h"
#include "files/files.h"
#include "firmware/firmware_table.h"

namespace ovl::acts {
namespace {

bool PicksFirmware(const core::Application& app, const controls::ControlRef& clicked) {
  const auto& items = app.frmMain.version_items;
  const auto is_clicked = [&](const controls::MenuItem& item) {
    return &item == &controls::StateOf(clicked);
  };
  return std::any_of(items.begin(), items.end(), is_clicked);
}

}  // namespace

bool HasUnsavedChanges(const core::Application& app) {
  return app.image != app.known_image;
}

bool DropsUnsavedChanges(const core::Application& app, const core::Event& event, bool settings_kept) {
  const auto& main = app.frmMain;
  if (const auto* close = std::get_if<core::CloseEvent>(&event)) return close->form == &main.form;
  const auto* click = std::get_if<core::ClickEvent>(&event);
  return core::Clicks(event, main.menuExit) ||
         (click != nullptr && settings_kept && PicksFirmware(app, click->control));
}

bool OpensUnder(std::string_view file_bytes, std::string_view firmware_name) {
  const auto stream = files::JoinLines(file_bytes);
  return Inspect(stream, firmware::ServedFirmware(firmware_name)).outcome == image::OpenOutcome::kLoads;
}

}  // namespace ovl::acts
