#include "model.h"

#include "host/files.h"
#include "site.h"
#include "start/start_up.h"

namespace ovl::bench {

void StartModel(core::Application& app, const Site& site, const char& received) {
  auto& platform = app.platform;
  platform.program_folder = site.Folder().toStdString();
  platform.show_message = [](const core::MessageBox&) {};
  platform.ask_file = [](const core::FileDialog&) { return std::optional<core::FileAnswer>(); };
  platform.read_setting = [](std::string_view, std::string_view value) {
    return std::optional<core::SettingValue>(value == "Version" ? kVersion : kRelease);
  };
  platform.write_setting = [](std::string_view, std::string_view, std::string_view) { return true; };
  platform.clock = [] { return core::ClockTime(); };
  platform.SetWindowPos = [](std::string_view) {};
  platform.files = host::DiskFiles();
  platform.serial.open = [](const core::LineSettings&) { return core::Result(); };
  platform.serial.close = [] {};
  platform.serial.write = [](std::string_view) { return core::Result(); };
  platform.serial.read = [&received] { return std::string(1, received); };
  platform.serial.clear_input = [] {};
  platform.serial.clear_output = [] {};
  start::StartProgram(app);
}

void Click(core::Application& app, const char* name) {
  Dispatch(app, core::ClickEvent{app.registry.Find(name)->control});
}

}  // namespace ovl::bench
