#include "shell/unsaved_copy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "core/failure.h"
#include "image/files.h"
#include "image/record_stream.h"
#include "shell/platform/text_codec.h"

namespace ovl {
namespace {

constexpr int kSoon = 1000;
constexpr QLatin1String kName("unsaved-");
constexpr QLatin1String kEnding(".bin");

bool Runs(const QString& process) {
  return QFile::exists(QStringLiteral("/proc/") + process);
}

QString FreeName(const QDir& folder) {
  for (int number = 1;; ++number) {
    const auto path = folder.filePath(QStringLiteral("rescued %1.bin").arg(number));
    if (!QFile::exists(path)) return path;
  }
}

}  // namespace

QString RescueCopies(const QString& folder) {
  const QDir in(folder);
  QStringList rescued;
  for (const auto& name : in.entryList({kName + QLatin1Char('*') + kEnding}, QDir::Files)) {
    if (Runs(name.mid(kName.size()).chopped(kEnding.size()))) continue;
    const auto path = FreeName(in);
    if (QFile::rename(in.filePath(name), path)) rescued.append(path);
  }
  return rescued.join(QLatin1Char('\n'));
}

UnsavedCopy::UnsavedCopy(const Application& app, const QString& folder)
    : app_(app),
      path_(QDir(folder).filePath(kName + QString::number(QCoreApplication::applicationPid()) + kEnding)) {
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  soon_.callOnTimeout([this] { Keep(); });
}

void UnsavedCopy::Follow() {
  if (seen_.Update(app_.image) && !soon_.isActive()) soon_.start();
}

void UnsavedCopy::Keep() {
  if (app_.image == app_.known_image) return Drop();
  try {
    WriteWhole(QFile::encodeName(path_).toStdString(), ReopenableStream(app_) + "\r\n");
  } catch (const Failure& failure) {
    if (problem) problem(FromSystem(failure.Subject() + ": " + failure.what()));
  }
}

void UnsavedCopy::Drop() {
  soon_.stop();
  QFile::remove(path_);
}

}  // namespace ovl
