// The conditions under which the program advises the installer, the most important one first.
#pragma once

#include <bitset>
#include <cstddef>

namespace ovl::acts {

enum class AdviceId {
  kUploadBroke,
  kUploadMixed,
  kDeviceLost,
  kDownloadBroke,
  kPortRefused,
  kNoAnswer,
  kScanCannotHear,
  kScanFoundNothing,
  kUploadNotTaken,
  kRegisterReset,
  kFileMisread,
  kFileRefused,
  kPickSwallowed,
  kNextPickSwallowed,
  kUnknownFirmware,
  kOptionsHidden,
  kSavedFile,
  kRangeOrder,
  kAlarmWithoutException,
  kBlankText,
  kOtherTabsChanged,
  kFirstSteps,
  kCount
};

// One bit for each condition.
using AdviceSet = std::bitset<static_cast<std::size_t>(AdviceId::kCount)>;

inline void Add(AdviceSet& set, AdviceId id) {
  set.set(static_cast<std::size_t>(id));
}

inline bool Has(const AdviceSet& set, AdviceId id) {
  return set.test(static_cast<std::size_t>(id));
}

}  // namespace ovl::acts
