// Advice: what happened, and what to do now. It is a table of conditions on the state of the program and on
// what was observed. Windows and scripts show the lines that apply; none of this changes the program.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "acts/advice/advice_id.h"
#include "acts/advice/file_watch.h"
#include "acts/advice/link_watch.h"
#include "core/gate.h"
#include "phrases/phrases.h"

namespace ovl::acts {

// What the line offers. The windows and the script tool carry it out.
enum class AdviceAction {
  kNone,
  kRestart,       // keep the changes, start the program anew and open them
  kUndo,          // take the last act back
  kSaveBackup,    // write a file that opens again
  kPickVersion,   // open the Version menu
  kGoToControl,   // show the control and give it the focus
  kClickControl,  // click the control: "Set Comport", "Disconnect", "Cancel" of the scan
};

struct Advice {
  AdviceId id = AdviceId::kCount;
  std::string_view name;  // of the condition, such as "device-lost"
  phrases::Words words;   // in Windows-1252
  AdviceAction action = AdviceAction::kNone;
  phrases::Words caption = {};    // of the action; empty without one
  std::string_view control = {};  // its registry name, for the last two kinds of action
  std::string_view list = {};     // if not empty: first the exception or alarm is picked in this list
  int slot = 0;                   // its number
};

// What was observed.
struct Observed {
  LinkWatch link;
  FileWatch files;
};

struct AdviceCondition {
  AdviceId id;
  std::string_view name;
  // The line; its words are empty while the condition does not apply.
  Advice (*line)(const core::Application& app, const Observed& observed);
};

// In the order of AdviceId.
std::span<const AdviceCondition> AdviceTable();

// Observes one run of the program, whose application object must outlive it. Call `Before` and `After`
// for each event; both may also be called for an event that comes while a handler runs.
class Advisor {
 public:
  explicit Advisor(const core::Application& app) : app_(app) {}

  void Before(const core::Event& event);
  void After(const core::Event& event);

  // Acts of our own are no events. After one that changed the model, and after a backup:
  void AfterOwnAct() { ForgetDismissed(); }
  void BackupWritten() { observed_.files.BackupWritten(); }

  // The image is a mixture of two uploads.
  bool ImageIsMixture() const { return observed_.link.UploadMixedIn(app_); }

  // The lines that apply now, the most important one first, without those that are dismissed.
  std::vector<Advice> Lines() const;

  // Hides a line until its condition ends and comes back.
  void Dismiss(AdviceId id) { Add(dismissed_, id); }

 private:
  void ForgetDismissed();

  const core::Application& app_;
  Observed observed_;
  AdviceSet dismissed_;
};

}  // namespace ovl::acts
