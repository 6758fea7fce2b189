#include "ui/language/language.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace ovl::ui {
namespace {

bool Install(const QString& name, const QString& folder) {
  auto translator = std::make_unique<QTranslator>(qApp);
  if (!translator->load(name, folder)) return false;
  return QCoreApplication::installTranslator(translator.release());
}

// Qt's own texts, such as those of its file dialog, are where Qt is installed, if at all. Without texts of
// the program they would be a mixture.
bool InstallAll(const QString& code) {
  const auto own = QStringLiteral("ovl_") + code, of_qt = QStringLiteral("qtbase_") + code;
  if (!QFileInfo::exists(QStringLiteral(":/translations/%1.qm").arg(own))) return false;
  Install(of_qt, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  return Install(own, QStringLiteral(":/translations"));
}

}  // namespace

void UseLanguage(const QString& code) {
  qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
  const auto wanted = code.isEmpty() ? QLocale::system().uiLanguages() : QStringList(code);
  for (const auto& language : wanted) {
    const auto short_code = language.section(QLatin1Char('-'), 0, 0);
    if (short_code == QLatin1String("en") || InstallAll(short_code)) return;
  }
}

}  // namespace ovl::ui
