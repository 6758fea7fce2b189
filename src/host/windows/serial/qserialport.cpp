#include "host/windows/serial/qserialport.h"

#include <windows.h>

#include <QWinEventNotifier>
#include <utility>

namespace {

// An operation of the driver that runs in the background.
struct Operation {
  Operation() { state.hEvent = event; }
  ~Operation() { ::CloseHandle(event); }
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;

  bool Finished() const { return HasOverlappedIoCompleted(&state); }

  HANDLE event = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  OVERLAPPED state = {};
  bool running = false;
};

// It can report the error at which its port is closed, so it outlives its own report.
struct DeleteLater {
  void operator()(QWinEventNotifier* notifier) const {
    notifier->setEnabled(false);
    notifier->deleteLater();
  }
};
using Notifier = std::unique_ptr<QWinEventNotifier, DeleteLater>;

// Waits for the end of an operation that was cancelled, since the driver writes into its memory until then.
void Settle(HANDLE device, Operation& operation) {
  DWORD ignored = 0;
  if (operation.running) ::GetOverlappedResult(device, &operation.state, &ignored, TRUE);
  operation.running = false;
  ::ResetEvent(operation.event);
}

bool Started(BOOL result) {
  return result != 0 || ::GetLastError() == ERROR_IO_PENDING;
}

}  // namespace

struct QSerialPort::Device {
  explicit Device(HANDLE opened) : handle(opened) {}
  ~Device() {
    ::CancelIoEx(handle, nullptr);
    Settle(handle, read);
    Settle(handle, write);
    ::CloseHandle(handle);
  }
  Device(const Device&) = delete;
  Device& operator=(const Device&) = delete;

  HANDLE handle;
  Operation read;
  Operation write;
  Notifier read_ended{new QWinEventNotifier(read.event)};
  Notifier write_ended{new QWinEventNotifier(write.event)};
  char first = 0;      // where the next character arrives
  QByteArray sending;  // what the driver is sending
};

QSerialPort::QSerialPort() = default;

QSerialPort::~QSerialPort() = default;

bool QSerialPort::open(QIODevice::OpenMode) {
  close();
  const auto path = (QStringLiteral("\\\\.\\") + name_).toStdWString();
  const auto handle = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OVERLAPPED, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const auto reason = ::GetLastError();
    if (reason == ERROR_FILE_NOT_FOUND) return Refuse(DeviceNotFoundError, reason);
    return Refuse(reason == ERROR_ACCESS_DENIED ? PermissionError : OpenError, reason);
  }
  device_ = std::make_unique<Device>(handle);
  if (!Configure()) {
    const auto reason = ::GetLastError();
    close();
    return Refuse(reason == ERROR_INVALID_PARAMETER ? UnsupportedOperationError : OpenError, reason);
  }
  error_ = NoError;
  error_text_.clear();
  connect(device_->read_ended.get(), &QWinEventNotifier::activated, this, [this] {
    if (FetchReceived()) emit readyRead();
  });
  connect(device_->write_ended.get(), &QWinEventNotifier::activated, this, &QSerialPort::OnWritten);
  StartRead();
  return isOpen();
}

bool QSerialPort::Configure() {
  DCB settings = {};
  settings.DCBlength = sizeof settings;
  if (::GetCommState(device_->handle, &settings) == 0) return false;
  settings.BaudRate = static_cast<DWORD>(baud_);
  settings.ByteSize = static_cast<BYTE>(data_bits_);
  settings.Parity = static_cast<BYTE>(parity_ == NoParity    ? NOPARITY
                                      : parity_ == OddParity ? ODDPARITY
                                                             : EVENPARITY);
  settings.StopBits = ONESTOPBIT;
  settings.fBinary = TRUE;
  settings.fParity = parity_ != NoParity;
  settings.fOutxCtsFlow = settings.fOutxDsrFlow = settings.fDsrSensitivity = FALSE;
  settings.fOutX = settings.fInX = FALSE;
  settings.fDtrControl = DTR_CONTROL_ENABLE;
  settings.fRtsControl = RTS_CONTROL_ENABLE;
  settings.fErrorChar = settings.fNull = settings.fAbortOnError = FALSE;
  // Without timeouts a read ends with its last character.
  COMMTIMEOUTS never = {};
  return ::SetCommState(device_->handle, &settings) != 0 && ::SetCommTimeouts(device_->handle, &never) != 0;
}

bool QSerialPort::isOpen() const {
  return device_ != nullptr;
}

void QSerialPort::close() {
  device_.reset();
  received_.clear();
  outgoing_.clear();
}

void* QSerialPort::handle() const {
  return device_ ? device_->handle : INVALID_HANDLE_VALUE;
}

bool QSerialPort::Refuse(SerialPortError error, unsigned long reason) {
  error_ = error;
  error_text_ = qt_error_string(static_cast<int>(reason));
  return false;
}

// The receiver closes the port, so no caller may use the device afterwards.
void QSerialPort::Fail(unsigned long reason) {
  device_->read_ended->setEnabled(false);
  device_->write_ended->setEnabled(false);
  Refuse(ResourceError, reason);
  emit errorOccurred(ResourceError);
}

// One character is read in the background; those behind it are fetched when it has come.
void QSerialPort::StartRead() {
  auto& read = device_->read;
  read.running = Started(::ReadFile(device_->handle, &device_->first, 1, nullptr, &read.state));
  if (!read.running) return Fail(::GetLastError());
}

bool QSerialPort::FetchReceived() {
  const auto before = received_.size();
  while (device_ && device_->read.running && device_->read.Finished()) {
    auto& read = device_->read;
    DWORD count = 0;
    const bool sound = ::GetOverlappedResult(device_->handle, &read.state, &count, FALSE) != 0;
    read.running = false;
    if (!sound) {
      Fail(::GetLastError());
      break;
    }
    received_.append(&device_->first, static_cast<qsizetype>(count));
    FetchRest();
    StartRead();
  }
  return received_.size() > before;
}

void QSerialPort::FetchRest() {
  DWORD errors = 0;
  COMSTAT state = {};
  if (::ClearCommError(device_->handle, &errors, &state) == 0 || state.cbInQue == 0) return;
  QByteArray rest(static_cast<qsizetype>(state.cbInQue), Qt::Uninitialized);
  Operation read;
  DWORD count = 0;
  if (!Started(::ReadFile(device_->handle, rest.data(), state.cbInQue, nullptr, &read.state))) return;
  if (::GetOverlappedResult(device_->handle, &read.state, &count, TRUE) == 0) return;
  received_.append(rest.constData(), static_cast<qsizetype>(count));
}

QByteArray QSerialPort::readAll() {
  return std::exchange(received_, {});
}

bool QSerialPort::waitForReadyRead(int) {
  const bool received = isOpen() && FetchReceived();
  if (received) emit readyRead();
  return received;
}

qint64 QSerialPort::write(const char* bytes, qint64 size) {
  outgoing_.append(bytes, size);
  if (!device_->write.running) StartWrite();
  return size;
}

qint64 QSerialPort::bytesToWrite() const {
  const bool sending = device_ && device_->write.running && !device_->write.Finished();
  return outgoing_.size() + (sending ? device_->sending.size() : 0);
}

void QSerialPort::StartWrite() {
  auto& write = device_->write;
  device_->sending = std::exchange(outgoing_, {});
  write.running = Started(::WriteFile(device_->handle, device_->sending.constData(),
                                      static_cast<DWORD>(device_->sending.size()), nullptr, &write.state));
  if (!write.running) return Fail(::GetLastError());
}

void QSerialPort::OnWritten() {
  if (!device_ || !device_->write.running || !device_->write.Finished()) return;
  auto& write = device_->write;
  DWORD count = 0;
  const bool sound = ::GetOverlappedResult(device_->handle, &write.state, &count, FALSE) != 0;
  write.running = false;
  ::ResetEvent(write.event);
  if (!sound) return Fail(::GetLastError());
  if (!outgoing_.isEmpty()) StartWrite();
  emit bytesWritten(static_cast<qint64>(count));
}

bool QSerialPort::clear(Direction direction) {
  if (!device_) return false;
  if (direction == Input) {
    const bool purged = ::PurgeComm(device_->handle, PURGE_RXCLEAR) != 0;
    FetchReceived();
    received_.clear();
    return purged;
  }
  outgoing_.clear();
  const bool purged = ::PurgeComm(device_->handle, PURGE_TXABORT | PURGE_TXCLEAR) != 0;
  Settle(device_->handle, device_->write);
  return purged;
}
