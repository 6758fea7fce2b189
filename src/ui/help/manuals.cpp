#include "ui/help/manuals.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QProcess>
#include <QUrl>
#include <filesystem>
#include <utility>

#include "ui/kit/mnemonics.h"

namespace ovl::ui {
namespace {

using Report = std::function<void(const QString&)>;

bool OpenPath(const QString& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

// QDesktopServices::openUrl only reports whether it could start the opener of the desktop. So xdg-mime is
// asked first whether the desktop has a program for this kind of file. Without xdg-mime, the result of
// openUrl counts.
void AskForProgram(QObject& owner, const char* kind, std::function<void(bool)> then) {
  auto* question = new QProcess(&owner);
  QObject::connect(question, &QProcess::errorOccurred, question,
                   [question, then](QProcess::ProcessError error) {
                     if (error != QProcess::FailedToStart) return;
                     question->deleteLater();
                     then(true);
                   });
  QObject::connect(question, &QProcess::finished, question, [question, then] {
    question->deleteLater();
    then(!question->readAllStandardOutput().trimmed().isEmpty());
  });
  question->start(QStringLiteral("xdg-mime"),
                  {QStringLiteral("query"), QStringLiteral("default"), QString::fromLatin1(kind)});
}

void OpenFolder(QObject& owner, const QString& folder, const Report& report) {
  const auto fail = [folder, report](const QString& reason) {
    report(QCoreApplication::translate("HelpMenu", "The manual folder cannot be opened.\n\n%1: %2")
               .arg(QDir::toNativeSeparators(folder), reason));
  };
  std::error_code failed;
  std::filesystem::directory_iterator(folder.toStdU16String(), failed);
  if (failed) return fail(QString::fromLocal8Bit(failed.message().c_str()));
  AskForProgram(owner, "inode/directory", [folder, fail](bool has_browser) {
    if (!has_browser || !OpenPath(folder))
      fail(QCoreApplication::translate("HelpMenu", "no program is installed that opens folders"));
  });
}

}  // namespace

QString ManualFolder(const QString& program_folder) {
  return QDir(program_folder).filePath(QStringLiteral("Manual"));
}

QStringList ListManuals(const QString& folder) {
  return QDir(folder).entryList({QStringLiteral("*.pdf")}, QDir::Files | QDir::Readable,
                                QDir::Name | QDir::IgnoreCase);
}

void OpenManual(QObject& owner, const QString& folder, const QString& file, Report report) {
  if (file.isEmpty()) return OpenFolder(owner, folder, report);
  AskForProgram(owner, "application/pdf",
                [&owner, folder, file, report = std::move(report)](bool has_reader) {
                  if (!has_reader || !OpenPath(QDir(folder).filePath(file)))
                    OpenFolder(owner, folder, report);
                });
}

void FillManualMenu(QMenu& menu, const QString& folder, Report report) {
  const auto open = [&menu, folder, report = std::move(report)](const QString& file) {
    OpenManual(menu, folder, file, report);
  };
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, folder, open] {
    menu.clear();
    for (const auto& file : ListManuals(folder)) {
      auto title = QFileInfo(file).completeBaseName();
      menu.addAction(title.replace(QLatin1Char('&'), QStringLiteral("&&")), &menu,
                     [open, file] { open(file); });
    }
    if (!menu.isEmpty()) menu.addSeparator();
    menu.addAction(QCoreApplication::translate("HelpMenu", "Open the manual folder"), &menu,
                   [open] { open({}); });
    AssignItemMnemonics(menu);
  });
}

}  // namespace ovl::ui
