// Checks of a configuration: what an installer should look at before the unit is left alone. It is a table of
// rules; each rule finds the settings that it is about. Nothing is changed and nothing is sent.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/application.h"
#include "phrases/phrases.h"

namespace ovl::checks {

enum class Severity {
  kError,    // the unit does not get what the form shows, or cannot work with it
  kWarning,  // a setting has no effect, or another one than it seems to have
  kNote,     // can be meant
};

// "error", "warning" or "note".
std::string_view NameOf(Severity severity);

struct Finding {
  std::string_view id;  // of the rule
  Severity severity = Severity::kNote;
  phrases::Words words;    // in Windows-1252
  int tab = 0;             // of the main form
  phrases::Words place;    // the caption of the tab
  phrases::Words caption;  // "Exception 3, RANGE"
  std::string control;     // of the main form, to edit the setting
  std::string list;        // the list that first has to select the exception or alarm; may be empty
  int slot = 0;            // its number, counted from 1

  bool operator==(const Finding&) const = default;
};

// What a rule is called and how much it matters, in the order of the table.
struct RuleName {
  std::string_view id;
  Severity severity;
  std::string_view words;  // with "%1" for what is different in each finding
};
std::vector<RuleName> RuleNames();

// The findings in an image of the firmware of `like`: errors first, then warnings, then notes. A setting that
// the form of this firmware does not offer has none. Of the platform it only reads the default image of the
// register. Costs as much as a few loads.
std::vector<Finding> FindingsOf(const core::Application& like, const image::ConfigImage& image);

struct Count {
  std::size_t errors = 0, warnings = 0, notes = 0;
};
Count CountOf(const std::vector<Finding>& findings);

}  // namespace ovl::checks
