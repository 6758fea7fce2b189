#include "registers/register_catalogue.h"

#include "firmware/register_lists.h"

namespace ovl::registers {

void ResetRegisterIndexes(core::Application& app) {
  for (const auto key : firmware::RegisterKeys())
    app.RegisterIndex.insert_or_assign(std::string(key), std::int16_t{-1});
}

void BuildRegisterList(core::Application& app) {
  for (const auto& entry : firmware::BuildRegisterEntries(app.firmware.version, app.firmware.release)) {
    app.frmMain.ComboReg.items.emplace_back(entry.name);
    if (entry.key.empty()) continue;
    app.RegisterIndex.insert_or_assign(std::string(entry.key), static_cast<std::int16_t>(entry.key_index));
  }
}

int RegisterIndexOf(const core::Application& app, std::string_view key) {
  const auto found = app.RegisterIndex.find(key);
  return found == app.RegisterIndex.end() ? -1 : found->second;
}

}  // namespace ovl::registers
