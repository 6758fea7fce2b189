// The tips of the register options, of the setting panels and of the windows, told in an installer's words.
#pragma once

#include <span>
#include <string_view>

namespace ovl::ui {

struct Tip {
  std::string_view form, control;
  const char* text;
};

std::span<const Tip> RegisterTips();
std::span<const Tip> SettingTips();
std::span<const Tip> TextTips();

}  // namespace ovl::ui
