#include "panels/exceptions/exceptions.h"

#include <algorithm>
#include <array>

#include "panels/exceptions/exception_report.h"
#include "panels/exceptions/scroll_matching.h"
#include "panels/exceptions/text_entry.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

constexpr std::size_t kTextLength = 40;
constexpr std::size_t kLengthDigits = 2;
constexpr char kWildcard = '?';
constexpr char kStoredWildcard = '\x7F';
constexpr int kOperatorShift = 2;
constexpr int kFreeBit = 4;

// The selections that live in one bit of the flags.
struct FlagMember {
  std::size_t member;
  int bit;
};
constexpr std::array kFlagMembers = {FlagMember{1, 0}, FlagMember{2, 1}, FlagMember{3, 5}, FlagMember{4, 6}};

int FlagsOf(const std::string& slot) {
  return codecs::HexToInt(slot);
}

void StoreFlags(std::string& slot, int flags) {
  slot.replace(0, std::min<std::size_t>(slot.size(), 2), codecs::ByteToHex(flags));
}

void ShowRange(core::Application& app, const std::string& slot) {
  const auto place = RangePlaceOf(app);
  for (std::size_t value = 0; value < 2; ++value) {
    const auto first = RangePlace::kFirst + value * place.Value();
    app.frmMain.TextRANGE[value].caption = Slice(slot, first, place.integers) + DecimalSeparator(app) +
                                           Slice(slot, first + place.integers, RangePlace::kDecimals);
  }
}

void ShowText(core::Application& app, const std::string& slot) {
  auto text = StoredText(Slice(slot, RangePlaceOf(app).End() + kLengthDigits));
  std::replace(text.begin(), text.end(), kStoredWildcard, kWildcard);
  AssignText(app, app.frmMain.TextException, std::move(text));
}

// Both bits name no entry: the list then goes on showing the operator of the slot before.
void ShowOperator(core::Application& app, int flags) {
  AssignPosition(app, app.frmMain.ComboExcp[5], flags >> kOperatorShift & 3);
}

// A slot that matches while scrolling has no display, output or history action of its own.
void ApplyScrollRule(core::Application& app) {
  auto& lists = app.frmMain.ComboExcp;
  const bool matching = lists[4].position == 1;
  for (const std::size_t member : {1U, 2U, 3U}) {
    if (matching) AssignPosition(app, lists[member], 0);
    lists[member].enabled = !matching;
  }
}

}  // namespace

RangePlace RangePlaceOf(const core::Application& app) {
  return {app.firmware.IsV1400() ? 8U : 4U};
}

std::string* ShownSlot(core::Application& app) {
  const int position = app.frmMain.ComboExcp[0].position;
  return position < 0 ? nullptr : &app.image.at(image::FieldId::EXCPSTRS, position + 1);
}

const char* DecimalSeparator(const core::Application& app) {
  return codecs::HexToInt(app.image[image::FieldId::DECIMAL_POINT_BAK]) != 0 ? "," : ".";
}

void ApplyExceptionPanel(core::Application& app) {
  const PanelsQuiet quiet(app);
  ApplyTimeStamp(app);
  AssignPosition(app, app.frmMain.ComboExcp[0], 0);
  ApplyDuplicateLine(app);
  ApplyScrollMatching(app);
}

void LoadExceptionSlot(core::Application& app, int number) {
  const auto slot = app.image.at(image::FieldId::EXCPSTRS, number);
  const int flags = FlagsOf(slot);
  for (const auto& row : kFlagMembers) {
    AssignPosition(app, app.frmMain.ComboExcp[row.member], HasBit(flags, row.bit) ? 1 : 0);
  }
  ShowOperator(app, flags);
  ShowRange(app, slot);
  ShowText(app, slot);
}

void ComboExcp_Click(core::Application& app, int index) {
  auto& lists = app.frmMain.ComboExcp;
  auto* slot = ShownSlot(app);
  if (index == 0) {
    LoadExceptionSlot(app, lists[0].position + 1);
  } else if (slot != nullptr) {
    const auto& list = lists.at(static_cast<std::size_t>(index));
    for (const auto& row : kFlagMembers) {
      if (static_cast<int>(row.member) == index)
        StoreFlags(*slot, WithSelection(FlagsOf(*slot), row.bit, list));
    }
    if (index == 4) ApplyScrollRule(app);
    if (index == 5)
      StoreFlags(*slot, (FlagsOf(*slot) & ~(3 << kOperatorShift)) | list.position << kOperatorShift);
  }
  RefreshSavedIndexes(app, "ComboExcp", lists);
}

void TextException_Change(core::Application& app, int) {
  auto* slot = ShownSlot(app);
  if (slot == nullptr) return;
  auto text = app.frmMain.TextException.text.substr(0, kTextLength);
  std::replace(text.begin(), text.end(), kWildcard, kStoredWildcard);
  const bool blank = std::all_of(text.begin(), text.end(), [](char character) { return character == ' '; });
  text.resize(kTextLength, ' ');
  const auto place = RangePlaceOf(app);
  const auto range = Slice(*slot, RangePlace::kFirst, 2 * place.Value());
  *slot =
      codecs::ByteToHex(WithBit(FlagsOf(*slot), kFreeBit, blank)) + range + codecs::TextToCountedHex(text);
}

void cmdSetExcpstr_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kException);
}

}  // namespace ovl::panels
