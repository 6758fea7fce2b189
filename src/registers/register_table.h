// What each register shows, as one table. A row names the register's key, families and releases, the option
// frame and its title, and the selection that is set from a byte.
#pragma once

#include <span>
#include <string_view>

#include "core/application.h"
#include "core/editor.h"
#include "firmware/traits.h"

namespace ovl::registers {

struct RegisterRow {
  static constexpr int kAnyRelease = 9999;

  std::string_view key;
  firmware::FamilySet families;
  controls::OptionFrame frame;
  std::string_view title;  // empty: the register's name in the list

  // Sets the selections of the frame. False: a stored byte has no matching entry, and the frame stays hidden.
  bool (*assign)(core::Application&, const RegisterRow&);

  // For frames in which one control shows one byte.
  controls::OptionArray controls::RegisterOptions::*array = nullptr;
  controls::List controls::RegisterOptions::*list = nullptr;
  image::FieldId from = image::FieldId::REGTYPE_MINOR;

  int first_release = 0;
  int last_release = kAnyRelease;

  firmware::Releases Served() const { return {families, first_release, last_release}; }
};

std::span<const RegisterRow> RegisterTable();

std::span<const core::Editor> RegisterEditors();

}  // namespace ovl::registers
