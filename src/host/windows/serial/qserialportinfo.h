// The serial ports of the machine, with the names of Qt's class, in the part that this program uses.
#pragma once

#include <QList>
#include <QString>

class QSerialPortInfo {
 public:
  static QList<QSerialPortInfo> availablePorts();

  QString portName() const { return name_; }
  QString systemLocation() const { return QStringLiteral("\\\\.\\") + name_; }
  QString description() const { return description_; }

 private:
  QString name_;
  QString description_;
};
