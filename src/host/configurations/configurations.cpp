#include "host/configurations/configurations.h"

#include "files/files.h"
#include "firmware/firmware_table.h"
#include "host/toml/toml_reader.h"
#include "image/report.h"
#include "start/start_up.h"
#include "text_form/encoding.h"

namespace ovl::host {
namespace {

std::shared_ptr<core::Application> Serving(const firmware::FirmwareId& firmware) {
  auto app = std::make_shared<core::Application>();
  start::ServeFirmware(*app, firmware);
  return app;
}

firmware::FirmwareId KnownFirmware(const std::string& name) {
  if (const auto firmware = firmware::FindFirmware(name)) return *firmware;
  throw NoConfiguration(name + ": there is no such firmware");
}

void ThrowProblems(const std::vector<text_form::Problem>& problems, const std::string& path) {
  std::string words;
  for (const auto& problem : problems) words += (words.empty() ? "" : "\n") + TextOf(problem, path);
  if (!words.empty()) throw NoConfiguration(words);
}

std::string NamesOf(const std::vector<image::FirmwareFit>& fits) {
  std::string names;
  for (const auto& fit : fits) names += (names.empty() ? "" : ", ") + fit.firmware.Joined();
  return names.empty() ? "no firmware" : names;
}

// Backups have their firmware in front of their name.
bool IsNamedAfter(std::string_view path, const firmware::FirmwareId& firmware) {
  const auto folder = path.find_last_of("/\\");
  const auto name = folder == std::string_view::npos ? path : path.substr(folder + 1);
  return name.starts_with(firmware.Joined() + " ");
}

}  // namespace

Viewer::Viewer(const firmware::FirmwareId& firmware)
    : app(Serving(firmware)),
      whole(app->image_firmware == firmware ? app : Serving(app->image_firmware)),
      catalogue(*whole) {}

text_form::Imported ImportText(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                               const text_form::Document& document, text_form::Strictness strictness) {
  std::optional<Viewer> other;
  const auto catalogue_of = [&](const firmware::FirmwareId& firmware) -> text_form::Catalogue& {
    return other.emplace(firmware).catalogue;
  };
  return text_form::Import(catalogue, catalogue_of, base, document, strictness);
}

image::ConfigImage ReadTextForm(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                                const std::string& path, std::string_view bytes,
                                text_form::Strictness strictness, std::string& left_out) {
  const auto imported = ImportText(catalogue, base, ReadToml(bytes), strictness);
  for (const auto& problem : imported.left_out) left_out += TextOf(problem, path) + "\n";
  ThrowProblems(imported.problems, path);
  return imported.image;
}

firmware::FirmwareId FirmwareOf(const std::string& path, std::string_view bytes, const std::string& named) {
  if (!named.empty()) return KnownFirmware(named);
  if (text_form::IsTextForm(bytes)) {
    const auto document = ReadToml(bytes);
    ThrowProblems(text_form::HeaderProblems(document), path);
    const auto of_form = text_form::FirmwareNamed(document);
    if (!of_form.empty()) return KnownFirmware(of_form);
    throw NoConfiguration(path + ": the text form names no firmware. Name it with --firmware");
  }
  const auto fits = image::FittingFirmware(files::JoinLines(bytes));
  if (fits.empty())
    throw NoConfiguration(path + ": this is not a configuration, or it is damaged. It fits no firmware");
  if (fits.size() == 1) return fits.front().firmware;
  for (const auto& fit : fits) {
    if (IsNamedAfter(path, fit.firmware)) return fit.firmware;
  }
  throw NoConfiguration(path + ": it fits " + NamesOf(fits) + ". Name one with --firmware");
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
  if (!decoded || !image::FitsFirmware(stream, firmware))
    throw NoConfiguration(path + ": not a configuration of " + firmware.Joined() + ". It fits " +
                          NamesOf(image::FittingFirmware(stream)));
  return *decoded;
}

image::ConfigImage ReadConfiguration(Viewer& viewer, const std::string& path, std::string_view bytes) {
  if (text_form::IsTextForm(bytes)) {
    const auto document = ReadToml(bytes);
    ThrowProblems(text_form::HeaderProblems(document), path);
    if (!text_form::IsComplete(document))
      throw NoConfiguration(
          path +
          ": the text form names only a part of a configuration. With \"import --partial\", "
          "ovl-script stores this part in a file");
  }
  return ReadConfiguration(viewer, text_form::FilledImage(viewer.catalogue.Firmware(), '0'), path, bytes);
}

}  // namespace ovl::host
