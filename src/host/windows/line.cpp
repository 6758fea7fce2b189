#include "host/system/line.h"

#include "host/windows/last_error.h"

namespace ovl::host {
namespace {

DCB EmptySettings() {
  DCB settings = {};
  settings.DCBlength = sizeof settings;
  return settings;
}

}  // namespace

int LineSpeed(LineHandle line) {
  auto settings = EmptySettings();
  return ::GetCommState(line, &settings) != 0 ? static_cast<int>(settings.BaudRate) : 0;
}

ParityCheck CheckParity(LineHandle line) {
  auto settings = EmptySettings();
  if (::GetCommState(line, &settings) == 0) return {ErrorNumber(::GetLastError()), false};
  settings.fParity = TRUE;
  settings.fErrorChar = TRUE;
  settings.ErrorChar = '?';
  // Otherwise the driver refuses all further calls after a bad character.
  settings.fAbortOnError = FALSE;
  if (::SetCommState(line, &settings) == 0) return {ErrorNumber(::GetLastError()), false};
  return {0, false};
}

// Only an operation of the port itself can be left unfinished, so the port takes all bytes.
WriteResult WriteAtOnce(LineHandle, std::string_view) {
  return {};
}

bool LineAlive(LineHandle line) {
  DWORD errors = 0;
  return ::ClearCommError(line, &errors, nullptr) != 0;
}

// Discarding input does not end a read here, so a read fails only on a lost line.
bool ReadAgain(QSerialPort&) {
  return false;
}

Waiting WaitingCharacters(LineHandle line) {
  DWORD errors = 0;
  COMSTAT state = {};
  if (::ClearCommError(line, &errors, &state) == 0) return {false, ErrorNumber(::GetLastError())};
  return {state.cbOutQue > 0, 0};
}

// The port restores no settings when it closes.
struct LinePreset::Held {};
LinePreset::LinePreset(const QString&, int, int, char) {}
LinePreset::~LinePreset() = default;

}  // namespace ovl::host
