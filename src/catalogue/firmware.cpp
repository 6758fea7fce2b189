#include "catalogue/firmware.h"

#include <algorithm>
#include <array>

#include "catalogue/variants.h"
#include "core/actions.h"
#include "core/settings.h"

namespace ovl {
namespace {

constexpr auto kFirmware = std::to_array<FirmwareEntry>({
    {"V1400", "R1", true},  {"V1400", "R2", true},  {"V1400", "R4", true},  {"V1400", "R6", true},
    {"V1400", "R7", true},  {"V1400", "R11", true}, {"V1400", "R12", true}, {"V1300", "R14", true},
    {"V1300", "R15", true}, {"V1300", "R16", true}, {"V1300", "R17", true}, {"V1300", "R18", true},
    {"V1300", "R19", true}, {"V1300", "R20", true}, {"V1300", "R21", true}, {"V1300", "R23", true},
    {"V1300", "R26", true}, {"V1300", "R27", true}, {"V1324", "R17", true}, {"V1324", "R18", true},
    {"V1324", "R19", true}, {"V1324", "R20", true}, {"V1324", "R21", true}, {"V1324", "R23", true},
    {"V1324", "R24", true}, {"V1324", "R25", true}, {"V1324", "R26", true}, {"V1310", "R1", true},
    {"V1334", "R1", true},  {"V1410", "R1", false},
});

std::string Joined(const FirmwareEntry& entry) {
  return std::string(entry.version).append(entry.release);
}

VersionFamily& FamilyOf(MainForm& form, const FirmwareEntry& entry) {
  auto& families = form.version_families;
  if (families.empty() || families.back().parent.caption != entry.version) {
    families.emplace_back().parent.caption = entry.version;
  }
  return families.back();
}

}  // namespace

std::span<const FirmwareEntry> FirmwareTable() {
  return kFirmware;
}

void BuildVersionMenu(Application& app) {
  auto& form = app.frmMain;
  for (const auto& entry : kFirmware) {
    if (!entry.in_menu) continue;
    FamilyOf(form, entry).items.push_back(form.version_items.size());
    auto& item = form.version_items.emplace_back();
    item.caption = entry.release;
    item.index = static_cast<int>(form.version_items.size()) - 1;
    item.handler = VersionItem_Click;
  }
  for (auto& item : form.version_items) {
    app.registry.Add(form.form, Joined(kFirmware[static_cast<std::size_t>(item.index)]) + "mnu", item);
  }
  for (auto& family : form.version_families) {
    app.registry.Add(form.form, family.parent.caption + "mnu", family.parent);
  }
}

void MarkFirmwareMenu(Application& app, bool mark) {
  const auto found = std::find_if(kFirmware.begin(), kFirmware.end(), [&](const FirmwareEntry& entry) {
    return entry.version == app.firmware.version && entry.release == app.firmware.release;
  });
  if (found == kFirmware.end()) return;
  app.FirmwareMark[Joined(*found)] = mark;
  if (!found->in_menu) return;
  app.frmMain.version_items[static_cast<std::size_t>(found - kFirmware.begin())].checked = true;
}

void ClearFirmwareMarks(Application& app) {
  for (const auto& entry : kFirmware) app.FirmwareMark[Joined(entry)] = false;
}

void StoreFirmware(Application& app) {
  WriteSetting(app, SettingRoot::kLocalMachine, kSettingsKey, kVersionValue, app.firmware.version);
  WriteSetting(app, SettingRoot::kLocalMachine, kSettingsKey, kReleaseValue, app.firmware.release);
}

void SelectFirmware(Application& app, const FirmwareEntry& entry) {
  app.FirmwareMark[Joined(entry)] = true;
  app.firmware = {std::string(entry.version), std::string(entry.release)};
  StoreFirmware(app);
  MsgBox(app, Box::kFirmwareChosen, Joined(entry));
  EndProgram(app);
}

void VersionItem_Click(Application& app, int item) {
  const auto& entry = kFirmware.at(static_cast<std::size_t>(item));
  if (app.FirmwareMark[Joined(entry)]) return;
  ClearFirmwareMarks(app);
  SelectFirmware(app, entry);
}

void ApplyCompactFirmware(Application& app) {
  if (app.firmware.version != "V1410") return;
  app.firmware.version = "V1400";
  if (app.firmware.release == "R1") app.firmware.release = "R7";
  ApplyCompactForm(app);
}

}  // namespace ovl
