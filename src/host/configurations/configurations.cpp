#include "host/configurations/configurations.h"

#include "files/files.h"
#include "firmware/firmware_table.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "start/start_up.h"
#include "text_form/encoding.h"

namespace ovl::host {
namespace {

std::unique_ptr<core::Application> Serving(const firmware::FirmwareId& firmware) {
  auto app = std::make_unique<core::Application>();
  start::ServeFirmware(*app, firmware);
  return app;
}

firmware::FirmwareId KnownFirmware(const std::string& name) {
  if (const auto firmware = firmware::FindFirmware(name)) return *firmware;
  throw NoConfiguration(name + ": there is no such firmware");
}

}  // namespace

Viewer::Viewer(const firmware::FirmwareId& firmware) : app(Serving(firmware)), catalogue(*app) {}

image::ConfigImage ReadTextForm(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                                const std::string& path, std::string_view bytes,
                                text_form::Strictness strictness, std::string& left_out) {
  const auto imported = text_form::Import(catalogue, base, ReadToml(bytes), strictness);
  for (const auto& problem : imported.left_out) left_out += TextOf(problem, path) + "\n";
  std::string problems;
  for (const auto& problem : imported.problems)
    problems += (problems.empty() ? "" : "\n") + TextOf(problem, path);
  if (!problems.empty()) throw NoConfiguration(problems);
  return imported.image;
}

firmware::FirmwareId FirmwareOf(const std::string& path, std::string_view bytes, const std::string& named) {
  if (!named.empty()) return KnownFirmware(named);
  if (text_form::IsTextForm(bytes)) {
    const auto of_form = text_form::FirmwareNamed(ReadToml(bytes));
    if (!of_form.empty()) return KnownFirmware(of_form);
    throw NoConfiguration(path + ": the text form names no firmware. Name it with --firmware");
  }
  const auto fits = image::FittingFirmware(files::JoinLines(bytes));
  if (fits.empty()) throw NoConfiguration(path + ": no configuration, or a damaged one: it fits no firmware");
  if (fits.size() == 1) return fits.front().firmware;
  std::string names;
  for (const auto& fit : fits) names += (names.empty() ? "" : ", ") + fit.firmware.Joined();
  throw NoConfiguration(path + ": it fits " + names + ". Name one with --firmware");
}

image::ConfigImage ReadConfiguration(Viewer& viewer, const image::ConfigImage& base, const std::string& path,
                                     std::string_view bytes) {
  if (text_form::IsTextForm(bytes)) {
    std::string left_out;
    return ReadTextForm(viewer.catalogue, base, path, bytes, text_form::Strictness::kWhole, left_out);
  }
  const auto stream = files::JoinLines(bytes);
  const auto& firmware = viewer.catalogue.Firmware();
  const auto decoded = image::DecodeStream(stream, firmware);
  if (!decoded) throw NoConfiguration(path + ": no configuration of " + firmware.Joined());
  return *decoded;
}

image::ConfigImage ReadConfiguration(Viewer& viewer, const std::string& path, std::string_view bytes) {
  return ReadConfiguration(viewer, text_form::FilledImage(viewer.catalogue.Firmware(), '0'), path, bytes);
}

}  // namespace ovl::host
