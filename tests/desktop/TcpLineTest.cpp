// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include "DeviceLineTest.h"
#include "PortDirectory.h"
#include "QtTcpChannel.h"

namespace tracewell {

/// A server of one line, and the port that is connected to it.
class TcpLineTest : public DeviceLineTest {
 protected:
  TcpLineTest() {
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    address = {"127.0.0.1", server.serverPort()};
    QObject::connect(&server, &QTcpServer::newConnection, [this] {
      QTcpSocket* line = server.nextPendingConnection();
      line->write(greeting);
      QObject::connect(line, &QTcpSocket::readyRead, [this, line] {
        heard += line->readAll();
        if (heard.endsWith('\n')) line->write(answer);
      });
    });
  }

  std::unique_ptr<ByteChannel> open(const LineSettings&) override {
    return std::make_unique<QtTcpChannel>(address, standBy);
  }

  void dropLine() {
    for (QTcpSocket* line : server.findChildren<QTcpSocket*>()) line->abort();
    QTest::qWait(50);
  }

  std::string failure() {
    return errorOf([this] { port.prepare(); });
  }

  QTcpServer server;
  ServerAddress address;
  QByteArray greeting = "KRM bench 3, line 1\r\nbe gentle\r\n";
  QByteArray answer = "KRM-410\r\n";
  QByteArray heard;
};

TEST_F(TcpLineTest, AnswersAreTheInstrumentsAndComeBackWithTheLine) {
  PortUser user(port);
  EXPECT_EQ(user.ask("*IDN?"), "KRM-410\n");
  EXPECT_EQ(heard, "*IDN?\r\n");
  dropLine();
  EXPECT_EQ(user.ask("A?"), "KRM-410\n");
  // Opened, gone, opened again.
  EXPECT_EQ(port.openings(), 3);
  answer = "";
  EXPECT_EQ(user.ask("B?"), std::to_string(portReadTimeOut));
  server.close();
  dropLine();
  EXPECT_EQ(failure(), "57 " + addressText(address) + ": Connection refused");
}

/// A queue for connections that nobody accepts: what comes when it is full has no answer.
TEST_F(TcpLineTest, OpeningEndsInTimeAndSaysWhyItFailed) {
  QTcpServer full;
  full.setListenBacklogSize(1);
  ASSERT_TRUE(full.listen(QHostAddress::LocalHost));
  full.pauseAccepting();
  std::array<QTcpSocket, 4> waiting;
  for (QTcpSocket& socket : waiting) socket.connectToHost(full.serverAddress(), full.serverPort());
  QTest::qWait(50);
  const std::pair<ServerAddress, const char*> cases[] = {
      {{"127.0.0.1", full.serverPort()}, ": the server did not answer in time"},
      {{"no.such.invalid", 80}, ": Host not found"}};
  for (const auto& [unreachable, reason] : cases) {
    address = unreachable;
    const std::int64_t begin = clock.milliseconds();
    EXPECT_EQ(failure(), "57 " + addressText(address) + reason);
    EXPECT_LT(clock.milliseconds() - begin, SerialPort::defaultReadTimeOut + 500);
  }

  // As a question does that is put again where its line cannot be opened.
  const ProgramFolderCopy folder;
  writeWholeFile(folder.path() / "com5", "tcp://127.0.0.1:" + std::to_string(full.serverPort()));
  PortDirectory directory(folder.path(), clock, standBy);
  const std::int64_t begin = clock.milliseconds();
  for (int i = 0; i < 9; ++i) EXPECT_THROW(directory.open({.portNumber = 5}), Error);
  EXPECT_LT(clock.milliseconds() - begin, SerialPort::defaultReadTimeOut + 500);
}

/// The window lives on meanwhile, and Escape ends it.
TEST_F(TcpLineTest, UserMayGiveUpAServerThatTalksWithoutEnd) {
  QTimer babble;
  QObject::connect(&babble, &QTimer::timeout, [this] {
    for (QTcpSocket* line : server.findChildren<QTcpSocket*>()) line->write("more\r\n");
  });
  babble.start(20);
  const StandBy::Burst burst(standBy);
  QTimer::singleShot(300, [this] { standBy.giveUp(); });
  EXPECT_TRUE(failure().starts_with(std::to_string(portReadTimeOut)));
}

}  // namespace tracewell
