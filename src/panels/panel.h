// Common parts of the settings panels.
#pragma once

#include <string>

#include "codecs/bytes.h"
#include "core/actions.h"

namespace ovl::panels {

// A panel that is refreshed must not write into the image. The destructor restores the earlier value of the
// flag.
class PanelsQuiet {
 public:
  explicit PanelsQuiet(core::Application& app) : app_(app), before_(app.PanelsReady) {
    app.PanelsReady = false;
  }
  ~PanelsQuiet() { app_.PanelsReady = before_; }
  PanelsQuiet(const PanelsQuiet&) = delete;
  PanelsQuiet& operator=(const PanelsQuiet&) = delete;

 private:
  core::Application& app_;
  bool before_;
};

// Stores the positions of a control array. Every click in such an array ends with this.
template <class Array>
void RefreshSavedIndexes(core::Application& app, const std::string& family, const Array& lists) {
  auto& saved = app.SavedIndexes[family];
  saved.clear();
  for (const auto& list : lists) saved.push_back(list.position);
}

// The byte with the bit set if the list is not at its first entry.
inline int WithSelection(int byte, int bit, const controls::List& list) {
  return codecs::WithBit(byte, bit, list.position != 0);
}

}  // namespace ovl::panels
