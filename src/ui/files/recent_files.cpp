#include "ui/files/recent_files.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

#include "ui/kit/mnemonics.h"

namespace ovl::ui {
namespace {

constexpr qsizetype kMost = 8;
constexpr int kWidestPath = 60;  // in characters
const QString kKey = QStringLiteral("files");

}  // namespace

RecentFiles::RecentFiles(const QString& folder)
    : store_(QDir(folder).filePath(QStringLiteral("recent files.ini"))) {}

QStringList RecentFiles::Paths() const {
  return QSettings(store_, QSettings::IniFormat).value(kKey).toStringList().mid(0, kMost);
}

void RecentFiles::Add(const QString& path) {
  auto paths = Paths();
  paths.removeAll(path);
  paths.prepend(path);
  QSettings(store_, QSettings::IniFormat).setValue(kKey, paths.mid(0, kMost));
}

void RecentFiles::Clear() {
  QSettings(store_, QSettings::IniFormat).remove(kKey);
}

void RecentFiles::FillWhenOpened(QMenu& menu, std::function<void(const QString& path)> open) {
  QObject::connect(&menu, &QMenu::aboutToShow, &menu,
                   [this, &menu, open = std::move(open)] { Fill(menu, open); });
}

void RecentFiles::Fill(QMenu& menu, const std::function<void(const QString& path)>& open) {
  menu.clear();
  const auto paths = Paths();
  const auto width = kWidestPath * menu.fontMetrics().averageCharWidth();
  int number = 0;
  for (const auto& path : paths) {
    auto title = menu.fontMetrics().elidedText(QDir::toNativeSeparators(path), Qt::ElideMiddle, width);
    title.replace(QLatin1Char('&'), QStringLiteral("&&"));
    auto* item =
        menu.addAction(QStringLiteral("&%1 ").arg(++number) + title, &menu, [open, path] { open(path); });
    item->setEnabled(QFileInfo(path).isFile());
  }
  if (paths.isEmpty())
    menu.addAction(QCoreApplication::translate("RecentFiles", "No file yet"))->setEnabled(false);
  menu.addSeparator();
  menu.addAction(QCoreApplication::translate("RecentFiles", "Clear this list"), &menu, [this] { Clear(); })
      ->setEnabled(!paths.isEmpty());
  AssignItemMnemonics(menu);
}

}  // namespace ovl::ui
