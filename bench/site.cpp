#include "site.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "images/default_images.h"

namespace ovl::bench {

Site::Site() {
  images::WriteDefaultImages(folder_.path().toStdString(), {kVersion, kRelease});
  QDir(folder_.path()).mkpath(QStringLiteral("store/ORB"));
  QFile settings(folder_.filePath(QStringLiteral("store/ORB/OVL Software.conf")));
  if (settings.open(QIODevice::WriteOnly)) {
    settings.write(QStringLiteral("[General]\nVersion=%1\nRelease=%2\n").arg(kVersion, kRelease).toUtf8());
  }
}

Site::~Site() {
  StopUnit();
}

bool Site::StartUnit(int speed) {
  StopUnit();
  unit_.start(
      QCoreApplication::applicationDirPath() + QStringLiteral("/ovl-unit"),
      {QStringLiteral("--firmware"), QStringLiteral("%1%2").arg(kVersion, kRelease),
       QStringLiteral("--memory"), folder_.filePath(QStringLiteral("unit.bin")), QStringLiteral("--link"),
       folder_.filePath(QStringLiteral("ports/com1")), QStringLiteral("--speed"), QString::number(speed)});
  return unit_.waitForStarted() && unit_.waitForReadyRead();
}

void Site::StopUnit() {
  if (unit_.state() == QProcess::NotRunning) return;
  unit_.terminate();
  unit_.waitForFinished();
}

}  // namespace ovl::bench
