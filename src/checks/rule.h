// A row of the table of checks.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "changes/sites.h"
#include "checks/checks.h"
#include "checks/subject.h"

namespace ovl::checks {

// One place where a rule applies. The texts replace "%1", "%2" and so on in the words of the rule.
struct Hit {
  int slot = 0;  // the exception or alarm, counted from 1; 0: none
  std::vector<phrases::Words> texts = {};
  // Of a rule that finds its controls itself, instead of that of the rule.
  std::optional<changes::Site> site = std::nullopt;
};
using Hits = std::vector<Hit>;

struct Rule {
  std::string_view id;
  Severity severity;
  std::string_view words;
  core::Place place;
  std::string_view control;  // that shows the setting, as in the lists of editors
  Hits (*hits)(Subject& subject);
};

// The parts of the table.
std::span<const Rule> ExceptionRules();
std::span<const Rule> AlarmRules();
std::span<const Rule> PanelRules();
std::span<const Rule> LineRules();
std::span<const Rule> StoredRules();

}  // namespace ovl::checks
