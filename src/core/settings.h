// The settings store, as the program sees it: text values below a key of the machine-wide hive.
#pragma once

#include <string>
#include <string_view>

#include "core/application.h"

namespace ovl::core {

// The predefined hives. The program uses one of them.
enum class SettingRoot { kNone, kLocalMachine };

inline constexpr std::string_view kSettingsKey = "SOFTWARE\\ORB\\OVL Software";
inline constexpr std::string_view kVersionValue = "Version";
inline constexpr std::string_view kReleaseValue = "Release";

// A text comes without its terminator, a number as decimal text. The result is empty for everything that
// cannot be read: no hive, no key, no value, or a value that needs more than 255 bytes with its terminator.
std::string ReadSetting(const Application& app, SettingRoot root, std::string_view key,
                        std::string_view value);

// Writes a text. An empty text becomes a blank, because an empty value would read as missing. A failed write
// is not reported.
void WriteSetting(Application& app, SettingRoot root, std::string_view key, std::string_view value,
                  std::string_view text);

}  // namespace ovl::core
