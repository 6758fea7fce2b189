// The exception slots: patterns that the unit watches for, and what it does when one matches.
#pragma once

#include "core/application.h"

namespace ovl::panels {

void ApplyExceptionPanel(core::Application& app);

// A slot, 1 to 24, onto the panel. Selections that change run their clicks, so that a slot that was not
// written by this program is tidied by being looked at.
void LoadExceptionSlot(core::Application& app, int number);

void ComboExcp_Click(core::Application& app, int index);
void TextException_Change(core::Application& app, int index);
void cmdSetExcpstr_Click(core::Application& app, int index);

// Where the range digits of a slot stand, and how many integer digits a value has.
struct RangePlace {
  static constexpr std::size_t kFirst = 2;
  static constexpr std::size_t kDecimals = 2;
  std::size_t integers;

  std::size_t Value() const { return integers + kDecimals; }
  std::size_t End() const { return kFirst + 2 * Value(); }
};
RangePlace RangePlaceOf(const core::Application& app);

// The slot that the panel shows; nothing before one was picked.
std::string* ShownSlot(core::Application& app);

// The sign between integer and decimal digits on the register's printout.
const char* DecimalSeparator(const core::Application& app);

}  // namespace ovl::panels
