// Where a field, or a part of it, is on the form.
#pragma once

#include <string>
#include <vector>

#include "changes/option_controls.h"
#include "core/editor.h"
#include "image/report.h"
#include "image/slot_records.h"

namespace ovl::changes {

// A control and the part of the field that it shows.
struct Site {
  core::Place place;
  std::string_view control;
  int bits = core::kWholeByte;                   // of the first byte of the part
  image::DigitSpan digits = {};                  // of the field
  int slot = 0;                                  // the exception or alarm, counted from 1; 0: none
  const registers::OptionRow* option = nullptr;  // for an option of a register
};

// The controls that one line of the lists of editors names. They show the same part of the field together.
using SiteGroup = std::vector<Site>;
std::vector<SiteGroup> SitesOf(const image::FieldDifference& difference,
                               const firmware::FirmwareId& firmware);

// The part of the value that the site shows.
std::string PartOf(const Site& site, std::string_view value);

// Whether the part differs in a bit that the site shows.
bool Differs(const Site& site, const image::FieldDifference& difference);

}  // namespace ovl::changes
