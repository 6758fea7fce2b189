#include "checks/checks.h"

#include <algorithm>
#include <array>

#include "checks/rule.h"

namespace ovl::checks {
namespace {

using Part = std::span<const Rule> (*)();
constexpr std::array<Part, 5> kParts = {StoredRules, LineRules, ExceptionRules, AlarmRules, PanelRules};

changes::Site SiteOf(const Rule& rule, const Hit& hit) {
  if (hit.site) return *hit.site;
  changes::Site site{rule.place, rule.control};
  site.slot = hit.slot;
  return site;
}

void AddFindings(const Rule& rule, Subject& subject, std::vector<Finding>& findings) {
  for (const auto& hit : rule.hits(subject)) {
    const auto site = SiteOf(rule, hit);
    auto control = changes::ReachedBy(subject.Program(), site);
    if (!subject.Offers(control)) continue;
    const int tab = changes::TabOf(site.place);
    findings.push_back(
        {rule.id, rule.severity, phrases::Sentence(phrases::Pattern("Check", rule.words), hit.texts), tab,
         changes::TabCaption(subject.Shown(), tab), changes::SlotCaption(subject.Shown(), site),
         std::move(control), std::string(changes::SlotListOf(site)), site.slot});
  }
}

}  // namespace

std::string_view NameOf(Severity severity) {
  constexpr std::array<std::string_view, 3> kNames = {"error", "warning", "note"};
  return kNames.at(static_cast<std::size_t>(severity));
}

std::vector<RuleName> RuleNames() {
  std::vector<RuleName> names;
  for (const auto& part : kParts) {
    for (const auto& rule : part()) names.push_back({rule.id, rule.severity, rule.words});
  }
  return names;
}

std::vector<Finding> FindingsOf(const core::Application& like, const image::ConfigImage& image) {
  if (like.frmMain.ComboReg.items.empty()) return {};  // a firmware that the program does not know
  Subject subject(like, image);
  std::vector<Finding> findings;
  for (const auto& part : kParts) {
    for (const auto& rule : part()) AddFindings(rule, subject, findings);
  }
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.severity < b.severity; });
  return findings;
}

Count CountOf(const std::vector<Finding>& findings) {
  Count count;
  for (const auto& finding : findings) {
    auto& kind = finding.severity == Severity::kError     ? count.errors
                 : finding.severity == Severity::kWarning ? count.warnings
                                                          : count.notes;
    ++kind;
  }
  return count;
}

}  // namespace ovl::checks
