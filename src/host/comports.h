// What "Comport 1" to "Comport 16" mean on this machine. A number always means the same device, never the
// n-th of those that happen to be plugged in.
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace ovl::host {

inline constexpr int kComports = 16;

struct Comport {
  int number = 0;       // 1 to 16
  QString device;       // "/dev/ttyUSB0", "COM3" on Windows
  QString description;  // what the system knows of it; empty for most and for every pseudo-terminal
  bool present = false;
};

// The device of a number: where the link ports/com<n> in the program folder leads, or else a place in a fixed
// table. A link that leads nowhere is not passed over, so that the person learns of it.
QString ComportDevice(const QString& program_folder, int number);

// All sixteen, in order, with what the dialog tells about them.
std::vector<Comport> ListComports(const QString& program_folder);

// The sentence that the status bar shows when a port fails: number, device, the system's reason (bytes of
// Windows-1252), and for a refused permission the group whose members may use the device.
QString ComportProblem(int number, const QString& device, const std::string& reason);

}  // namespace ovl::host
