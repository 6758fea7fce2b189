// What the serial toolkit leaves to the operating system: whether a character has left the transmitter, marks
// on bad characters, the speed that a driver really set, waits shorter than a millisecond. Where the system
// offers none of it, each operation says so and the clock alone decides.
#pragma once

#include <QSerialPort>
#include <QString>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ovl {

using LineHandle = decltype(QSerialPort().handle());

// The system's own words for an error number, in the program's bytes of Windows-1252.
std::string SystemText(int error);

// The group that owns a device; empty if there is none or the system has no groups.
QString DeviceGroup(const QString& device);

// Why the device can't be opened as a serial line, as an error number; 0 if nothing stands against it.
int ProbeDevice(const QString& device);

// Whether this program may lock devices against others at all.
bool CanLockDevices();

// The speed that the driver set, in bits a second; 0 if unknown.
int LineSpeed(LineHandle line);

// Makes the driver mark characters with parity errors, to be taken out by ParityMarks. Returns an error
// number, or 0. Setting the line's parity afterwards undoes it.
int MarkParityErrors(LineHandle line);

struct WriteResult {
  std::size_t taken = 0;  // may be fewer than given: the rest has to wait
  int error = 0;
};

// Hands bytes to the driver without waiting.
WriteResult WriteAtOnce(LineHandle line, std::string_view bytes);

// False when reading can't bring anything any more, because the device is gone.
bool LineAlive(LineHandle line);

// Many drivers can tell that characters still wait, few that the last one has left the chip.
enum class Transmitter { kSending, kUnknown, kEmpty };
Transmitter TransmitterState(LineHandle line);

// Fires once, in the event loop, after a time given in microseconds.
class ShortTimer {
 public:
  explicit ShortTimer(std::function<void()> fire);
  ~ShortTimer();
  ShortTimer(const ShortTimer&) = delete;
  ShortTimer& operator=(const ShortTimer&) = delete;

  void Start(std::chrono::microseconds time);
  void Stop();

 private:
  struct Source;
  std::unique_ptr<Source> source_;
};

}  // namespace ovl
