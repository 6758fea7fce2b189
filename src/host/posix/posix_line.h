// System calls for what QSerialPort lacks: characters that still wait in the driver, marks on bad characters,
// the speed that a driver really set, waits shorter than a millisecond. On systems without them each
// operation returns a neutral value, and the clock alone decides.
#pragma once

#include <QSerialPort>
#include <QString>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ovl::host {

using LineHandle = decltype(QSerialPort().handle());

// The system's own words for an error number, in the program's bytes of Windows-1252.
std::string SystemText(int error);

// The group that owns a device; empty if there is none or the system has no groups.
QString DeviceGroup(const QString& device);

// Why the device cannot be opened as a serial port, as an error number. 0 if it can.
int ProbeDevice(const QString& device);

// Whether this program is allowed to lock devices.
bool CanLockDevices();

// The speed that the driver set, in bits a second; 0 if unknown.
int LineSpeed(LineHandle line);

// Makes the driver mark characters with parity errors, as ParityMarks expects. Returns an error number, or 0.
// Setting the line's parity afterwards undoes it.
int MarkParityErrors(LineHandle line);

struct WriteResult {
  std::size_t taken = 0;  // may be less than given; the rest has to wait
  int error = 0;
};

// Hands bytes to the driver without waiting.
WriteResult WriteAtOnce(LineHandle line, std::string_view bytes);

// False if nothing can be read any more, because the device is gone.
bool LineAlive(LineHandle line);

// Whether the driver still holds characters. No driver reports reliably when the last one was sent: some
// adapters never do, others do as soon as their own buffer is empty.
bool CharactersWait(LineHandle line);

// Sets a closed device as it is about to be opened, and holds it open as long as the object lives.
// QSerialPort restores the settings that it found when it closes a port, at once and in the middle of the
// last character, so it must find the right ones. A device that another program has locked is left alone.
class LinePreset {
 public:
  LinePreset(const QString& device, int baud, int data_bits, char parity);
  ~LinePreset();
  LinePreset(const LinePreset&) = delete;
  LinePreset& operator=(const LinePreset&) = delete;

 private:
  int descriptor_ = -1;
};

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

}  // namespace ovl::host
