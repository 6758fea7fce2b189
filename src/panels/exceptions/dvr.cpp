#include "panels/exceptions/dvr.h"

#include <array>

#include "firmware/traits.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;

constexpr int kFirstLabel = 12;  // the labels of the lists have consecutive numbers

// The second pair of lists belongs to the third recorder.
void EnablePair(controls::MainForm& form, std::size_t pair, bool enabled) {
  for (std::size_t list = 2 * pair; list < 2 * pair + 2; ++list) {
    form.ComboKLM4011.at(list).enabled = enabled;
    form.Label1[kFirstLabel + static_cast<int>(list)].enabled = enabled;
  }
}

// Stores the history ids that a pair of lists shows. A list without a selection is skipped.
void TakeHistoryIds(core::Application& app, const controls::List& destination, const controls::List& source) {
  if (destination.position >= 0) app.image[HIST_DEST_ID] = codecs::ByteToHex(destination.position + 1);
  if (source.position >= 0) app.image[HIST_SRC_ID] = codecs::ByteToHex(source.position + 1);
}

constexpr std::array kEditors = {
    core::Editor{HIST_REG, Place::kExceptionReport, "OpDVR"},
    core::Editor{HIST_DEST_ID, Place::kExceptionReport, "ComboKLM4011(0)"},
    core::Editor{HIST_SRC_ID, Place::kExceptionReport, "ComboKLM4011(1)"},
};

}  // namespace

void ApplyDvr(core::Application& app) {
  auto& form = app.frmMain;
  const int recorder = codecs::HexToInt(app.image[HIST_REG]);
  const int destination = codecs::HexToInt(app.image[HIST_DEST_ID]) - 1;
  const int source = codecs::HexToInt(app.image[HIST_SRC_ID]) - 1;
  ChooseElement(app, form.OpDVR, recorder);
  if (!firmware::IsKnownFamily(app.firmware.version)) return;
  const bool both = firmware::HasSecondRecorderPair(app.firmware);
  // The click has enabled the pair of a known recorder. An unknown recorder has no click, so disable it here.
  if (!both) EnablePair(form, 0, recorder == 1);
  for (std::size_t pair = 0; pair < (both ? 2U : 1U); ++pair) {
    AssignPosition(app, form.ComboKLM4011[2 * pair], destination);
    AssignPosition(app, form.ComboKLM4011[2 * pair + 1], source);
  }
}

void OpDVR_Click(core::Application& app, int element) {
  EnablePair(app.frmMain, 0, element == 1);
  EnablePair(app.frmMain, 1, element == 2);
  app.image[HIST_REG] = codecs::ByteToHex(element);
}

void ComboKLM4011_Click(core::Application& app, int index) {
  const auto& lists = app.frmMain.ComboKLM4011;
  app.image[index % 2 == 0 ? HIST_DEST_ID : HIST_SRC_ID] =
      codecs::ByteToHex(lists.at(static_cast<std::size_t>(index)).position + 1);
  RefreshSavedIndexes(app, "ComboKLM4011", lists);
}

void StoreRecorder(core::Application& app) {
  if (!firmware::StoresRecorder(app.firmware)) return;
  const auto& form = app.frmMain;
  if (form.OpDVR.chosen < 0) return;
  app.image[HIST_REG] = codecs::ByteToHex(form.OpDVR.chosen);
  if (form.OpDVR.chosen == 1) TakeHistoryIds(app, form.ComboKLM4011[0], form.ComboKLM4011[1]);
  if (form.OpDVR.chosen == 2) TakeHistoryIds(app, form.ComboKLM4011[2], form.ComboKLM4011[3]);
}

std::span<const core::Editor> DvrEditors() {
  return kEditors;
}

}  // namespace ovl::panels
