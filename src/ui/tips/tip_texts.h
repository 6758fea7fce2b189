// The tips of the setting panels and of the small windows, in the words of an installer. The tips of the
// option frames are in the table of their rows.
#pragma once

#include <span>
#include <string_view>

namespace ovl::ui {

struct Tip {
  std::string_view form, control;
  const char* text;
};

std::span<const Tip> RegisterWindowTips();
std::span<const Tip> SettingTips();
std::span<const Tip> TextTips();

}  // namespace ovl::ui
