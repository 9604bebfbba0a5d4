// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <QApplication>
#include <QProcess>
#include <QTest>

#include "DeviceLineTest.h"
#include "Places.h"
#include "QtSerialChannel.h"
#include "QtValues.h"

namespace tracewell {

/// krm410-sim, and the serial library on its pseudo-terminal.
class SerialLineTest : public DeviceLineTest {
 protected:
  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override {
    return make ? make() : std::make_unique<QtSerialChannel>(device, settings);
  }

  void startInstrument(const QStringList& options) {
    instrument.start(QString::fromUtf8(simulatorProgram), options);
    ASSERT_TRUE(instrument.waitForReadyRead(5000));
    device = QString::fromUtf8(instrument.readLine()).trimmed();
  }
  void stopInstrument() {
    instrument.terminate();
    instrument.waitForFinished();
  }
  ~SerialLineTest() override { stopInstrument(); }

  QProcess instrument;
  QString device;
  std::function<std::unique_ptr<ByteChannel>()> make;
};

/// The bytes of a record trickle for half a second, and wake the program a few times.
TEST_F(SerialLineTest, MostOfARecordIsSleptThroughAndItsEndIsNot) {
  class Counting : public QtSerialChannel {
   public:
    Counting(const QString& device, int& count)
        : QtSerialChannel(device, LineSettings()), count_(count) {}
    std::string read(int timeOut) override {
      ++count_;
      return QtSerialChannel::read(timeOut);
    }

   private:
    int& count_;
  };
  startInstrument({});
  int count = 0;
  make = [&] { return std::make_unique<Counting>(device, count); };
  PortUser user(port);
  EXPECT_EQ(user.ask("*IDN?"), "KRM-410 SIMULATED\n");
  count = 0;
  const std::int64_t begin = clock.milliseconds();
  user.request(2);
  while (user.records.empty() && clock.milliseconds() < begin + 3000) QTest::qWait(1);
  ASSERT_FALSE(user.records.empty());
  EXPECT_EQ(user.records[0].bytes.substr(0, 12), "KRM410 REC 2");
  const std::int64_t took = clock.milliseconds() - begin;
  // 1014 bytes at 19200 baud, and what the instrument thinks.
  EXPECT_GE(took, 528);
  EXPECT_LT(took, 800);
  EXPECT_LT(count, 40);
}

/// A pseudo-terminal always has eight bits and no parity, and keeps the rest.
TEST_F(SerialLineTest, EverySettingReachesTheLine) {
  startInstrument({});
  const int line = ::open(device.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
  const std::pair<int, speed_t> rates[] = {{1200, B1200}, {4800, B4800}, {19200, B19200}};
  const std::pair<std::int16_t, QSerialPort::DataBits> lengths[] = {{7, QSerialPort::Data7},
                                                                    {8, QSerialPort::Data8}};
  const std::pair<std::int16_t, QSerialPort::StopBits> stops[] = {{0, QSerialPort::OneStop},
                                                                  {2, QSerialPort::TwoStop}};
  const std::pair<std::int16_t, QSerialPort::Parity> parities[] = {
      {0, QSerialPort::NoParity}, {1, QSerialPort::EvenParity}, {3, QSerialPort::OddParity}};
  for (const auto& [rate, speed] : rates)
    for (const auto& [length, dataBits] : lengths)
      for (const auto& [stop, stopBits] : stops)
        for (const auto& [code, parity] : parities) {
          const LineSettings settings{0, rate, length, stop, code};
          SCOPED_TRACE(testing::Message() << rate << " " << length << " " << stop << " " << code);
          QSerialPort port;
          port.setFlowControl(QSerialPort::HardwareControl);
          setLine(port, settings);
          EXPECT_EQ(std::tuple(port.baudRate(), port.dataBits(), port.stopBits(), port.parity(),
                               port.flowControl()),
                    std::tuple(rate, dataBits, stopBits, parity, QSerialPort::NoFlowControl));
          const auto channel = open(settings);
          termios kept;
          ASSERT_EQ(tcgetattr(line, &kept), 0);
          EXPECT_EQ(cfgetospeed(&kept), speed);
          EXPECT_EQ((kept.c_cflag & CSTOPB) != 0, stop == 2);
          EXPECT_EQ((kept.c_cflag & PARODD) != 0, code == 3);
          EXPECT_EQ(kept.c_cflag & CRTSCTS, 0u);
          EXPECT_EQ(kept.c_iflag & (IXON | IXOFF), 0u);
        }
  ::close(line);
}

/// The instrument's control lines stay up when the port is closed.
TEST_F(SerialLineTest, ClosingDoesNotHangUp) {
  startInstrument({});
  const int line = ::open(device.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
  termios attributes;
  ASSERT_EQ(tcgetattr(line, &attributes), 0);
  attributes.c_cflag |= HUPCL;
  tcsetattr(line, TCSANOW, &attributes);
  open({}).reset();
  EXPECT_EQ(tcgetattr(line, &attributes), 0);
  EXPECT_EQ(attributes.c_cflag & HUPCL, 0u);
  ::close(line);
}

/// The event loop has seen bytes that are read before it says so: a read that brings nothing then.
TEST_F(SerialLineTest, AWakeWithoutBytesIsNoLoss) {
  const int end = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(grantpt(end) == 0 && unlockpt(end) == 0);
  QtSerialChannel channel(QString::fromLocal8Bit(::ptsname(end)), LineSettings());
  std::string received;
  for (int i = 0; i < 3; ++i) {
    ASSERT_EQ(::write(end, "bytes\n", 6), 6);
    QMetaObject::invokeMethod(
        qApp, [&] { received += channel.read(1000); }, Qt::QueuedConnection);
    QTest::qWait(20);
  }
  bool isAwake = false;
  channel.readable = [&] { isAwake = true; };
  ASSERT_EQ(::write(end, "last\n", 5), 5);
  EXPECT_TRUE(QTest::qWaitFor([&] { return isAwake; }));
  received += channel.read(1000);
  EXPECT_EQ(received, "bytes\nbytes\nbytes\nlast\n");
  ::close(end);
  EXPECT_TRUE(errorOf([&] { channel.read(2000); }).starts_with("57 "));
}

TEST_F(SerialLineTest, SecondOpenerIsRefusedWithAReason) {
  startInstrument({});
  port.prepare();
  const std::string error = errorOf([this] { open({}); });
  EXPECT_TRUE(error.starts_with("57 "));
  EXPECT_NE(error.find(fromQt(device)), std::string::npos);
  EXPECT_TRUE(error.ends_with("in use by another program"));
}

}  // namespace tracewell
