#include "ui/app/unsaved_copy.h"

#include <QCoreApplication>
#include <QFile>
#include <utility>

#include "acts/backup.h"
#include "acts/unsaved_changes.h"
#include "core/failure.h"
#include "host/files.h"
#include "host/text_codec.h"

namespace ovl::ui {
namespace {

constexpr int kSoon = 1000;
constexpr QLatin1String kUnsaved("unsaved"), kRescued("rescued");

QString NameOf(QLatin1String what, const QString& firmware, int number) {
  return QStringLiteral("%1 %2 %3.bin").arg(what, firmware).arg(number);
}

// A lock never becomes stale by its age, only by the end of its process.
std::unique_ptr<QLockFile> Lock(const QString& path) {
  auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
  lock->setStaleLockTime(0);
  return lock;
}

int FreeNumber(const QDir& folder, QLatin1String what, const QString& firmware, int from = 1) {
  while (folder.exists(NameOf(what, firmware, from))) ++from;
  return from;
}

// QLockFile does not report why it cannot create a file, so this tries it with a file. A full disk has room
// for its name alone.
QString WhyNotCreated(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return file.errorString();
  const bool written = file.putChar('\n') && file.flush();
  const auto reason = written
                          ? QCoreApplication::translate("UnsavedCopy", "its lock file could not be created")
                          : file.errorString();
  file.remove();
  return reason;
}

bool OpensAgain(const QString& path, const QString& firmware) {
  try {
    const auto bytes = host::ReadFile(QFile::encodeName(path).toStdString());
    return acts::OpensUnder(bytes, host::ToWindows1252(firmware).value_or(""));
  } catch (const core::Failure&) {
    return false;
  }
}

}  // namespace

QStringList RescueCopies(const QString& folder) {
  const QDir in(folder);
  QStringList rescued;
  for (const auto& name : in.entryList({kUnsaved + QStringLiteral(" * *.bin")}, QDir::Files)) {
    const auto lock = Lock(in.filePath(name));
    if (!lock->tryLock(0)) continue;
    const auto firmware = name.section(QLatin1Char(' '), 1, 1);
    if (!OpensAgain(in.filePath(name), firmware)) continue;
    const auto kept = NameOf(kRescued, firmware, FreeNumber(in, kRescued, firmware));
    if (QFile::rename(in.filePath(name), in.filePath(kept))) rescued.append(kept);
  }
  return rescued;
}

UnsavedCopy::UnsavedCopy(const core::Application& app, const QString& folder) : app_(app), folder_(folder) {
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  soon_.callOnTimeout([this] { app_.handling ? soon_.start() : WriteNow(); });
}

// Takes a name that no file has and no other program is about to take.
bool UnsavedCopy::TakeName() {
  constexpr int kNamesToTry = 100;
  const auto firmware = host::FromWindows1252(acts::FirmwareName(app_));
  for (int number = 0; lock_ == nullptr && number < kNamesToTry;) {
    number = FreeNumber(folder_, kUnsaved, firmware, number + 1);
    path_ = folder_.filePath(NameOf(kUnsaved, firmware, number));
    auto lock = Lock(path_);
    if (lock->tryLock(0))
      lock_ = std::move(lock);
    else if (lock->error() != QLockFile::LockFailedError)
      break;
  }
  return lock_ != nullptr;
}

void UnsavedCopy::WriteSoonIfChanged() {
  const bool other_image = seen_.Update(app_.image), other_known = known_.Update(app_.known_image);
  if ((other_image || other_known) && !soon_.isActive()) soon_.start();
}

void UnsavedCopy::WritePending() {
  if (soon_.isActive()) WriteNow();
}

void UnsavedCopy::End(bool remove) {
  soon_.stop();
  if (remove) Remove();
}

void UnsavedCopy::WriteNow() {
  soon_.stop();
  if (!acts::HasUnsavedChanges(app_)) return Remove();
  Report(Write());
}

core::Result UnsavedCopy::Write() {
  if (!TakeName()) return host::FailureOf(path_, WhyNotCreated(path_));
  return acts::SaveBackup(app_, QFile::encodeName(path_).toStdString());
}

QString UnsavedCopy::Keep() {
  if (!acts::HasUnsavedChanges(app_)) return {};
  if (const auto written = Write(); !written.Ok()) throw core::Failure(written.Problem());
  const auto firmware = host::FromWindows1252(acts::FirmwareName(app_));
  const auto kept = folder_.filePath(NameOf(kRescued, firmware, FreeNumber(folder_, kRescued, firmware)));
  QFile copy(path_);
  if (!copy.rename(kept)) throw host::FailureOf(kept, copy.errorString());
  lock_.reset();
  return kept;
}

void UnsavedCopy::Report(const core::Result& written) const {
  if (report) report(written);
}

void UnsavedCopy::Remove() {
  soon_.stop();
  if (lock_ == nullptr) return;
  QFile::remove(path_);
  lock_.reset();
}

}  // namespace ovl::ui
