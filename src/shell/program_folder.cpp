#include "shell/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>

namespace ovl {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const QString& path) {
  return fs::path(path.toStdU16String());
}

void LinkRelease(const fs::path& shipped, const fs::path& own) {
  std::error_code failed;
  if (fs::is_symlink(own, failed) && !fs::exists(own, failed)) fs::remove(own, failed);
  if (fs::exists(own, failed)) return;
  fs::create_directory_symlink(shipped, own, failed);
  if (failed) fs::copy(shipped, own, fs::copy_options::recursive, failed);
}

}  // namespace

void LinkImages(const QString& images, const QString& folder) {
  std::error_code failed;
  for (const auto& family : fs::directory_iterator(PathOf(images), failed)) {
    if (!family.is_directory()) continue;
    const auto own = PathOf(folder) / family.path().filename();
    fs::create_directories(own, failed);
    for (const auto& release : fs::directory_iterator(family.path(), failed)) {
      if (release.is_directory()) LinkRelease(release.path(), own / release.path().filename());
    }
  }
}

QString ProgramFolder(const QString& given) {
  if (!given.isEmpty()) return QDir(given).absolutePath();
  const QDir beside(QCoreApplication::applicationDirPath());
  if (beside.exists(QStringLiteral("V1400")) && QFileInfo(beside.path()).isWritable()) return beside.path();
  const auto own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(own);
  LinkImages(QDir::cleanPath(beside.filePath(QStringLiteral("../share/ovl/images"))), own);
  return own;
}

}  // namespace ovl
