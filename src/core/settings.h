// The settings store, as the program sees it: text values below a key of the machine-wide hive.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::core {

// The predefined hives, of which the program uses one.
enum class SettingRoot { kNone, kLocalMachine };

inline constexpr std::string_view kSettingsKey = "SOFTWARE\\ORB\\OVL Software";
inline constexpr std::string_view kVersionValue = "Version";
inline constexpr std::string_view kReleaseValue = "Release";

// A text without its terminator, a number as its decimal text. Empty for anything that cannot be read: no
// hive, no key, no value, or one that does not fit 255 bytes with its terminator.
std::string ReadSetting(const Application& app, SettingRoot root, std::string_view key,
                        std::string_view value);

// Writes a text; an empty one becomes a blank, so that it does not read as missing. A failed write is silent.
void WriteSetting(Application& app, SettingRoot root, std::string_view key, std::string_view value,
                  std::string_view text);

}  // namespace ovl::core
