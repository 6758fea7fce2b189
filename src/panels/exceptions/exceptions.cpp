#include "panels/exceptions/exceptions.h"

#include <array>

#include "image/slot_records.h"
#include "panels/exceptions/exception_report.h"
#include "panels/exceptions/scroll_matching.h"
#include "panels/exceptions/text_entry.h"
#include "panels/panel.h"

namespace ovl::panels {
namespace {

using enum image::FieldId;
using core::Part;
using core::Place;
using enum core::ValueDisplay;

using controls::Excp;

// The lists that are stored in one bit of the flags.
struct FlagMember {
  std::size_t member;
  int bit;
};
constexpr std::array kFlagMembers = {
    FlagMember{Excp::kDisplay, image::kDisplayBit}, FlagMember{Excp::kOutput, image::kOutputBit},
    FlagMember{Excp::kHistory, image::kHistoryBit}, FlagMember{Excp::kScroll, image::kScrollBit}};

int FlagsOf(const std::string& slot) {
  return codecs::HexToInt(slot);
}

void ShowRange(core::Application& app, const std::string& slot) {
  for (std::size_t value = 0; value < 2; ++value) {
    const auto [integers, decimals] = image::RangeValueOf(slot, app.firmware, value);
    app.frmMain.TextRANGE[value].caption = integers + DecimalSeparator(app) + decimals;
  }
}

// If both bits are set, no entry fits, and the list keeps the operator of the slot before.
void ShowOperator(core::Application& app, int flags) {
  AssignPosition(app, app.frmMain.ComboExcp[Excp::kOperator], image::OperatorOf(flags));
}

// A slot with scroll matching cannot have display, output or history.
void ApplyScrollRule(core::Application& app) {
  auto& lists = app.frmMain.ComboExcp;
  const bool matching = lists[Excp::kScroll].position == 1;
  for (const std::size_t member : {1U, 2U, 3U}) {
    if (matching) AssignPosition(app, lists[member], 0);
    lists[member].enabled = !matching;
  }
}

constexpr std::array kEditors = {
    core::Editor{EXCPSTRS, Place::kExceptionReport, "TextException", core::kWholeByte, kNothing, Part::kText},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "cmdSetRange", core::kWholeByte, kNothing, Part::kRange},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "ComboExcp(1)", 0x01, kNothing, Part::kFirstByte},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "ComboExcp(2)", 0x02, kNothing, Part::kFirstByte},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "ComboExcp(3)", 0x20, kNothing, Part::kFirstByte},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "ComboExcp(4)", 0x40, kNothing, Part::kFirstByte},
    core::Editor{EXCPSTRS, Place::kExceptionReport, "ComboExcp(5)", 0x0C, kNothing, Part::kFirstByte},
};

}  // namespace

std::string* ShownSlot(core::Application& app) {
  const int position = app.frmMain.ComboExcp[Excp::kNumber].position;
  return position < 0 ? nullptr : &app.image.at(image::FieldId::EXCPSTRS, position + 1);
}

const char* DecimalSeparator(const core::Application& app) {
  return codecs::HexToInt(app.image[image::FieldId::DECIMAL_POINT_BAK]) != 0 ? "," : ".";
}

void ApplyExceptionPanel(core::Application& app) {
  const PanelsQuiet quiet(app);
  ApplyTimeStamp(app);
  AssignPosition(app, app.frmMain.ComboExcp[Excp::kNumber], 0);
  ApplyDuplicateLine(app);
  ApplyScrollMatching(app);
}

void LoadExceptionSlot(core::Application& app, int number) {
  const auto slot = app.image.at(image::FieldId::EXCPSTRS, number);
  const int flags = FlagsOf(slot);
  for (const auto& row : kFlagMembers) {
    AssignPosition(app, app.frmMain.ComboExcp[row.member], codecs::HasBit(flags, row.bit) ? 1 : 0);
  }
  ShowOperator(app, flags);
  ShowRange(app, slot);
  AssignText(app, app.frmMain.TextException, image::ExceptionText(slot, app.firmware));
}

void ComboExcp_Click(core::Application& app, int index) {
  auto& lists = app.frmMain.ComboExcp;
  auto* slot = ShownSlot(app);
  if (index == Excp::kNumber) {
    LoadExceptionSlot(app, lists[Excp::kNumber].position + 1);
  } else if (slot != nullptr) {
    const auto& list = lists.at(static_cast<std::size_t>(index));
    for (const auto& row : kFlagMembers) {
      if (static_cast<int>(row.member) == index)
        image::StoreFirstByte(*slot, WithSelection(FlagsOf(*slot), row.bit, list));
    }
    if (index == Excp::kScroll) ApplyScrollRule(app);
    if (index == Excp::kOperator)
      image::StoreFirstByte(*slot, image::WithOperator(FlagsOf(*slot), list.position));
  }
  RefreshSavedIndexes(app, "ComboExcp", lists);
}

void TextException_Change(core::Application& app, int) {
  if (auto* slot = ShownSlot(app))
    image::StoreExceptionText(*slot, app.firmware, app.frmMain.TextException.text);
}

void cmdSetExcpstr_Click(core::Application& app, int) {
  EnterText(app, TextTarget::kException);
}

std::span<const core::Editor> ExceptionEditors() {
  return kEditors;
}

}  // namespace ovl::panels
