#include "host/system/device.h"

#include "host/windows/last_error.h"

namespace ovl::host {

QString DeviceOf(int number) {
  return QStringLiteral("COM%1").arg(number);
}

QString DeviceGroup(const QString&) {
  return {};
}

int ProbeDevice(const QString& device) {
  const auto name = (QStringLiteral("\\\\.\\") + device).toStdWString();
  const auto probe =
      ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (probe == INVALID_HANDLE_VALUE) {
    const auto error = ::GetLastError();
    // Every user may open every port, and only one program at a time can.
    return error == ERROR_ACCESS_DENIED ? EBUSY : ErrorNumber(error);
  }
  DCB settings = {};
  settings.DCBlength = sizeof settings;
  const bool serial = ::GetCommState(probe, &settings) != 0;
  ::CloseHandle(probe);
  return serial ? 0 : ENOTTY;
}

bool CanLockDevices() {
  return false;
}

}  // namespace ovl::host
