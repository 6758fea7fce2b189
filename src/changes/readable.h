// The changes since the last load or download in the words of the form: one row for each setting.
#pragma once

#include <string>
#include <vector>

#include "core/application.h"
#include "phrases/phrases.h"

namespace ovl::changes {

// The bytes of a setting that differ.
struct ByteChange {
  std::string field;          // with its entry: "EXCPSTRS(3)"
  std::string section;        // "SYSFIXED"
  std::size_t byte = 0;       // the first one in the section, counted from 0
  std::string before, after;  // hexadecimal digits

  bool operator==(const ByteChange&) const = default;
};

// Texts are in Windows-1252.
struct SettingChange {
  static constexpr int kNoTab = -1;

  int tab = kNoTab;              // of the main form; kNoTab for bytes that no control shows
  phrases::Words place;          // the caption of the tab, or "No control"
  phrases::Words caption;        // "Register", "PARITY", "Exception 3, text"
  phrases::Words before, after;  // in words; "byte 7F" for a byte that has no entry
  std::vector<ByteChange> bytes;
  std::string control;  // of the main form, to edit the setting; empty without a tab
  std::string list;     // the list that first has to select the exception or alarm; may be empty
  int slot = 0;         // its number, counted from 1

  bool operator==(const SettingChange&) const = default;
};

// Every byte that a download would change is in a row, and every row has such a byte. The rows of a tab are
// together, and so are those of an exception or alarm. Costs about as much as two loads.
std::vector<SettingChange> ReadableChanges(const core::Application& app);

// The same between two images of the running firmware.
std::vector<SettingChange> ReadableChanges(const core::Application& app, const image::ConfigImage& before,
                                           const image::ConfigImage& after);

}  // namespace ovl::changes
