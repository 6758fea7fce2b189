// The model's texts are bytes of Windows-1252, those of Qt are Unicode.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>
#include <string_view>

#include "core/failure.h"

namespace ovl::host {

// Every byte has a character. The five codes that Windows-1252 leaves unused (81 8D 8F 90 9D) become the
// control characters of the same number, so that every byte converts back to itself.
QString FromWindows1252(std::string_view bytes);

// A text from the operating system, such as a path or the reason of an error: UTF-8, or Windows-1252 if it is
// not valid UTF-8.
QString FromSystem(std::string_view text);

// A failure whose subject and reason come from Qt. FromSystem converts its text back.
core::Failure FailureOf(const QString& subject, const QString& reason);

// The system's own words for an error number, in bytes of Windows-1252.
std::string SystemText(int error);

// Nothing when the text holds a character without a code.
std::optional<std::string> ToWindows1252(QStringView text);

}  // namespace ovl::host
