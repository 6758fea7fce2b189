#include "host/program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>

#include "core/failure.h"
#include "firmware/firmware_table.h"
#include "host/files.h"

namespace ovl::host {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const QString& path) {
  return fs::path(path.toStdU16String());
}

[[noreturn]] void Fail(const fs::path& path, const std::error_code& reason) {
  throw core::Failure(TextOf(path), reason);
}

void MakeFolder(const fs::path& path) {
  std::error_code failed;
  fs::create_directories(path, failed);
  if (failed) Fail(path, failed);
}

// A copy that is broken off must not pass for a whole one at the next start.
void CopyFolder(const fs::path& shipped, const fs::path& own, std::error_code& failed) {
  auto half = own;
  half += ".new";
  fs::remove_all(half, failed);
  fs::copy(shipped, half, fs::copy_options::recursive, failed);
  if (!failed) fs::rename(half, own, failed);
}

void LinkFolder(const fs::path& shipped, const fs::path& own) {
  std::error_code failed;
  if (fs::is_symlink(own, failed) && !fs::exists(own, failed)) fs::remove(own, failed);
  if (fs::exists(own, failed)) return;
  fs::create_directory_symlink(shipped, own, failed);
  if (failed) CopyFolder(shipped, own, failed);
  if (failed) Fail(own, failed);
}

}  // namespace

void LinkShipped(const QString& shipped, const QString& folder) {
  std::error_code absent;
  const auto own = PathOf(folder);
  MakeFolder(own);
  for (const auto& family : fs::directory_iterator(PathOf(shipped) / "images", absent)) {
    const auto own_family = own / family.path().filename();
    MakeFolder(own_family);
    for (const auto& release : fs::directory_iterator(family.path(), absent)) {
      LinkFolder(release.path(), own_family / release.path().filename());
    }
  }
  const auto manual = PathOf(shipped) / "Manual";
  if (fs::exists(manual, absent)) LinkFolder(manual, own / "Manual");
}

QString ProgramFolder(const QString& given) {
  if (!given.isEmpty()) return QDir(given).absolutePath();
  const QDir beside(QCoreApplication::applicationDirPath());
  const std::string first_family(firmware::FirmwareTable().front().version);
  if (beside.exists(QString::fromStdString(first_family)) && QFileInfo(beside.path()).isWritable())
    return beside.path();
  const auto own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  LinkShipped(QDir::cleanPath(beside.filePath(QStringLiteral("../share/ovl-software"))), own);
  return own;
}

}  // namespace ovl::host
