#include "shell/manuals.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QUrl>

namespace ovl {
namespace {

bool OpenPath(const QString& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QString WhyNotRead(const QString& folder) {
  const QFileInfo info(folder);
  if (!info.exists()) return QStringLiteral("it does not exist");
  return info.isReadable() ? QStringLiteral("no program of the desktop opens folders")
                           : QStringLiteral("it may not be read");
}

}  // namespace

QString ManualFolder(const QString& program_folder) {
  return QDir(program_folder).filePath(QStringLiteral("Manual"));
}

QStringList ListManuals(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral("*.pdf")}, QDir::Files | QDir::Readable,
                                QDir::Name | QDir::IgnoreCase);
}

QString OpenManual(const QString& folder, const QString& file) {
  if (!file.isEmpty() && OpenPath(QDir(folder).filePath(file))) return {};
  const QFileInfo info(folder);
  if (info.isDir() && info.isReadable() && OpenPath(folder)) return {};
  return QStringLiteral("The manual folder %1 cannot be opened: %2.")
      .arg(QDir::toNativeSeparators(folder), WhyNotRead(folder));
}

void FillManualMenu(QMenu& menu, const QString& folder, std::function<void(const QString&)> tell) {
  const auto open = [folder, tell = std::move(tell)](const QString& file) {
    const auto problem = OpenManual(folder, file);
    if (!problem.isEmpty()) tell(problem);
  };
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, folder, open] {
    menu.clear();
    for (const auto& file : ListManuals(folder)) {
      auto title = QFileInfo(file).completeBaseName();
      menu.addAction(title.replace(QLatin1Char('&'), QStringLiteral("&&")), &menu,
                     [open, file] { open(file); });
    }
    if (!menu.isEmpty()) menu.addSeparator();
    menu.addAction(QStringLiteral("Open the manual folder"), &menu, [open] { open({}); });
  });
}

}  // namespace ovl
