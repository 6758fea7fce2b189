#include "host/settings_store.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QVariant>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <system_error>

#include "host/files.h"
#include "host/system/disk.h"
#include "host/system/settings_place.h"
#include "host/text_codec.h"

namespace ovl::host {
namespace {

constexpr std::string_view kStoreKey = "SOFTWARE\\ORB\\OVL Software";
constexpr int kTrialSize = 512;
const auto kOrganisation = QStringLiteral("ORB");
const auto kApplication = QStringLiteral("OVL Software");

// Settings that the system keeps in no file are in its registry.
QString RegistryPlace() {
  return QStringLiteral("HKEY_LOCAL_MACHINE\\") + FromWindows1252(kStoreKey);
}

// Qt writes the bytes of the file to the disk, but not its name, nor that of a folder that it made.
core::Result KeepNames(const QString& file) {
  if (file.isEmpty()) return {};
  const auto folder = std::filesystem::path(QFileInfo(file).absolutePath().toStdU16String());
  for (const auto& names : {folder, folder.parent_path()}) {
    if (const int error = FlushFolder(names); error != 0)
      return core::Failure(TextOf(names), std::error_code(error, std::generic_category()));
  }
  return {};
}

// A name with a separator would address a group below the store's key.
bool IsOwnValue(std::string_view key, std::string_view value) {
  return key == kStoreKey && !value.empty() && value.find_first_of("/\\") == std::string_view::npos;
}

bool IsNumber(const QVariant& stored) {
  const auto type = stored.typeId();
  return type == QMetaType::Int || type == QMetaType::UInt;
}

// QSettings reads an unquoted text with commas, as people write it, as a list.
QString Text(const QVariant& stored) {
  return stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(QStringLiteral(", "))
                                                   : stored.toString();
}

// Takes the digits of an escape from the front of the text and gives the character that they stand for, in
// QSettings the last 16 bits of their number. Nothing if there is no digit.
std::optional<char> TakeCode(std::string_view& text, int base) {
  constexpr unsigned kLastBits = 0xFFFF, kLargestByte = 0xFF;
  const auto size = text.size();
  unsigned code = 0, digit = 0;
  while (!text.empty() && std::from_chars(text.data(), text.data() + 1, digit, base).ec == std::errc()) {
    code = (code * static_cast<unsigned>(base) + digit) & kLastBits;
    text.remove_prefix(1);
  }
  if (text.size() == size) return std::nullopt;
  return code <= kLargestByte ? static_cast<char>(code) : '?';
}

// The text of an INI file without its quotes and with its escapes \xHH and \OOO decoded. Other escapes are
// left out, because none of them can spell a character of the signs below.
std::string Unescaped(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const char character = text.front();
    text.remove_prefix(1);
    if (character != '\\') {
      if (character != '"') plain += character;
      continue;
    }
    const bool hexadecimal = text.starts_with('x');
    if (hexadecimal) text.remove_prefix(1);
    if (const auto decoded = TakeCode(text, hexadecimal ? 16 : 8)) {
      plain += *decoded;
    } else if (!hexadecimal && !text.empty()) {
      text.remove_prefix(1);
    }
  }
  return plain;
}

// QSettings builds a value of any type from a text such as "@Variant(...)", as large as the text says. The
// program stores only texts and numbers. "@@" begins a text with that sign; behind "@Variant(" stand the
// type's number and a byte that says whether the value is null.
bool HoldsTextsAndNumbers(std::string_view plain) {
  using namespace std::string_view_literals;
  for (auto at = plain.find('@'); at != std::string_view::npos; at = plain.find('@', at + 1)) {
    auto value = plain.substr(at + 1);
    if (value.starts_with('@')) ++at;
    if (value.starts_with("DateTime(")) return false;
    if (!value.starts_with("Variant(")) continue;
    value.remove_prefix("Variant("sv.size());
    if (!value.starts_with("\0\0\0\2\0"sv) && !value.starts_with("\0\0\0\3\0"sv)) return false;
  }
  return true;
}

}  // namespace

SettingsStore::SettingsStore(QString folder) : folder_(std::move(folder)) {}

QString SettingsStore::Path() const {
  const auto name = QStringLiteral("%1/%2.conf").arg(kOrganisation, kApplication);
  return folder_.isEmpty() ? MachineSettingsFile(name) : QDir(folder_).filePath(name);
}

bool SettingsStore::IsSound() const {
  QFile file(Path());
  return !file.open(QIODevice::ReadOnly) || HoldsTextsAndNumbers(Unescaped(file.readAll().toStdString()));
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

core::Result SettingsStore::Write(std::string_view key, std::string_view value, std::string_view text) const {
  if (!IsOwnValue(key, value)) return core::Failure(std::string(key), SystemText(EINVAL));
  if (!IsSound()) {
    const auto aside = Path() + QStringLiteral(".unsound");
    QFile::remove(aside);
    if (!QFile::rename(Path(), aside)) return WriteFailure();
  }
  const auto settings = Open();
  settings->setValue(FromWindows1252(value), FromWindows1252(text));
  settings->sync();
  if (settings->status() != QSettings::NoError) return WriteFailure();
  return KeepNames(Path());
}

std::string SettingsStore::WhyNotRead() const {
  const auto lacks_value = QCoreApplication::translate("Reason", "the value is missing");
  if (Path().isEmpty()) return FailureOf(RegistryPlace(), lacks_value).Text();
  QFile file(Path());
  const auto path = QDir::toNativeSeparators(file.fileName());
  if (!file.open(QIODevice::ReadOnly)) return FailureOf(path, file.errorString()).Text();
  const auto reason =
      IsSound() ? lacks_value : QCoreApplication::translate("Reason", "a value is neither text nor number");
  return FailureOf(path, reason).Text();
}

// QSettings does not report why it cannot write a file, so this tries it in the same way.
core::Failure SettingsStore::WriteFailure() const {
  if (Path().isEmpty())
    return {RegistryPlace().toStdString(), std::make_error_code(std::errc::permission_denied)};
  const auto path = QDir::toNativeSeparators(Path());
  const auto folder = QFileInfo(path).path();
  std::error_code failed;
  std::filesystem::create_directories(folder.toStdU16String(), failed);
  if (failed) return {QFile::encodeName(folder).toStdString(), failed.message()};
  QFile file(path);
  if (file.exists() && !file.open(QIODevice::ReadWrite)) return FailureOf(path, file.errorString());
  // A full disk has room for a name alone, so there are bytes to write.
  const auto trial = path + QStringLiteral(".trial");
  try {
    ReplaceFile(QFile::encodeName(trial).toStdString(), std::string(kTrialSize, '\n'), Flush::kNo);
  } catch (const core::Failure& reason) {
    return {QFile::encodeName(path).toStdString(), reason};
  }
  QFile::remove(trial);
  return FailureOf(path, QCoreApplication::translate("Reason", "it cannot be written"));
}

}  // namespace ovl::host
