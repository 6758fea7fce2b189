// What a disk can hold after the power was cut. Names and contents reach the disk on their own: of a folder
// that was not flushed any state since its last flush, of a file that was not flushed all, nothing, the first
// half or zeros of what was written since. This is stricter than file systems are, so what is whole here is
// whole on them.
#pragma once

#include <optional>

#include "recording.h"

namespace ovl::testing {

struct FlushesCount {
  bool files = true;
  bool folders = true;
};

// Everything that a file of this name can hold if the power is cut after so many events: nothing if there may
// be no file. With flushes that do not count, the search shows what they are for.
std::vector<std::optional<std::string>> AfterPowerCut(const Recording& recording, std::size_t events,
                                                      const std::filesystem::path& file,
                                                      FlushesCount count = {});

}  // namespace ovl::testing
