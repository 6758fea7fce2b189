// Configurations in files: record streams and text forms.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/application.h"
#include "text_form/catalogue.h"
#include "text_form/import.h"

namespace ovl::script {

// What shows images of one firmware.
struct Viewer {
  explicit Viewer(const firmware::FirmwareId& firmware);

  std::unique_ptr<core::Application> app;
  text_form::Catalogue catalogue;
};

// The image with what the text form says. Throws Stop with every problem, one a line, behind the path; what
// is left out goes to `left_out` in the same form.
image::ConfigImage ReadTextForm(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                                const std::string& path, std::string_view bytes,
                                text_form::Strictness strictness, std::string& left_out);

// The firmware of a file: the one that is named, or that of the text form, or the only one that fits. Throws
// Stop if there is none, or more than one.
firmware::FirmwareId FirmwareOf(const std::string& path, std::string_view bytes, const std::string& named);

// The image of a file. A text form changes the base. Throws Stop.
image::ConfigImage ReadConfiguration(Viewer& viewer, const image::ConfigImage& base, const std::string& path,
                                     std::string_view bytes);

}  // namespace ovl::script
