// Undo and redo. The model is data, so the history keeps what an act changed and puts it back as it was; no
// handler runs. Port, link and timers are not part of it.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "acts/control_memory.h"
#include "core/gate.h"
#include "phrases/phrases.h"

namespace ovl::acts {

class ActHistory {
 public:
  static constexpr std::size_t kActs = 200;  // older ones are forgotten

  // Begins with the present state of the program, which has started. The application object must outlive this
  // object.
  explicit ActHistory(core::Application& app);

  // Dispatches an event. If it is an act of the installer and changes the image or a control of the settings,
  // it can be undone.
  core::Outcome Act(const core::Event& event);

  // The same for an act of our own, which runs inside the gate.
  core::Outcome Run(phrases::Words name, const std::function<void()>& act);

  // Records what the line has changed since the last act, such as a finished upload. Call it before the names
  // are shown.
  void Observe();

  // A transfer runs, so nothing can be undone or redone.
  bool IsHeldByTransfer() const;

  // The name of the act that would be undone or redone: "ALARM DURATION", "Open shop12.bin", "Upload". Null:
  // there is none, or a transfer or a window holds the settings.
  const phrases::Words* NextUndo() const;
  const phrases::Words* NextRedo() const;

  // False: there is nothing to undo or redo now.
  bool Undo();
  bool Redo();

  // The number of acts that were recorded since the start, including those that were undone or forgotten.
  std::size_t Recorded() const { return recorded_; }

  // Where the image comes from: "GENERIC", "shop12.bin", "Uploaded 11:08".
  const phrases::Words& Origin() const { return now_.origin; }

 private:
  // State variables that belong to the settings.
  struct Variables {
    bool ImageTouched, PanelsReady, UploadApplying, ComboTouched;
    std::string CurrentFilePath;
    decltype(core::Application::SavedIndexes) SavedIndexes;
    std::optional<core::UnfitOption> unfit_option;

    bool operator==(const Variables&) const = default;
  };

  // What undo puts back beside the controls. Equal parts are shared.
  struct Snapshot {
    std::shared_ptr<const image::ConfigImage> image, known_image;
    std::shared_ptr<const Variables> variables;
    phrases::Words origin;
  };

  struct ControlChange {
    std::size_t control;
    ControlMemory before, after;
  };

  struct Entry {
    phrases::Words name;
    Snapshot before, after;
    std::vector<ControlChange> controls;
  };

  bool IsHeld() const;
  void AdoptFilePath();
  Variables VariablesNow() const;
  // Both compare the program with its last state and keep the new one. They return what has changed.
  std::vector<ControlChange> TakeControls();
  bool TakeSnapshot();
  // Adds an entry with what has changed. Without a change it adds none.
  void Add(phrases::Words name, phrases::Words origin);
  void ForgetRedo();
  void ForgetKnownImages();
  void PutBackControl(std::size_t control, const ControlMemory& memory);
  void PutBackSnapshot(const Snapshot& from, const Snapshot& to);

  core::Application& app_;
  std::vector<controls::ControlRef> controls_;
  std::vector<ControlMemory> memories_;  // of controls_, after the last act
  Snapshot now_;
  std::deque<Entry> entries_;
  std::size_t recorded_ = 0;
  unsigned uploads_taken_ = 0;
  std::size_t done_ = 0;  // the entries from here on can be redone
};

}  // namespace ovl::acts
