// The site sheet: a configuration on two pages, for the folder in the shop.
#pragma once

#include <span>
#include <string>

#include "core/application.h"

namespace ovl::sheet {

// Something that a check of the configuration found. The words are in Windows-1252.
struct Remark {
  std::string severity, words;
};

// The sheet as HTML in UTF-8, for an image of the firmware of `like`. Page 1 has the findings, as many as
// fit, and the settings, page 2 the exceptions and the alarms.
std::string SiteSheet(const core::Application& like, const image::ConfigImage& image,
                      std::span<const Remark> findings);

}  // namespace ovl::sheet
