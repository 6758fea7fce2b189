// The devices of serial ports, as the operating system names and guards them.
#pragma once

#include <QString>

namespace ovl::host {

// The device behind a comport number that has no link.
QString DeviceOf(int number);

// The group that owns a device; empty if there is none or the system has no groups.
QString DeviceGroup(const QString& device);

// Why the device cannot be opened as a serial port, as an error number. 0 if it can.
int ProbeDevice(const QString& device);

// Whether this program is allowed to lock devices.
bool CanLockDevices();

}  // namespace ovl::host
