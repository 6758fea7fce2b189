#include "host/windows/serial/qserialportinfo.h"

#include <windows.h>
// These two need the first one.
#include <devguid.h>
#include <setupapi.h>

#include <QHash>
#include <array>

namespace {

constexpr DWORD kLongestText = 256;
using Text = std::array<wchar_t, kLongestText>;

QString FromText(const Text& text, DWORD bytes) {
  const auto read = QString::fromWCharArray(text.data(), static_cast<qsizetype>(bytes / sizeof(wchar_t)));
  return read.section(QChar(u'\0'), 0, 0);
}

QString TextOf(HKEY key, const wchar_t* name) {
  Text text = {};
  DWORD bytes = sizeof text;
  const auto result = ::RegGetValueW(key, nullptr, name, RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
  return result == ERROR_SUCCESS ? FromText(text, bytes) : QString();
}

// What the device manager calls the ports, by their names.
QHash<QString, QString> Descriptions() {
  QHash<QString, QString> descriptions;
  const auto devices = ::SetupDiGetClassDevsW(&GUID_DEVCLASS_PORTS, nullptr, nullptr, DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) return descriptions;
  SP_DEVINFO_DATA device = {};
  device.cbSize = sizeof device;
  for (DWORD at = 0; ::SetupDiEnumDeviceInfo(devices, at, &device) != 0; ++at) {
    auto* const key = ::SetupDiOpenDevRegKey(devices, &device, DICS_FLAG_GLOBAL, 0, DIREG_DEV, KEY_READ);
    if (key == INVALID_HANDLE_VALUE) continue;
    const auto name = TextOf(key, L"PortName");
    ::RegCloseKey(key);
    Text text = {};
    DWORD bytes = 0;
    const bool described =
        ::SetupDiGetDeviceRegistryPropertyW(devices, &device, SPDRP_DEVICEDESC, nullptr,
                                            reinterpret_cast<BYTE*>(text.data()), sizeof text, &bytes) != 0;
    if (described) descriptions.insert(name, FromText(text, bytes));
  }
  ::SetupDiDestroyDeviceInfoList(devices);
  return descriptions;
}

// The names of all ports that a driver serves, also of those that the device manager does not know.
QStringList Names() {
  QStringList names;
  HKEY map = nullptr;
  const auto* const place = L"HARDWARE\\DEVICEMAP\\SERIALCOMM";
  if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, place, 0, KEY_READ, &map) != ERROR_SUCCESS) return names;
  Text device = {};
  DWORD length = kLongestText;
  for (DWORD at = 0;
       ::RegEnumValueW(map, at, device.data(), &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
       ++at) {
    names.append(TextOf(map, device.data()));
    length = kLongestText;
  }
  ::RegCloseKey(map);
  return names;
}

}  // namespace

QList<QSerialPortInfo> QSerialPortInfo::availablePorts() {
  const auto descriptions = Descriptions();
  QList<QSerialPortInfo> ports;
  for (const auto& name : Names()) {
    QSerialPortInfo port;
    port.name_ = name;
    port.description_ = descriptions.value(name);
    ports.append(port);
  }
  return ports;
}
