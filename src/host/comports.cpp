#include "host/comports.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSerialPortInfo>

#include "host/system/device.h"
#include "host/text_codec.h"

namespace ovl::host {
namespace {

bool Matches(const QSerialPortInfo& info, const QString& device) {
  return info.systemLocation() == device || info.portName() == device;
}

}  // namespace

QString ComportDevice(const QString& program_folder, int number) {
  const QFileInfo link(QStringLiteral("%1/ports/com%2").arg(program_folder).arg(number));
  if (!link.isSymLink()) return link.exists() ? link.absoluteFilePath() : DeviceOf(number);
  // The lock against a second program goes by the name, so the name must be the device's and not the link's.
  const auto target = link.canonicalFilePath();
  return target.isEmpty() ? link.symLinkTarget() : target;
}

std::vector<Comport> ListComports(const QString& program_folder) {
  const auto known = QSerialPortInfo::availablePorts();
  std::vector<Comport> comports;
  for (int number = 1; number <= kComports; ++number) {
    Comport comport{number, ComportDevice(program_folder, number), {}, false};
    comport.present = QFileInfo::exists(comport.device);
    for (const auto& info : known) {
      if (!Matches(info, comport.device)) continue;
      comport.description = info.description();
      comport.present = true;
    }
    comports.push_back(comport);
  }
  return comports;
}

QString ComportProblem(int number, const core::Failure& failure) {
  const auto device = QFile::decodeName(failure.Subject().c_str());
  auto sentence = QCoreApplication::translate("StatusBar", "Comport %1, %2: %3.")
                      .arg(QString::number(number), device, FromWindows1252(failure.what()));
  if (failure.Is(std::errc::permission_denied)) {
    const auto group = DeviceGroup(device);
    if (!group.isEmpty()) {
      sentence += QLatin1Char(' ') +
                  QCoreApplication::translate("StatusBar", "The device belongs to the group %1.").arg(group);
    }
  }
  return sentence;
}

}  // namespace ovl::host
