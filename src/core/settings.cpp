#include "core/settings.h"

namespace ovl::core {
namespace {

constexpr std::size_t kBufferLength = 255;

}  // namespace

std::string ReadSetting(const Application& app, SettingRoot root, std::string_view key,
                        std::string_view value) {
  if (root == SettingRoot::kNone) return {};
  const auto stored = app.platform.read_setting(key, value);
  if (!stored) return {};
  if (const auto* number = std::get_if<std::uint32_t>(&*stored)) return std::to_string(*number);
  const auto& text = std::get<std::string>(*stored);
  return text.size() < kBufferLength ? text : std::string();
}

void WriteSetting(Application& app, SettingRoot root, std::string_view key, std::string_view value,
                  std::string_view text) {
  if (root == SettingRoot::kNone) return;
  app.platform.write_setting(key, value, text.empty() ? " " : text);
}

}  // namespace ovl::core
