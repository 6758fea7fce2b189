#include "search/random_walk/undo_check.h"

#include <set>

#include "script/inspection.h"

namespace ovl::testing {
namespace {

constexpr int kLongest = 200;

// What the line, the clock and the pointer change on the main form.
const std::set<std::string> kNotSettings = {"CmdUpDow",       "cmdConnect", "cmdDisConnect", "lbConnectting",
                                            "lbRemoteAccess", "Picture1",   "Label64",       "ComboHR",
                                            "ComboMin",       "ComboSec",   "ComboMonth",    "ComboYear",
                                            "ComboDay",       "CheckTD",    "lbVersionID"};

bool IsSetting(const core::Application& app, const controls::NamedControl& named) {
  const bool other = std::holds_alternative<controls::MenuItem*>(named.control) ||
                     std::holds_alternative<controls::Timer*>(named.control) ||
                     std::holds_alternative<controls::Tabs*>(named.control) ||
                     std::holds_alternative<controls::ProgressBar*>(named.control);
  if (other) return false;
  if (named.form == &app.frmMicros.form || named.form == &app.FrmSubMenu.form) return true;
  return named.form == &app.frmMain.form && !std::holds_alternative<controls::Form*>(named.control) &&
         kNotSettings.count(named.name.substr(0, named.name.find('('))) == 0;
}

std::vector<std::string> Settings(const core::Application& app) {
  std::vector<std::string> settings;
  for (const auto& named : app.registry.All()) {
    if (!IsSetting(app, named)) continue;
    auto& text = settings.emplace_back(script::Description(named.name, named.control));
    if (const auto checked = script::CheckedOf(named.control)) text += *checked ? " checked" : " unchecked";
    if (const auto entries = script::EntriesOf(named.control)) {
      for (const auto& entry : *entries) text += "|" + entry;
    }
  }
  return settings;
}

std::string Difference(const std::vector<std::string>& were, const std::vector<std::string>& are) {
  std::string words;
  for (std::size_t at = 0; at < were.size(); ++at) {
    if (were[at] != are[at]) words += were[at] + ", now " + are[at] + "\n";
  }
  return words;
}

}  // namespace

std::string UndoCheck::AfterStatement() {
  if (session_.Ended()) {
    history_ = nullptr;
    return {};
  }
  auto& history = session_.History();
  if (&history != history_) {
    BeginRun();
    return {};
  }
  if (++statements_ < length_ && statements_ < kLongest) return {};
  history.Observe();
  const bool forgotten = history.Recorded() - recorded_ > acts::ActHistory::kActs;
  const bool held = history.Recorded() > recorded_ && history.NextUndo() == nullptr;
  if (held && !forgotten) return {};
  auto wrong = forgotten ? std::string() : UndoAndRedo();
  BeginRun();
  return wrong;
}

void UndoCheck::BeginRun() {
  history_ = &session_.History();
  session_.History().Observe();
  settings_ = Settings(session_.App());
  image_ = session_.App().image;
  recorded_ = session_.History().Recorded();
  statements_ = 0;
  length_ = (length_ * 37 + 11) % kLongest + 1;
}

std::string UndoCheck::UndoAndRedo() {
  auto& history = session_.History();
  const auto& app = session_.App();
  const auto settings = Settings(app);
  const auto image = app.image;
  const auto acts = history.Recorded() - recorded_;
  for (std::size_t act = 0; act < acts; ++act) {
    if (!history.Undo()) return "act " + std::to_string(act) + " cannot be undone\n";
  }
  auto wrong = Difference(settings_, Settings(app));
  if (!wrong.empty() || app.image != image_) return "after undo:\n" + wrong + "or the image\n";
  for (std::size_t act = 0; act < acts; ++act) {
    if (!history.Redo()) return "act " + std::to_string(act) + " cannot be redone\n";
  }
  wrong = Difference(settings, Settings(app));
  return wrong.empty() && app.image == image ? "" : "after redo:\n" + wrong + "or the image\n";
}

}  // namespace ovl::testing
