#include "model.h"

#include "site.h"
#include "start/start_up.h"

namespace ovl::bench {

void StartModel(Application& app, const Site& site, const char& received) {
  auto& platform = app.platform;
  platform.program_folder = site.Folder().toStdString();
  platform.show_message = [](const MessageBox&) {};
  platform.ask_file = [](const FileDialog&) { return std::optional<FileAnswer>(); };
  platform.read_setting = [](std::string_view, std::string_view value) {
    return std::optional<SettingValue>(value == "Version" ? kVersion : kRelease);
  };
  platform.write_setting = [](std::string_view, std::string_view, std::string_view) { return true; };
  platform.clock = [] { return ClockTime(); };
  platform.SetWindowPos = [](std::string_view) {};
  platform.serial.open = [](const LineSettings&) { return SerialLine::Error(); };
  platform.serial.close = [] {};
  platform.serial.write = [](std::string_view) { return SerialLine::Error(); };
  platform.serial.read = [&received] { return std::string(1, received); };
  platform.serial.clear_input = [] {};
  platform.serial.clear_output = [] {};
  StartProgram(app);
}

void Click(Application& app, const char* name) {
  Dispatch(app, ClickEvent{app.registry.Find(name)->control});
}

}  // namespace ovl::bench
