#include "shell/platform/settings_store.h"

#include <QSettings>
#include <QVariant>

#include "shell/platform/text_codec.h"

namespace ovl {
namespace {

constexpr std::string_view kStoreKey = "SOFTWARE\\ORB\\OVL Software";
constexpr auto kOrganisation = "ORB";
constexpr auto kApplication = "OVL Software";

// A separator would reach a group below the store's key.
bool IsOwnValue(std::string_view key, std::string_view value) {
  return key == kStoreKey && !value.empty() && value.find_first_of("/\\") == std::string_view::npos;
}

bool IsNumber(const QVariant& stored) {
  const auto type = stored.typeId();
  return type == QMetaType::Int || type == QMetaType::UInt;
}

// A comma in an INI file that a person wrote makes a list of the text.
QString Text(const QVariant& stored) {
  return stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(QStringLiteral(", "))
                                                   : stored.toString();
}

}  // namespace

SettingsStore::SettingsStore(QString folder) : folder_(std::move(folder)) {}

std::unique_ptr<QSettings> SettingsStore::Open() const {
  auto settings =
      folder_.isEmpty()
          ? std::make_unique<QSettings>(QSettings::SystemScope, QString::fromLatin1(kOrganisation),
                                        QString::fromLatin1(kApplication))
          : std::make_unique<QSettings>(
                QStringLiteral("%1/%2/%3.conf")
                    .arg(folder_, QString::fromLatin1(kOrganisation), QString::fromLatin1(kApplication)),
                QSettings::IniFormat);
  settings->setFallbacksEnabled(false);
  return settings;
}

std::optional<SettingValue> SettingsStore::Read(std::string_view key, std::string_view value) const {
  if (!IsOwnValue(key, value)) return std::nullopt;
  const auto settings = Open();
  const auto name = FromWindows1252(value);
  if (settings->status() == QSettings::AccessError || !settings->contains(name)) return std::nullopt;
  const auto stored = settings->value(name);
  if (IsNumber(stored)) return static_cast<std::uint32_t>(stored.toLongLong());
  return ToWindows1252(Text(stored));
}

bool SettingsStore::Write(std::string_view key, std::string_view value, std::string_view text) const {
  if (!IsOwnValue(key, value)) return false;
  const auto settings = Open();
  settings->setValue(FromWindows1252(value), FromWindows1252(text));
  settings->sync();
  return settings->status() == QSettings::NoError;
}

}  // namespace ovl
