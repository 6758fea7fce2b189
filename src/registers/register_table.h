// What each register shows: one table whose rows name the register's key, the families and releases, the
// option frame, its title, and what is assigned from which byte.
#pragma once

#include <span>
#include <string_view>

#include "core/application.h"
#include "firmware/traits.h"

namespace ovl::registers {

struct RegisterRow {
  static constexpr int kNoFrame = -1;
  static constexpr int kAnyRelease = 9999;

  std::string_view key;
  firmware::FamilySet families;
  int frame;
  std::string_view title;  // empty: the register's name in the list

  // Assigns the frame's selections; false: a stored byte has no control, and the frame stays hidden.
  bool (*assign)(core::Application&, const RegisterRow&);

  // For the assignments that are one control from one byte.
  controls::OptionArray controls::RegisterOptions::*array = nullptr;
  controls::List controls::RegisterOptions::*list = nullptr;
  image::FieldId from = image::FieldId::REGTYPE_MINOR;

  int first_release = 0;
  int last_release = kAnyRelease;

  firmware::Releases Served() const { return {families, first_release, last_release}; }
};

std::span<const RegisterRow> RegisterTable();

}  // namespace ovl::registers
