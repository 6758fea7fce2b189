// The model's texts are bytes of Windows-1252, the toolkit's are Unicode.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>
#include <string>
#include <string_view>

namespace ovl::host {

// Every byte has a character; the five codes that Windows-1252 leaves unused (81 8D 8F 90 9D) stand for
// the control characters of the same number, so that all 256 make the round trip.
QString FromWindows1252(std::string_view bytes);

// A text in which the system has its say, such as a path or a reason: UTF-8, or single bytes if it is none.
QString FromSystem(std::string_view text);

// Nothing when the text holds a character without a code.
std::optional<std::string> ToWindows1252(QStringView text);

}  // namespace ovl::host
