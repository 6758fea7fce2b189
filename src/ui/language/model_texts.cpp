#include "ui/language/model_texts.h"

#include <QCoreApplication>
#include <algorithm>
#include <cctype>

#include "core/messages.h"

namespace ovl::ui {
namespace {

QString Translated(const char* context, std::string_view text, FromModel convert) {
  const std::string source(text);
  const auto translated = QCoreApplication::translate(context, source.c_str());
  return translated == QString::fromUtf8(source.c_str()) ? convert(source) : translated;
}

// All at once: a part can have "%1" in it.
QString Filled(const QString& text, const QStringList& parts) {
  QString filled;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const int part = text[at] == QLatin1Char('%') && at + 1 < text.size() ? text[at + 1].digitValue() : -1;
    filled += part > 0 ? parts.value(part - 1) : QString(text[at]);
    if (part > 0) ++at;
  }
  return filled;
}

}  // namespace

// The blanks and the colon around the caption stay where they are.
QString FormText(const std::string& caption) {
  // Most entries of long lists are numbers.
  const auto is_letter = [](unsigned char letter) { return std::isalpha(letter) != 0; };
  if (std::none_of(caption.begin(), caption.end(), is_letter)) return host::FromWindows1252(caption);
  const auto [pattern, values] = phrases::CaptionOf(caption);
  const auto translated = QCoreApplication::translate(phrases::kForm, pattern.c_str());
  if (pattern.empty() || translated == QString::fromUtf8(pattern.c_str()))
    return host::FromWindows1252(caption);
  const auto begin = caption.find_first_not_of(' ');
  const auto end = caption.find_last_not_of(" :") + 1;
  QStringList parts;
  for (const auto& value : values) parts.append(host::FromWindows1252(value));
  const auto words = Filled(translated, parts);
  return host::FromWindows1252(caption.substr(0, begin)) + words + host::FromWindows1252(caption.substr(end));
}

QString CaptionText(const std::string& caption) {
  return FormText(caption).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString Shown(const phrases::Words& words, FromModel data) {
  const auto* context = words.Context();
  if (context == nullptr) return data(words.English());
  if (context == phrases::kForm) return FormText(words.Source());
  QStringList parts;
  for (const auto& part : words.Parts()) parts.append(Shown(part, data));
  if (*context == '\0') return parts.join(QString());
  return Filled(Translated(context, words.Source(), data), parts);
}

BoxTexts TextsOf(const core::MessageBox& box) {
  const auto table = core::BoxTable();
  const auto row = std::find_if(table.begin(), table.end(),
                                [&](const core::BoxWords& words) { return words.topic == box.topic; });
  if (row == table.end()) return {host::FromWindows1252(box.title), host::FromSystem(box.text)};
  return {Translated("Box", row->title, host::FromWindows1252),
          Filled(Translated("Box", row->text, host::FromSystem), {host::FromSystem(box.detail)})};
}

QString FailureText(const core::Failure& failure) {
  return host::FromSystem(failure.Subject()) + QStringLiteral(": ") +
         Translated("Reason", failure.what(), host::FromSystem);
}

QString StatusNoteText(const core::Application& app) {
  const bool of_failure = app.noted_failure && app.noted_failure->Text() == app.StatusNote;
  return of_failure ? FailureText(*app.noted_failure) : host::FromSystem(app.StatusNote);
}

}  // namespace ovl::ui
