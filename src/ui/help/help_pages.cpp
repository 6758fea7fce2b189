#include "ui/help/help_pages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace ovl::ui {
namespace {

struct ReadPage {
  QString text;
  QString problem;
};

ReadPage ReadFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {{}, file.errorString()};
  return {QString::fromUtf8(file.readAll()), {}};
}

QString WithoutMissingPictures(const QString& text, const QString& folder) {
  static const QRegularExpression picture(QStringLiteral("^!\\[.*\\]\\((.+)\\)$"));
  QStringList kept;
  for (const auto& line : text.split(QLatin1Char('\n'))) {
    const auto match = picture.match(line);
    if (!match.hasMatch() || QFile::exists(QDir(folder).filePath(match.captured(1)))) kept.append(line);
  }
  return kept.join(QLatin1Char('\n'));
}

}  // namespace

HelpPages::HelpPages(QString folder) : folder_(std::move(folder)) {
  static const QRegularExpression link(QStringLiteral("^- \\[(.+)\\]\\((.+\\.md)\\)$"));
  for (const auto& line : ReadFile(QDir(folder_).filePath(QStringLiteral("contents.md"))).text.split('\n')) {
    const auto page = link.match(line);
    if (page.hasMatch()) contents_.push_back({page.captured(1), page.captured(2)});
    if (line.startsWith(QLatin1String("## "))) contents_.push_back({line.mid(3), {}});
  }
}

QString HelpPages::Text(const QString& file, const QString& pictures) const {
  const auto path = QDir(folder_).filePath(file);
  const auto page = ReadFile(path);
  if (!page.problem.isEmpty()) {
    return QCoreApplication::translate(
               "HelpWindow",
               "# This page is missing\n\nThe help page %1 cannot be read: %2. The program works without it.")
        .arg(QDir::toNativeSeparators(path), page.problem);
  }
  return WithoutMissingPictures(page.text, pictures);
}

std::vector<HelpHit> HelpPages::Search(const QString& words) const {
  std::vector<HelpHit> hits;
  const auto sought = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (sought.isEmpty()) return hits;
  for (const auto& entry : contents_) {
    if (entry.file.isEmpty()) continue;
    for (const auto& line : ReadFile(QDir(folder_).filePath(entry.file)).text.split(QLatin1Char('\n'))) {
      const auto plain = PlainLine(line);
      const bool has_all = std::all_of(sought.begin(), sought.end(), [&](const QString& word) {
        return plain.contains(word, Qt::CaseInsensitive);
      });
      if (has_all) hits.push_back({entry.file, entry.title, plain});
    }
  }
  return hits;
}

QString AnchorOf(const QString& heading) {
  static const QRegularExpression between(QStringLiteral("[^a-z0-9]+"));
  auto anchor = heading.toLower();
  anchor.replace(between, QStringLiteral("-"));
  while (anchor.startsWith(QLatin1Char('-'))) anchor.remove(0, 1);
  while (anchor.endsWith(QLatin1Char('-'))) anchor.chop(1);
  return anchor;
}

QString PlainLine(const QString& line) {
  static const QRegularExpression link(QStringLiteral("!?\\[([^\\]]*)\\]\\([^)]*\\)"));
  static const QRegularExpression signs(QStringLiteral("^[#>|\\-\\s]+|[`*]|\\|$"));
  auto plain = line;
  plain.replace(link, QStringLiteral("\\1")).remove(signs);
  return plain.replace(QLatin1Char('|'), QStringLiteral("·")).simplified();
}

}  // namespace ovl::ui
