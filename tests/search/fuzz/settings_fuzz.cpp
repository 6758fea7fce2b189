// The first byte chooses: the register list of any version and release, a whole start with them, or any bytes
// as the settings file.
#include <QFile>

#include "bytes.h"
#include "core/configuration.h"
#include "core/settings.h"
#include "firmware/register_lists.h"
#include "host/files.h"
#include "host/settings_store.h"
#include "image/record_stream.h"
#include "start/start_up.h"
#include "start/version_menu.h"
#include "support/harness.h"

namespace {

using ovl::fuzz::OneIn;
using ovl::fuzz::Require;

constexpr unsigned kFile = 0xFF;
constexpr unsigned kStart = 0xFE;
constexpr unsigned kRarely = 64;

std::string Read(const ovl::core::Application& app, std::string_view value) {
  return ovl::core::ReadSetting(app, ovl::core::SettingRoot::kLocalMachine, ovl::core::kSettingsKey, value);
}

void Serve(ovl::core::Platform& platform, const ovl::firmware::FirmwareId& values) {
  platform.read_setting = [&values](auto, auto value) -> std::optional<ovl::core::SettingValue> {
    return value == ovl::core::kVersionValue ? values.version : values.release;
  };
}

void CheckCatalogue(ovl::core::Application& app, const ovl::firmware::FirmwareId& values) {
  Serve(app.platform, values);
  app.firmware = {Read(app, ovl::core::kVersionValue), Read(app, ovl::core::kReleaseValue)};
  Require(app.firmware.version.size() < 255 && app.firmware.release.size() < 255, "a long value is missing");
  Require(app.firmware.version.empty() || app.firmware.version == values.version, "a value is not changed");
  ovl::core::PrepareCapabilities(app);
  const auto region = ovl::image::ReadRegion(app.firmware);
  Require(region.first < region.last, "a region has records");
  for (const auto& entry : ovl::firmware::BuildRegisterEntries(app.firmware.version, app.firmware.release)) {
    Require(!entry.name.empty(), "a register has a name");
  }
}

void CheckStart(const std::string& folder, const ovl::firmware::FirmwareId& values) {
  ovl::core::Application app;
  int boxes = 0;
  Serve(app.platform, values);
  app.platform.program_folder = folder;
  app.platform.show_message = [&boxes](const ovl::core::MessageBox&) { ++boxes; };
  app.platform.files = ovl::host::DiskFiles(ovl::host::Flush::kNo);
  app.platform.clock = [] { return ovl::core::ClockTime(); };
  const bool ended = ovl::start::StartProgram(app) == ovl::core::Outcome::kEnded;
  Require(ended == app.ended && ended == !app.frmMain.form.visible, "the program starts or ends");
  Require(!ended || boxes > 0, "a program that does not start says why");
}

void CheckFile(const ovl::testing::TemporaryFolder& folder, std::string_view bytes) {
  std::filesystem::create_directories(folder.Path() / "ORB");
  ovl::testing::WriteFile(folder.File("ORB/OVL Software.conf"), bytes);
  const ovl::host::SettingsStore store(QFile::decodeName(folder.Path().c_str()));
  store.Read(ovl::core::kSettingsKey, ovl::core::kVersionValue);
  if (!store.Write(ovl::core::kSettingsKey, ovl::core::kVersionValue, "V1400").Ok()) return;
  Require(store.Read(ovl::core::kSettingsKey, ovl::core::kVersionValue) == ovl::core::SettingValue("V1400"),
          "what was written is read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ovl::testing::Harness site({"V1400", "R12"});
  static ovl::core::Application app;
  ovl::fuzz::Bytes input(data, size);
  const unsigned first = input.Next();
  const unsigned choice = OneIn(kRarely, input.Rest()) ? first : 0;
  if (choice == kFile) {
    CheckFile(site.folder, input.Rest());
    return 0;
  }
  const std::string version(input.NextText());
  const ovl::firmware::FirmwareId values{version, std::string(input.Rest())};
  choice == kStart ? CheckStart(site.folder.Path().string(), values) : CheckCatalogue(app, values);
  return 0;
}
