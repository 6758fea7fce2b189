// A serial port with the names of Qt's class, in the part that this program uses. Qt's own module would be a
// second source package to cross-build.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QObject>
#include <QString>
#include <memory>

class QSerialPort : public QObject {
  Q_OBJECT

 public:
  enum Parity { NoParity, OddParity, EvenParity };
  enum DataBits { Data7 = 7, Data8 = 8 };
  enum StopBits { OneStop };
  enum FlowControl { NoFlowControl };
  enum Direction { Input, Output };
  enum SerialPortError {
    NoError,
    DeviceNotFoundError,
    PermissionError,
    OpenError,
    UnsupportedOperationError,
    ReadError,
    WriteError,
    ResourceError
  };

  QSerialPort();
  ~QSerialPort() override;

  // All take effect at the next opening.
  void setPortName(const QString& name) { name_ = name; }
  void setBaudRate(int baud) { baud_ = baud; }
  void setDataBits(DataBits data_bits) { data_bits_ = data_bits; }
  void setParity(Parity parity) { parity_ = parity; }
  void setStopBits(StopBits) {}
  void setFlowControl(FlowControl) {}
  int baudRate() const { return baud_; }
  DataBits dataBits() const { return data_bits_; }
  Parity parity() const { return parity_; }

  // Raises DTR and RTS, as other systems do when a port is opened.
  bool open(QIODevice::OpenMode mode);
  bool isOpen() const;
  void close();
  void* handle() const;
  SerialPortError error() const { return error_; }
  QString errorString() const { return error_text_; }

  // Takes all bytes and sends them in the background.
  qint64 write(const char* bytes, qint64 size);
  qint64 bytesToWrite() const;

  qint64 bytesAvailable() const { return received_.size(); }
  QByteArray readAll();
  // Fetches what the driver holds, without waiting.
  bool waitForReadyRead(int milliseconds);

  bool clear(Direction direction);

 signals:
  void readyRead();
  void bytesWritten(qint64 bytes);
  void errorOccurred(QSerialPort::SerialPortError error);

 private:
  struct Device;

  bool Refuse(SerialPortError error, unsigned long reason);
  void Fail(unsigned long reason);
  bool Configure();
  void StartRead();
  bool FetchReceived();
  void FetchRest();
  void StartWrite();
  void OnWritten();

  QString name_;
  int baud_ = 0;
  DataBits data_bits_ = Data8;
  Parity parity_ = NoParity;
  SerialPortError error_ = NoError;
  QString error_text_;

  std::unique_ptr<Device> device_;  // nothing while the port is closed
  QByteArray received_;
  QByteArray outgoing_;  // behind what the driver is sending
};
