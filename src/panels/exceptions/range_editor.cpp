#include "panels/exceptions/range_editor.h"

#include <array>

#include "panels/exceptions/exceptions.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

// The four fields in the order in which a slot holds their digits.
std::array<controls::TextBox*, 4> Fields(controls::RangeForm& form) {
  return {&form.Range_Hi, &form.SubRange_Hi, &form.Range_Low, &form.SubRange_Low};
}

std::size_t WidthOf(const core::Application& app, std::size_t field) {
  return field % 2 == 0 ? RangePlaceOf(app).integers : RangePlace::kDecimals;
}

// The leading number of a text, with leading zeros, in just the field's width.
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
  std::size_t first = RangePlace::kFirst;
  std::size_t field = 0;
  for (auto* box : Fields(app.frmSetRange)) {
    const auto width = WidthOf(app, field++);
    box->text = Slice(*slot, first, width);
    first += width;
  }
}

}  // namespace

void frmSetRange_Load(core::Application& app, int) {
  auto& dialog = app.frmSetRange;
  const auto integers = RangePlaceOf(app).integers;
  if (firmware::IsKnownFamily(app.firmware.version)) {
    dialog.Range_Hi.max_length = integers;
    dialog.Range_Low.max_length = integers;
  }
  const auto fields = Fields(dialog);
  for (std::size_t value = 0; value < 2; ++value) {
    const auto& shown = app.frmMain.TextRANGE[value].caption;
    fields[2 * value]->text = Slice(shown, 0, integers);
    fields[2 * value + 1]->text = Slice(shown, integers + 1, RangePlace::kDecimals);
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

// The separator holds for all slots and is stored at once.
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
    *slot = slot->substr(0, RangePlace::kFirst) + digits + Slice(*slot, RangePlaceOf(app).End());
  }
  UnloadForm(app, dialog.form);
}

}  // namespace ovl::panels
