#include "start/version_menu.h"

#include <algorithm>

#include "core/actions.h"
#include "core/settings.h"
#include "firmware/traits.h"
#include "firmware/variants.h"

namespace ovl::start {
namespace {

std::string Joined(const firmware::FirmwareEntry& entry) {
  return std::string(entry.version).append(entry.release);
}

controls::VersionFamily& FamilyOf(controls::MainForm& form, const firmware::FirmwareEntry& entry) {
  auto& families = form.version_families;
  if (families.empty() || families.back().parent.caption != entry.version) {
    families.emplace_back().parent.caption = entry.version;
  }
  return families.back();
}

}  // namespace

void BuildVersionMenu(core::Application& app) {
  auto& form = app.frmMain;
  for (const auto& entry : firmware::FirmwareTable()) {
    if (!entry.in_menu) continue;
    FamilyOf(form, entry).items.push_back(form.version_items.size());
    auto& item = form.version_items.emplace_back();
    item.caption = entry.release;
    item.index = static_cast<int>(form.version_items.size()) - 1;
    item.handler = VersionItem_Click;
  }
  for (auto& item : form.version_items) {
    app.registry.Add(form.form,
                     Joined(firmware::FirmwareTable()[static_cast<std::size_t>(item.index)]) + "mnu", item);
  }
  for (auto& family : form.version_families) {
    app.registry.Add(form.form, family.parent.caption + "mnu", family.parent);
  }
}

void MarkFirmwareMenu(core::Application& app, bool mark) {
  const auto table = firmware::FirmwareTable();
  const auto found = std::find_if(table.begin(), table.end(), [&](const firmware::FirmwareEntry& entry) {
    return entry.Id() == app.firmware;
  });
  if (found == table.end()) return;
  app.FirmwareMark[Joined(*found)] = mark;
  if (!found->in_menu) return;
  app.frmMain.version_items[static_cast<std::size_t>(found - table.begin())].checked = true;
}

void ClearFirmwareMarks(core::Application& app) {
  for (const auto& entry : firmware::FirmwareTable()) app.FirmwareMark[Joined(entry)] = false;
}

void StoreFirmware(core::Application& app) {
  WriteSetting(app, core::SettingRoot::kLocalMachine, core::kSettingsKey, core::kVersionValue,
               app.firmware.version);
  WriteSetting(app, core::SettingRoot::kLocalMachine, core::kSettingsKey, core::kReleaseValue,
               app.firmware.release);
}

void SelectFirmware(core::Application& app, const firmware::FirmwareEntry& entry) {
  app.FirmwareMark[Joined(entry)] = true;
  app.firmware = entry.Id();
  StoreFirmware(app);
  MsgBox(app, core::Box::kFirmwareChosen, Joined(entry));
  EndProgram(app);
}

void VersionItem_Click(core::Application& app, int item) {
  const auto& entry = firmware::FirmwareTable()[static_cast<std::size_t>(item)];
  if (app.FirmwareMark[Joined(entry)]) return;
  ClearFirmwareMarks(app);
  SelectFirmware(app, entry);
}

void ApplyCompactFirmware(core::Application& app) {
  if (!firmware::IsCompact(app.firmware)) return;
  app.firmware = firmware::ServedAs(app.firmware);
  app.compact_form = true;
  firmware::ApplyCompactForm(app.frmMain);
}

}  // namespace ovl::start
