// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtSerialChannel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>
#endif

#include "Error.h"
#include "QtValues.h"

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
#ifdef Q_OS_UNIX
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
#else
  static_cast<void>(device);
#endif
}

}  // namespace

QtSerialChannel::QtSerialChannel(const QString& device, const LineSettings& settings)
    : device_(device) {
  keepControlLinesOnClose(device);
  port_.setPortName(device);
  // Set before opening: a line that cannot do one of them, as a pseudo-terminal, then still opens.
  port_.setBaudRate(settings.baudRate);
  port_.setDataBits(settings.dataBits == 7 ? QSerialPort::Data7 : QSerialPort::Data8);
  port_.setStopBits(settings.stopBits == 0 ? QSerialPort::OneStop : QSerialPort::TwoStop);
  port_.setParity(parityOf(settings.parity));
  port_.setFlowControl(QSerialPort::NoFlowControl);
  if (!port_.open(QIODevice::ReadWrite)) {
    // A device that may be used and yet cannot be opened is somebody else's at the moment.
    const bool isInUse =
        port_.error() == QSerialPort::PermissionError &&
        QFileInfo(QDir(QStringLiteral("/dev")).absoluteFilePath(device)).isWritable();
    failure_ = isInUse ? QStringLiteral("in use by another program") : port_.errorString();
    raiseFailure();
  }
  port_.clear();
  QObject::connect(&port_, &QSerialPort::readyRead, &context_, [this] { announce(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &context_,
                   [this](QSerialPort::SerialPortError error) { watch(error); });
}

QtSerialChannel::~QtSerialChannel() {
  if (port_.isOpen()) port_.flush();
}

void QtSerialChannel::write(std::string_view bytes) {
  if (!failure_.isNull()) raiseFailure();
  const auto written = port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
  if (written != static_cast<qint64>(bytes.size()) && failure_.isNull())
    failure_ = port_.errorString();
  port_.flush();
  if (!failure_.isNull()) raiseFailure();
}

std::string QtSerialChannel::read(int timeOut) {
  QByteArray bytes = std::exchange(rest_, {});
  if (port_.isOpen()) bytes += port_.readAll();
  // Also with a time-out of zero: without events nobody else has fetched what the system holds.
  if (bytes.isEmpty() && failure_.isNull() && port_.waitForReadyRead(timeOut))
    bytes = port_.readAll();
  if (bytes.isEmpty() && !failure_.isNull()) raiseFailure();
  return bytes.toStdString();
}

/// The first real error is the last: a device that is gone reports the same one without end until
/// the port is closed.
void QtSerialChannel::watch(QSerialPort::SerialPortError error) {
  if (error == QSerialPort::NoError || error == QSerialPort::TimeoutError) return;
  if (!failure_.isNull()) return;
  failure_ = port_.errorString();
  QTimer::singleShot(0, &context_, [this] {
    rest_ = port_.readAll();
    port_.close();
  });
  announce();
}

/// Out of the event loop and once for many arrivals. The owner may destroy the channel in it.
void QtSerialChannel::announce() {
  if (isAnnounced_) return;
  isAnnounced_ = true;
  QTimer::singleShot(0, &context_, [this] {
    isAnnounced_ = false;
    const std::function<void()> tell = readable;
    if (tell) tell();
  });
}

void QtSerialChannel::raiseFailure() const {
  throw Error(deviceError, "RS232", fromQt(device_ + QStringLiteral(": ") + failure_));
}

}  // namespace tracewell
