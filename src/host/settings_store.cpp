#include "host/settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QVariant>
#include <filesystem>
#include <system_error>

#include "host/text_codec.h"

namespace ovl::host {
namespace {

constexpr std::string_view kStoreKey = "SOFTWARE\\ORB\\OVL Software";
const auto kOrganisation = QStringLiteral("ORB");
const auto kApplication = QStringLiteral("OVL Software");

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

std::string Told(const QString& path, const QString& reason) {
  return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), reason).toStdString();
}

}  // namespace

SettingsStore::SettingsStore(QString folder) : folder_(std::move(folder)) {}

QString SettingsStore::Path() const {
  const auto name = QStringLiteral("%1/%2.conf").arg(kOrganisation, kApplication);
  if (!folder_.isEmpty()) return QDir(folder_).filePath(name);
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
  return {};
#else
  // A desktop puts places of its own ahead of the system's; the toolkit would look no further than the first.
  const auto places = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
  for (const auto& place : places.mid(1)) {
    const auto path = QDir(place).filePath(name);
    if (QFile::exists(path)) return path;
  }
  return QDir(QLibraryInfo::path(QLibraryInfo::SettingsPath)).filePath(name);
#endif
}

// The toolkit makes any of its types from such a value, as large as the value says. The program keeps texts
// and numbers; "@@" is a text that begins with the sign.
bool SettingsStore::IsSound() const {
  static const QRegularExpression other(
      QStringLiteral(R"((@|\\x0*40|\\0?100)(Variant\((?!\\0\\0\\0\\x[23]\\0)|DateTime\())"));
  QFile file(Path());
  if (!file.open(QIODevice::ReadOnly)) return true;
  auto text = QString::fromLatin1(file.readAll());
  return !text.remove(QStringLiteral("@@")).contains(other);
}

std::unique_ptr<QSettings> SettingsStore::Open() const {
  const auto path = Path();
  auto settings = path.isEmpty()
                      ? std::make_unique<QSettings>(QSettings::SystemScope, kOrganisation, kApplication)
                      : std::make_unique<QSettings>(path, QSettings::IniFormat);
  settings->setFallbacksEnabled(false);
  return settings;
}

std::optional<core::SettingValue> SettingsStore::Read(std::string_view key, std::string_view value) const {
  if (!IsOwnValue(key, value) || !IsSound()) return std::nullopt;
  const auto settings = Open();
  const auto name = FromWindows1252(value);
  if (settings->status() == QSettings::AccessError || !settings->contains(name)) return std::nullopt;
  const auto stored = settings->value(name);
  if (IsNumber(stored)) return static_cast<std::uint32_t>(stored.toLongLong());
  return ToWindows1252(Text(stored));
}

bool SettingsStore::Write(std::string_view key, std::string_view value, std::string_view text) const {
  if (!IsOwnValue(key, value)) return false;
  if (!IsSound()) {
    const auto aside = Path() + QStringLiteral(".unsound");
    QFile::remove(aside);
    if (!QFile::rename(Path(), aside)) return false;
  }
  const auto settings = Open();
  settings->setValue(FromWindows1252(value), FromWindows1252(text));
  settings->sync();
  return settings->status() == QSettings::NoError;
}

std::string SettingsStore::WhyNotRead() const {
  QFile file(Path());
  const bool opened = file.open(QIODevice::ReadOnly);
  if (!opened) return Told(file.fileName(), file.errorString());
  return Told(file.fileName(), IsSound()
                                   ? QStringLiteral("it lacks the value")
                                   : QStringLiteral("it holds a value that is neither text nor number"));
}

std::string SettingsStore::WhyNotWritten() const {
  const auto path = Path();
  std::error_code failed;
  std::filesystem::create_directories(QFileInfo(path).path().toStdU16String(), failed);
  if (failed) return Told(QFileInfo(path).path(), QString::fromLocal8Bit(failed.message().c_str()));
  QSaveFile file(path);
  const bool opened = file.open(QIODevice::WriteOnly);
  file.cancelWriting();
  return Told(path, opened ? QStringLiteral("it cannot be written") : file.errorString());
}

}  // namespace ovl::host
