#include "acts/act_history.h"

#include <utility>

#include "acts/act_names.h"

namespace ovl::acts {
namespace {

using phrases::OfForm;
using phrases::Pattern;
using phrases::Sentence;
using phrases::Words;

// Keeps the shared value if it is equal to the present one.
template <class Value>
bool Update(std::shared_ptr<const Value>& kept, const Value& now) {
  if (kept != nullptr && *kept == now) return false;
  kept = std::make_shared<const Value>(now);
  return true;
}

}  // namespace

ActHistory::ActHistory(core::Application& app)
    : app_(app), controls_(SettingsControls(app)), uploads_taken_(app.uploads_taken) {
  for (const auto& control : controls_) memories_.push_back(Remember(control));
  TakeSnapshot();
  now_.origin = app.frmMain.ComboReg.Text();
}

core::Outcome ActHistory::Act(const core::Event& event) {
  if (app_.handling || !core::IsOfInstaller(event)) return core::Dispatch(app_, event);
  Observe();
  auto name = NameOf(app_, event);
  const auto files_taken = app_.files_taken;
  const auto outcome = core::Dispatch(app_, event);
  if (outcome != core::Outcome::kDone) return outcome;
  const bool opened = app_.files_taken != files_taken;
  auto origin = opened ? Words(FileNameOf(app_.CurrentFilePath)) : now_.origin;
  if (opened) name = Sentence(Pattern("List", "%1 %2"), {name, origin});
  Add(std::move(name), std::move(origin));
  return outcome;
}

core::Outcome ActHistory::Run(phrases::Words name, const std::function<void()>& act) {
  if (app_.handling) return core::Outcome::kBusy;
  Observe();
  const auto outcome = core::DispatchAct(app_, act);
  if (outcome == core::Outcome::kDone) Add(std::move(name), now_.origin);
  return outcome;
}

void ActHistory::Observe() {
  if (app_.handling || app_.ended) return;
  if (std::exchange(uploads_taken_, app_.uploads_taken) != app_.uploads_taken)
    return Add(OfForm("Upload"), Sentence(Pattern("Act", "Uploaded %1"), {TimeOfDay(app_)}));
  // A wrong parity selects the first register, which loads its default image.
  const auto code = image::FieldId::REGTYPE;
  if (app_.image[code] != (*now_.image)[code]) return Add(OfForm(kRegisterAct), now_.origin);
  if (app_.known_image != *now_.known_image) ForgetKnownImages();
  auto changed = TakeControls();
  const bool moved = TakeSnapshot();
  if (changed.empty() && !moved) return;
  // What else the line changes belongs to the act before it.
  ForgetRedo();
  if (entries_.empty()) return;
  auto& last = entries_.back();
  last.after = now_;
  for (auto& change : changed) last.controls.push_back(std::move(change));
}

std::vector<ActHistory::ControlChange> ActHistory::TakeControls() {
  std::vector<ControlChange> changed;
  for (std::size_t at = 0; at < controls_.size(); ++at) {
    if (IsAsRemembered(controls_[at], memories_[at])) continue;
    auto now = Remember(controls_[at]);
    changed.push_back({at, std::exchange(memories_[at], now), now});
  }
  return changed;
}

bool ActHistory::TakeSnapshot() {
  const bool image = Update(now_.image, app_.image);
  const bool known_image = Update(now_.known_image, app_.known_image);
  AdoptFilePath();
  const bool variables = Update(now_.variables, VariablesNow());
  return image || known_image || variables;
}

// Save changes this path and nothing else. There is nothing to undo, and what was undone can still be redone.
void ActHistory::AdoptFilePath() {
  if (now_.variables == nullptr || now_.variables->CurrentFilePath == app_.CurrentFilePath) return;
  auto variables = *now_.variables;
  variables.CurrentFilePath = app_.CurrentFilePath;
  now_.variables = std::make_shared<const Variables>(std::move(variables));
}

ActHistory::Variables ActHistory::VariablesNow() const {
  return {app_.ImageTouched,    app_.PanelsReady,  app_.UploadApplying, app_.ComboTouched,
          app_.CurrentFilePath, app_.SavedIndexes, app_.unfit_option};
}

void ActHistory::Add(Words name, Words origin) {
  auto before = now_;
  auto changed = TakeControls();
  const bool moved = TakeSnapshot();
  const bool other_origin = origin != now_.origin;
  now_.origin = std::move(origin);
  if (changed.empty() && !moved && !other_origin) return;
  ForgetRedo();
  ++recorded_;
  entries_.push_back({std::move(name), std::move(before), now_, std::move(changed)});
  if (entries_.size() > kActs) entries_.pop_front();
  done_ = entries_.size();
}

void ActHistory::ForgetRedo() {
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(done_), entries_.end());
}

// After a complete download the unit has another image than before. No undo can change that, so the image
// that the Changes window compares with is not put back any more.
void ActHistory::ForgetKnownImages() {
  for (auto& entry : entries_) entry.before.known_image = entry.after.known_image = nullptr;
}

bool ActHistory::IsHeldByTransfer() const {
  return app_.frmMain.Timer_Operating.enabled || app_.DownloadRequested || app_.DownloadActive;
}

bool ActHistory::IsHeld() const {
  return app_.ended || app_.handling || IsHeldByTransfer() || !app_.frmMain.form.enabled;
}

const Words* ActHistory::NextUndo() const {
  return IsHeld() || done_ == 0 ? nullptr : &entries_[done_ - 1].name;
}

const Words* ActHistory::NextRedo() const {
  return IsHeld() || done_ == entries_.size() ? nullptr : &entries_[done_].name;
}

bool ActHistory::Undo() {
  Observe();
  if (NextUndo() == nullptr) return false;
  const auto& entry = entries_[--done_];
  core::DispatchAct(app_, [&] {
    for (auto change = entry.controls.rbegin(); change != entry.controls.rend(); ++change)
      PutBackControl(change->control, change->before);
    PutBackSnapshot(entry.after, entry.before);
  });
  return true;
}

bool ActHistory::Redo() {
  Observe();
  if (NextRedo() == nullptr) return false;
  const auto& entry = entries_[done_++];
  core::DispatchAct(app_, [&] {
    for (const auto& change : entry.controls) PutBackControl(change.control, change.after);
    PutBackSnapshot(entry.before, entry.after);
  });
  return true;
}

void ActHistory::PutBackControl(std::size_t control, const ControlMemory& memory) {
  PutBack(controls_[control], memory);
  memories_[control] = memory;
}

void ActHistory::PutBackSnapshot(const Snapshot& from, const Snapshot& to) {
  app_.image = *to.image;
  now_.image = to.image;
  if (to.known_image != nullptr && to.known_image != from.known_image) {
    app_.known_image = *to.known_image;
    now_.known_image = to.known_image;
  }
  const auto& variables = *to.variables;
  app_.ImageTouched = variables.ImageTouched;
  app_.PanelsReady = variables.PanelsReady;
  app_.UploadApplying = variables.UploadApplying;
  app_.ComboTouched = variables.ComboTouched;
  app_.CurrentFilePath = variables.CurrentFilePath;
  app_.SavedIndexes = variables.SavedIndexes;
  app_.unfit_option = variables.unfit_option;
  now_.variables = to.variables;
  now_.origin = to.origin;
}

}  // namespace ovl::acts
