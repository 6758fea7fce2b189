// The site sheet: a configuration on two pages, for the folder in the shop.
#pragma once

#include <span>
#include <string>

#include "checks/checks.h"

namespace ovl::sheet {

// The sheet as HTML in UTF-8, for an image of the firmware of `like`. Page 1 has the settings and as many
// findings of the checks as fit, page 2 the exceptions and the alarms.
std::string SiteSheet(const core::Application& like, const image::ConfigImage& image,
                      std::span<const checks::Finding> findings);

}  // namespace ovl::sheet
