// The site sheet: a configuration on two pages, for the folder in the shop.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "checks/checks.h"

namespace ovl::sheet {

// Page 1 says if there are changes that the unit may not have.
enum class Changes { kNone, kNotDownloaded };

// Page 1 has the settings and the findings of the checks, page 2 the exceptions and the alarms. `like` and
// `image`, which is of its firmware, are read once, so that the sheet stays as it was made.
class SiteSheet {
 public:
  SiteSheet(const core::Application& like, const image::ConfigImage& image,
            std::span<const checks::Finding> findings, Changes changes = Changes::kNone);

  std::size_t Findings() const { return findings_.size(); }
  // As HTML in UTF-8, with the first `findings` of them and a line that counts the others: how many page 1
  // has room for depends on the paper.
  std::string Html(std::size_t findings = std::string::npos) const;

 private:
  std::vector<std::string> findings_;  // rows of a table
  std::string settings_, slots_;
};

}  // namespace ovl::sheet
