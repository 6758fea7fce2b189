#include "host/text_codec.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <system_error>

namespace ovl::host {
namespace {

constexpr unsigned kFirst = 0x80;

// The characters of the codes 80 to 9F. Every other code equals its character's number.
constexpr std::array<char16_t, 32> kCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned kEnd = kFirst + kCharacters.size();

std::optional<char> Code(char16_t character) {
  if (character < kFirst || (character >= kEnd && character <= 0xFF)) return static_cast<char>(character);
  const auto* const place = std::find(kCharacters.begin(), kCharacters.end(), character);
  if (place == kCharacters.end()) return std::nullopt;
  return static_cast<char>(kFirst + static_cast<unsigned>(place - kCharacters.begin()));
}

}  // namespace

QString FromWindows1252(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes) {
    const unsigned code = static_cast<unsigned char>(byte);
    text += code >= kFirst && code < kEnd ? QChar(kCharacters.at(code - kFirst)) : QChar(char16_t(code));
  }
  return text;
}

QString FromSystem(std::string_view text) {
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString decoded = decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  return decode.hasError() ? FromWindows1252(text) : decoded;
}

core::Failure FailureOf(const QString& subject, const QString& reason) {
  return {QFile::encodeName(subject).toStdString(), reason.toLocal8Bit().toStdString()};
}

std::string SystemText(int error) {
  const auto text = std::generic_category().message(error);
  return ToWindows1252(QString::fromLocal8Bit(text)).value_or("error " + std::to_string(error));
}

std::optional<std::string> ToWindows1252(QStringView text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text) {
    const auto code = Code(character.unicode());
    if (!code) return std::nullopt;
    bytes += *code;
  }
  return bytes;
}

}  // namespace ovl::host
