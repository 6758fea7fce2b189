// What the settings panels share.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/actions.h"

namespace ovl::panels {

// While a panel is being refreshed it must not write into the image. The flag takes its earlier value at the
// end.
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

// Every click of a guarded family ends by noting where its selections stand.
template <class Array>
void RefreshSavedIndexes(core::Application& app, const std::string& family, const Array& lists) {
  auto& saved = app.SavedIndexes[family];
  saved.clear();
  for (const auto& list : lists) saved.push_back(list.position);
}

// Half of a number, rounded to the even neighbour: 1 gives 0, 3 gives 2.
inline int HalfToEven(int number) {
  const int half = number / 2;
  return number % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

// What a record holds from a place on; nothing behind its end.
inline std::string Slice(const std::string& record, std::size_t first,
                         std::size_t count = std::string::npos) {
  return record.substr(std::min(first, record.size()), count);
}

inline bool HasBit(int byte, int bit) {
  return (byte >> bit & 1) != 0;
}

inline int WithBit(int byte, int bit, bool set) {
  return set ? byte | 1 << bit : byte & ~(1 << bit);
}

// The byte with the bit set when the list stands at another than its first entry.
inline int WithSelection(int byte, int bit, const controls::List& list) {
  return WithBit(byte, bit, list.position != 0);
}

}  // namespace ovl::panels
