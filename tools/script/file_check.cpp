#include "script/file_check.h"

#include <algorithm>
#include <array>

#include "checks/checks.h"
#include "core/settings.h"
#include "files/files.h"
#include "firmware/firmware_table.h"
#include "host/files.h"
#include "host/settings_store.h"
#include "image/report.h"
#include "script/finding_lines.h"
#include "start/start_up.h"

namespace ovl::script {
namespace {

enum OptionAt : std::size_t { kJson, kFirmware, kFolder };
constexpr std::array kOptions = {
    command_line::Option{"json", "", "check: prints JSON instead of lines"},
    command_line::Option{"firmware", "NAME",
                         "check: the firmware of the files, such as V1400R12, instead of\n"
                         "that of the machine's settings"},
    command_line::Option{"folder", "FOLDER",
                         "check: the program folder, for the default image of the register"},
};

std::string MachineFirmware() {
  const host::SettingsStore store;
  std::string joined;
  for (const auto value : {core::kVersionValue, core::kReleaseValue}) {
    const auto found = store.Read(core::kSettingsKey, value);
    const auto* text = found ? std::get_if<std::string>(&*found) : nullptr;
    if (text != nullptr) joined += *text;
  }
  return joined;
}

// With the form of the firmware and its register list. Throws Stop for an unknown one.
void Prepare(core::Application& app, const FileCheck& check) {
  auto name = check.firmware.empty() ? MachineFirmware() : check.firmware;
  name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
  if (name.empty()) Wrong("the machine has no settings; name the firmware with --firmware");
  const auto firmware = firmware::FindFirmware(name);
  if (!firmware) Wrong(name + ": there is no such firmware");
  app.platform.files = host::DiskFiles();
  app.platform.program_folder = check.folder;
  start::PrepareProgram(app, *firmware);
}

std::string FirmwareOf(std::string_view stream) {
  std::string names;
  for (const auto& fit : image::FittingFirmware(stream)) names += " " + fit.firmware.Joined();
  return names.empty() ? " no firmware" : names;
}

// Throws Failure or Stop for a file that is no configuration of the firmware.
image::ConfigImage ImageIn(const core::Application& app, const std::string& path) {
  const auto stream = files::ReadJoined(app.platform.files, path);
  const auto& firmware = app.image_firmware;
  if (!image::FitsFirmware(stream, firmware))
    Wrong(path + ": no configuration of " + firmware.Joined() + ", it fits" + FirmwareOf(stream));
  return image::DecodeStream(stream, firmware).value();
}

bool HasMoreThanNotes(const CheckedFile& file) {
  const auto count = checks::CountOf(file.findings);
  return count.errors + count.warnings > 0;
}

}  // namespace

std::span<const command_line::Option> CheckOptions() {
  return kOptions;
}

std::optional<FileCheck> FileCheckOf(const command_line::CommandLine& read, std::string& error) {
  const auto& words = read.arguments;
  if (words.empty() || words.front() != "check") {
    if (!read.options.empty())
      error = "--" + std::string(kOptions.at(read.options.front().option).name) + " is for check";
    return std::nullopt;
  }
  FileCheck check;
  for (const auto& [option, value] : read.options) {
    if (option == kJson) check.json = true;
    if (option == kFirmware) check.firmware = value;
    if (option == kFolder) check.folder = value;
  }
  check.paths.assign(words.begin() + 1, words.end());
  if (check.paths.empty()) error = "check: PATH is missing";
  return check;
}

ExitStatus RunFileCheck(const FileCheck& check, std::ostream& output, std::ostream& errors) {
  core::Application app;
  std::vector<CheckedFile> files;
  bool wrong = false;
  const auto attempt = [&](const auto& step) {
    try {
      step();
      return true;
    } catch (const Stop& stop) {
      errors << stop.what() << '\n';
    } catch (const core::Failure& failure) {
      errors << failure.Text() << '\n';
    }
    wrong = true;
    return false;
  };
  if (!attempt([&] { Prepare(app, check); })) return ExitStatus::kWrongStatement;
  for (const auto& path : check.paths) {
    attempt([&] {
      files.push_back({path, app.image_firmware, checks::FindingsOf(app, ImageIn(app, path))});
    });
  }
  if (check.json) PrintJson(output, files);
  for (const auto& file : files) {
    for (const auto& finding : file.findings) {
      if (!check.json) output << file.path << ": " << LineOf(finding) << '\n';
    }
  }
  if (!output.flush()) attempt([] { Wrong("the output cannot be written"); });
  if (wrong) return ExitStatus::kWrongStatement;
  const bool found = std::any_of(files.begin(), files.end(), HasMoreThanNotes);
  return found ? ExitStatus::kExpectationFailed : ExitStatus::kDone;
}

}  // namespace ovl::script
