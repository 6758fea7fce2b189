// The calls to an open serial line that QSerialPort lacks: characters that still wait in the driver, parity
// errors, the speed that a driver really set. Where a system has no such call, the operation returns the
// neutral value that it names, and the clock alone decides.
#pragma once

#include <QSerialPort>
#include <QString>
#include <cstddef>
#include <memory>
#include <string_view>

namespace ovl::host {

using LineHandle = decltype(QSerialPort().handle());

// The speed that the driver set, in bits a second; 0 if unknown.
int LineSpeed(LineHandle line);

struct ParityCheck {
  int error = 0;  // an error number if the driver refused
  // Whether the driver marks each bad character for ParityMarks, or itself replaces it by "?".
  bool marked = false;
};

// Makes the driver check the parity of characters that arrive. Setting the line's parity afterwards undoes
// it.
ParityCheck CheckParity(LineHandle line);

struct WriteResult {
  std::size_t taken = 0;  // may be less than given, also none; the rest has to wait
  int error = 0;
};

// Hands bytes to the driver without waiting.
WriteResult WriteAtOnce(LineHandle line, std::string_view bytes);

// False if nothing can be read any more, because the device is gone.
bool LineAlive(LineHandle line);

// After a failed read. Makes the port read again if the line works all the same, and returns false if it is
// lost.
bool ReadAgain(QSerialPort& port);

struct Waiting {
  bool characters = false;  // the driver still holds some; false if unknown
  int error = 0;            // an error number if the line is lost
};

// No driver reports reliably when the last character was sent: some adapters never do, others do as soon as
// their own buffer is empty.
Waiting WaitingCharacters(LineHandle line);

// Sets a closed device as it is about to be opened, and holds it open as long as the object lives if the
// system allows that. QSerialPort restores the settings that it found when it closes a port, at once and in
// the middle of the last character, so it must find the right ones. A device that another program has locked
// is left alone.
class LinePreset {
 public:
  LinePreset(const QString& device, int baud, int data_bits, char parity);
  ~LinePreset();
  LinePreset(const LinePreset&) = delete;
  LinePreset& operator=(const LinePreset&) = delete;

 private:
  struct Held;
  std::unique_ptr<Held> held_;
};

}  // namespace ovl::host
