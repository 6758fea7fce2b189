#include "acts/advice.h"

#include <array>

#include "acts/advice/file_conditions.h"
#include "acts/advice/link_conditions.h"
#include "acts/advice/setting_conditions.h"

namespace ovl::acts {
namespace {

constexpr std::array kTable = {
    AdviceCondition{AdviceId::kUploadBroke, "upload-broke", UploadBroke},
    AdviceCondition{AdviceId::kUploadMixed, "upload-mixed", UploadMixed},
    AdviceCondition{AdviceId::kDeviceLost, "device-lost", DeviceLost},
    AdviceCondition{AdviceId::kDownloadBroke, "download-broke", DownloadBroke},
    AdviceCondition{AdviceId::kPortRefused, "port-refused", PortRefused},
    AdviceCondition{AdviceId::kNoAnswer, "no-answer", NoAnswer},
    AdviceCondition{AdviceId::kScanCannotHear, "scan-cannot-hear", ScanCannotHear},
    AdviceCondition{AdviceId::kScanFoundNothing, "scan-found-nothing", ScanFoundNothing},
    AdviceCondition{AdviceId::kUploadNotTaken, "upload-not-taken", UploadNotTaken},
    AdviceCondition{AdviceId::kRegisterReset, "register-reset", RegisterReset},
    AdviceCondition{AdviceId::kFileMisread, "file-misread", FileMisread},
    AdviceCondition{AdviceId::kFileRefused, "file-refused", FileRefused},
    AdviceCondition{AdviceId::kPickSwallowed, "pick-swallowed", PickSwallowed},
    AdviceCondition{AdviceId::kNextPickSwallowed, "next-pick-swallowed", NextPickSwallowed},
    AdviceCondition{AdviceId::kUnknownFirmware, "unknown-firmware", UnknownFirmware},
    AdviceCondition{AdviceId::kOptionsHidden, "options-hidden", OptionsHidden},
    AdviceCondition{AdviceId::kSavedFile, "saved-file", SavedFile},
    AdviceCondition{AdviceId::kRangeOrder, "range-order", RangeOrder},
    AdviceCondition{AdviceId::kAlarmWithoutException, "alarm-without-exception", AlarmWithoutException},
    AdviceCondition{AdviceId::kBlankText, "blank-text", BlankText},
    AdviceCondition{AdviceId::kOtherTabsChanged, "other-tabs-changed", OtherTabsChanged},
    AdviceCondition{AdviceId::kFirstSteps, "first-steps", FirstSteps},
};

static_assert([] {
  std::size_t place = 0;
  for (const auto& row : kTable) {
    if (static_cast<std::size_t>(row.id) != place++) return false;
  }
  return place == static_cast<std::size_t>(AdviceId::kCount);
}());

bool IsOfLine(const core::Event& event) {
  return std::holds_alternative<core::ReceivedEvent>(event) ||
         std::holds_alternative<core::DrainedEvent>(event);
}

}  // namespace

std::span<const AdviceCondition> AdviceTable() {
  return kTable;
}

void Advisor::Before(const core::Event& event) {
  if (app_.handling) return;
  observed_.link.Before(app_);
  observed_.files.Before(app_, event);
}

void Advisor::After(const core::Event& event) {
  if (app_.handling) return;
  observed_.link.After(app_, event);
  observed_.files.After(app_, observed_.link);
  dismissed_ &= ~(observed_.link.Renewed() | observed_.files.Renewed());
  // Characters come too fast for this; the timers tick between them.
  if (dismissed_.any() && !IsOfLine(event)) ForgetDismissed();
}

void Advisor::ForgetDismissed() {
  for (const auto& row : kTable) {
    if (Has(dismissed_, row.id) && row.line(app_, observed_).words.empty())
      dismissed_.reset(static_cast<std::size_t>(row.id));
  }
}

std::vector<Advice> Advisor::Lines() const {
  std::vector<Advice> lines;
  for (const auto& row : kTable) {
    if (Has(dismissed_, row.id)) continue;
    auto line = row.line(app_, observed_);
    if (line.words.empty()) continue;
    line.id = row.id;
    line.name = row.name;
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace ovl::acts
