#include "host/text_codec.h"

#include <QFile>
#include <QStringDecoder>
#include <system_error>

#include "codecs/windows_1252.h"

namespace ovl::host {

QString FromWindows1252(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char byte : bytes)
    text += QChar(static_cast<char16_t>(codecs::CharacterOfCode(static_cast<unsigned char>(byte))));
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
    const auto code = codecs::CodeOfCharacter(character.unicode());
    if (!code) return std::nullopt;
    bytes += *code;
  }
  return bytes;
}

}  // namespace ovl::host
