#include "panels/exceptions/range_editor.h"

#include <array>

#include "firmware/traits.h"
#include "image/slot_records.h"
#include "panels/exceptions/exceptions.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Place;

// The four text boxes in the order of their digits in a slot.
std::array<controls::TextBox*, 4> Fields(controls::RangeForm& form) {
  return {&form.Range_Hi, &form.SubRange_Hi, &form.Range_Low, &form.SubRange_Low};
}

std::size_t WidthOf(const core::Application& app, std::size_t field) {
  return field % 2 == 0 ? firmware::RangeIntegersOf(app.firmware) : image::kRangeDecimals;
}

// The number at the start of a text, with leading zeros, cut to the width of the field.
std::string Normalised(std::string_view text, std::size_t width) {
  auto digits = std::to_string(codecs::LeadingNumber(text));
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits.substr(0, width);
}

void NormaliseField(core::Application& app, std::size_t field) {
  auto& text = Fields(app.frmSetRange).at(field)->text;
  text = Normalised(text, WidthOf(app, field));
}

void ShowSeparator(core::Application& app) {
  const bool comma = codecs::HexToInt(app.image[image::FieldId::DECIMAL_POINT_BAK]) != 0;
  AssignPosition(app, app.frmSetRange.ComboDec, comma ? 1 : 0);
  app.frmSetRange.lbDec.caption = DecimalSeparator(app);
}

void FillFromSlot(core::Application& app) {
  const auto* slot = ShownSlot(app);
  if (slot == nullptr || !firmware::IsKnownFamily(app.firmware.version)) return;
  const auto fields = Fields(app.frmSetRange);
  for (std::size_t value = 0; value < 2; ++value) {
    const auto [integers, decimals] = image::RangeValueOf(*slot, app.firmware, value);
    fields[2 * value]->text = integers;
    fields[2 * value + 1]->text = decimals;
  }
}

constexpr std::array kEditors = {
    core::Editor{DECIMAL_POINT_BAK, Place::kRange, "frmSetRange.ComboDec"},
};

}  // namespace

void frmSetRange_Load(core::Application& app, int) {
  auto& dialog = app.frmSetRange;
  const auto integers = firmware::RangeIntegersOf(app.firmware);
  if (firmware::IsKnownFamily(app.firmware.version)) {
    dialog.Range_Hi.max_length = integers;
    dialog.Range_Low.max_length = integers;
  }
  const auto fields = Fields(dialog);
  for (std::size_t value = 0; value < 2; ++value) {
    const auto& shown = app.frmMain.TextRANGE[value].caption;
    fields[2 * value]->text = codecs::Slice(shown, 0, integers);
    fields[2 * value + 1]->text = codecs::Slice(shown, integers + 1, image::kRangeDecimals);
  }
  ShowSeparator(app);
  app.frmMain.form.enabled = false;
}

void frmSetRange_Unload(core::Application& app, int) {
  ReleaseMain(app);
}

void cmdSetRange_Click(core::Application& app, int) {
  LoadForm(app, app.frmSetRange.form);
  FillFromSlot(app);
  ShowForm(app, app.frmSetRange.form);
}

void RangeField_Leave(core::Application& app, int index) {
  const auto field = static_cast<std::size_t>(index);
  const bool integers = field % 2 == 0;
  if (!integers || firmware::IsKnownFamily(app.firmware.version)) NormaliseField(app, field);
}

// The separator is the same for all slots. It is stored immediately.
void ComboDec_Click(core::Application& app, int) {
  const bool comma = app.frmSetRange.ComboDec.position != 0;
  app.image[image::FieldId::DECIMAL_POINT_BAK] = comma ? "01" : "00";
  app.frmSetRange.lbDec.caption = comma ? "," : ".";
}

void RangeClear_Click(core::Application& app, int) {
  auto& dialog = app.frmSetRange;
  std::size_t field = 0;
  for (auto* box : Fields(dialog)) box->text.assign(WidthOf(app, field++), '0');
  AssignPosition(app, dialog.ComboDec, 0);
  dialog.lbDec.caption = ".";
}

void RangeSet_Click(core::Application& app, int) {
  auto& dialog = app.frmSetRange;
  for (std::size_t field = 0; field < 4; ++field) NormaliseField(app, field);
  auto& shown = app.frmMain.TextRANGE;
  shown[0].caption = dialog.Range_Hi.text + dialog.lbDec.caption + dialog.SubRange_Hi.text;
  shown[1].caption = dialog.Range_Low.text + dialog.lbDec.caption + dialog.SubRange_Low.text;
  if (auto* slot = ShownSlot(app)) {
    std::string digits;
    for (const auto* box : Fields(dialog)) digits += box->text;
    image::StoreRange(*slot, app.firmware, digits);
  }
  UnloadForm(app, dialog.form);
}

std::span<const core::Editor> RangeEditors() {
  return kEditors;
}

}  // namespace ovl::panels
