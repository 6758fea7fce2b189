// The devices behind "Comport 1" to "Comport 16" on this machine. A number always means the same device,
// whatever else is plugged in.
#pragma once

#include <QString>
#include <vector>

#include "core/failure.h"

namespace ovl::host {

inline constexpr int kComports = 16;

struct Comport {
  int number = 0;       // 1 to 16
  QString device;       // "/dev/ttyUSB0", "COM3" on Windows
  QString description;  // from the system; empty for most devices and for every pseudo-terminal
  bool present = false;
};

// The device of a number: the target of the link ports/com<n> in the program folder, or an entry of a fixed
// table if there is no link. The target of a broken link is returned too, so that opening it fails with a
// reason.
QString ComportDevice(const QString& program_folder, int number);

// All sixteen in order, as the dialog lists them.
std::vector<Comport> ListComports(const QString& program_folder);

// The sentence that the status bar shows when a port fails: number, device and the system's reason. If
// permission is denied, it also names the group whose members may use the device.
QString ComportProblem(int number, const core::Failure& failure);

}  // namespace ovl::host
