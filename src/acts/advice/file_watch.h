// Remembers files that were opened and saved, and what the register list did, as far as the state of the
// program no longer shows it.
#pragma once

#include <optional>
#include <string>

#include "acts/advice/advice_id.h"
#include "acts/advice/link_watch.h"
#include "core/gate.h"
#include "phrases/phrases.h"

namespace ovl::acts {

// A register whose options stored something on other tabs.
struct TabsChange {
  std::string code;           // REGTYPE since then
  image::ConfigImage before;  // as it was before the pick, or as it was read
  phrases::Words words;       // "COMMUNICATION: PARITY NONE; EXCEPTION REPORT: OUTPUT OFF"
  bool picked = false;        // by the installer
};

// A register that the line selected in place of another one.
struct RegisterChange {
  std::string code;  // REGTYPE since then
  std::string register_before;
};

class FileWatch {
 public:
  void Before(const core::Application& app, const core::Event& event);
  void After(const core::Application& app, const LinkWatch& link);

  // A file that opens again holds the configuration now, so that of Save is no longer the only one.
  void BackupWritten() { saved_.clear(); }

  // An upload or an Open was complete in this run.
  bool Begun() const { return begun_; }
  // Why the last Open read no file; empty if it was cancelled.
  const std::string& OpenProblem() const { return open_problem_; }
  // Why the last upload was not taken; empty if it was.
  const std::string& UploadProblem() const { return upload_problem_; }
  const std::optional<RegisterChange>& Reset() const { return reset_; }
  // The register list moved, and nothing was loaded.
  bool PickSwallowed() const { return pick_swallowed_; }
  // The file that the configuration is from, if its form is not that of the firmware; else empty.
  std::string MisreadIn(const core::Application& app) const;
  // The file that the last Open refused because of its form.
  const std::string& Refused() const { return refused_; }
  const image::ConfigImage& ImageAtRefusal() const { return refused_image_; }
  // The file that the last Save wrote; empty after an upload or an Open.
  const std::string& Saved() const { return saved_; }
  const std::optional<TabsChange>& OtherTabs() const { return other_tabs_; }

  const AdviceSet& Renewed() const { return renewed_; }

 private:
  struct Seen {
    bool picks_register = false;
    bool opens = false;
    bool saves = false;
    bool upload_applying = false;
    bool of_installer = false;
    int position = -1;
    std::string code, register_name;
    unsigned failures = 0;
    image::ConfigImage image;  // only of a register pick
  };

  void WatchOpen(const core::Application& app);
  void WatchSave(const core::Application& app);
  void WatchRegister(const core::Application& app);
  void WatchOtherTabs(const core::Application& app, const image::ConfigImage& before, bool picked);
  void WatchLine(const core::Application& app, const LinkWatch& link);
  void TakenIn(const core::Application& app);

  Seen before_;
  bool begun_ = false;
  bool pick_swallowed_ = false;
  std::string open_problem_, upload_problem_, refused_, saved_;
  std::optional<RegisterChange> reset_;
  image::ConfigImage refused_image_;
  std::string misread_;
  image::ConfigImage misread_image_;  // as it was read
  std::optional<TabsChange> other_tabs_;
  AdviceSet renewed_;
};

}  // namespace ovl::acts
