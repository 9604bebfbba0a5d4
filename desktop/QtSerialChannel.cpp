// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtSerialChannel.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tracewell {
namespace {

QSerialPort::Parity parityOf(std::int16_t code) {
  switch (code) {
    case 0:
      return QSerialPort::NoParity;
    case 3:
      return QSerialPort::OddParity;
    default:
      return QSerialPort::EvenParity;
  }
}

/// Closing the device must not reset the instrument by dropping its control lines. Set before the
/// library opens the device, since it puts back at closing what it has found at opening. What fails
/// here, opening reports.
void keepControlLinesOnClose(const QString& device) {
  const QString path = QDir(QStringLiteral("/dev")).absoluteFilePath(device);
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
  if (descriptor < 0) return;
  termios attributes;
  if (tcgetattr(descriptor, &attributes) == 0) {
    attributes.c_cflag &= ~static_cast<tcflag_t>(HUPCL);
    tcsetattr(descriptor, TCSANOW, &attributes);
  }
  ::close(descriptor);
}

/// A device that was pulled out, and the far end of a pseudo-terminal that was closed, hang up.
bool isThere(int descriptor) {
  pollfd line{descriptor, POLLIN, 0};
  return ::poll(&line, 1, 0) >= 0 && (line.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

}  // namespace

void setLine(QSerialPort& port, const LineSettings& settings) {
  port.setBaudRate(settings.baudRate);
  port.setDataBits(settings.dataBits == 7 ? QSerialPort::Data7 : QSerialPort::Data8);
  port.setStopBits(settings.stopBits == 0 ? QSerialPort::OneStop : QSerialPort::TwoStop);
  port.setParity(parityOf(settings.parity));
  port.setFlowControl(QSerialPort::NoFlowControl);
}

QtSerialChannel::QtSerialChannel(const QString& device, const LineSettings& settings)
    : QtSerialChannel(device, new QSerialPort) {
  keepControlLinesOnClose(device);
  open(device, settings);
  port_.clear();
  QObject::connect(&port_, &QSerialPort::readyRead, &context(), [this] { announce(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &context(),
                   [this](QSerialPort::SerialPortError error) { watch(error); });
}

QtSerialChannel::QtSerialChannel(const QString& device, QSerialPort* port)
    : DeviceChannel(device, std::unique_ptr<QIODevice>(port)), port_(*port) {}

QtSerialChannel::~QtSerialChannel() {
  if (port_.isOpen()) port_.flush();
}

void QtSerialChannel::open(const QString& device, const LineSettings& settings) {
  port_.setPortName(device);
  // Set before opening: a line that cannot do one of them, as a pseudo-terminal, then still opens.
  setLine(port_, settings);
  if (port_.open(QIODevice::ReadWrite)) return;
  // A device that may be used and yet cannot be opened is somebody else's at the moment.
  const bool isInUse =
      port_.error() == QSerialPort::PermissionError &&
      QFileInfo(QDir(QStringLiteral("/dev")).absoluteFilePath(device)).isWritable();
  fail(isInUse ? QStringLiteral("in use by another program") : port_.errorString());
  raiseFailure();
}

void QtSerialChannel::watch(QSerialPort::SerialPortError error) {
  if (error == QSerialPort::NoError || error == QSerialPort::TimeoutError) return;
  // The library also calls it an error when the event loop has it read what was read meanwhile. It
  // may have stopped listening then, until it is read from.
  const bool isPresent = port_.isOpen() && isThere(port_.handle());
  if (isPresent && error != QSerialPort::WriteError) return fetch();
  // For a device that is gone the system's words are about something else.
  fail(isPresent ? port_.errorString() : QStringLiteral("the device is gone"));
}

}  // namespace tracewell
