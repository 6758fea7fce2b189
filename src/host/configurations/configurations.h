// Configurations in files: record streams and text forms.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/application.h"
#include "text_form/catalogue.h"
#include "text_form/import/import.h"

namespace ovl::host {

// A file that does not give a configuration. what() has every problem behind the path, one a line.
class NoConfiguration : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What shows images of one firmware.
struct Viewer {
  explicit Viewer(const firmware::FirmwareId& firmware);

  std::shared_ptr<core::Application> app;
  // With every setting of the image: the form of compact firmware shows only some. Otherwise the same one.
  std::shared_ptr<core::Application> whole;
  text_form::Catalogue catalogue;  // of `whole`
};

// Imports a text form, also one of another firmware.
text_form::Imported ImportText(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                               const text_form::Document& document, text_form::Strictness strictness);

// The image with what the text form says. What is left out goes to `left_out`, one a line behind the path.
// Throws NoConfiguration.
image::ConfigImage ReadTextForm(text_form::Catalogue& catalogue, const image::ConfigImage& base,
                                const std::string& path, std::string_view bytes,
                                text_form::Strictness strictness, std::string& left_out);

// The firmware of a file: the one that is named, or that of the text form, or the only one that fits, or the
// one in front of the name of the file. Throws NoConfiguration if this gives none.
firmware::FirmwareId FirmwareOf(const std::string& path, std::string_view bytes, const std::string& named);

// The image of a file. A text form changes the base. Throws NoConfiguration.
image::ConfigImage ReadConfiguration(Viewer& viewer, const image::ConfigImage& base, const std::string& path,
                                     std::string_view bytes);

// The same without a base: a text form must be complete.
image::ConfigImage ReadConfiguration(Viewer& viewer, const std::string& path, std::string_view bytes);

}  // namespace ovl::host
