// SPDX-License-Identifier: GPL-3.0-or-later
/// What is written anew for Windows: the port that TRACEWELL_TEST_PORT numbers, with krm410-sim
/// behind it; files; folders.
#include <QCoreApplication>
#include <QElapsedTimer>

#include "DesktopDisk.h"
#include "DeviceLineTest.h"
#include "SystemFiles.h"
#include "SystemFolders.h"
#include "SystemPorts.h"
#include "WindowsSerialChannel.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

void runEvents(int milliseconds, const std::function<bool()>& isOver) {
  QElapsedTimer time;
  time.start();
  while (!isOver() && time.elapsed() < milliseconds)
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

class WindowsLineTest : public DeviceLineTest {
 protected:
  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override {
    class Counting : public WindowsSerialChannel {
     public:
      Counting(const QString& device, const LineSettings& line, int& count)
          : WindowsSerialChannel(device, line), count_(count) {}
      std::string read(int timeOut) override {
        ++count_;
        return WindowsSerialChannel::read(timeOut);
      }

     private:
      int& count_;
    };
    return std::make_unique<Counting>(device, settings, reads);
  }

  const QString device = systemPortOf(qEnvironmentVariableIntValue("TRACEWELL_TEST_PORT"));
  int reads = 0;
};

/// That a second opener is refused cannot be seen under Wine, which lets it in.
TEST_F(WindowsLineTest, PortIsListedAndAnswersInAllItsSettings) {
  EXPECT_TRUE(presentSystemPorts().contains(device));
  EXPECT_FALSE(presentSystemPorts().contains(systemPortOf(77)));
  EXPECT_EQ(nameOfSystemPort(device), QStringLiteral("Prüfplatz (%1)").arg(device));
  EXPECT_EQ(nameOfSystemPort(systemPortOf(78)), "COM78: Bench");
  EXPECT_EQ(nameOfSystemPort(systemPortOf(77)), "COM77");
  EXPECT_THROW(WindowsSerialChannel(systemPortOf(77), LineSettings()), Error);
  for (const std::int16_t stopBits : {std::int16_t{0}, std::int16_t{2}}) {
    const auto channel = open({.stopBits = stopBits});
    channel->write("*IDN?\r\n");
    std::string answer;
    while (!answer.ends_with('\n')) {
      const std::string part = channel->read(2000);
      ASSERT_FALSE(part.empty()) << answer;
      answer += part;
    }
    EXPECT_EQ(answer, "KRM-410 SIMULATED\n");
  }
}

/// As on every other line: the bytes trickle for half a second, and wake the program a few times.
TEST_F(WindowsLineTest, MostOfARecordIsSleptThroughAndItsEndIsNot) {
  PortUser user(port);
  EXPECT_EQ(user.ask("*IDN?"), "KRM-410 SIMULATED\n");
  reads = 0;
  const std::int64_t begin = clock.milliseconds();
  user.request(2);
  runEvents(3000, [&] { return !user.records.empty(); });
  ASSERT_FALSE(user.records.empty());
  EXPECT_EQ(user.records[0].bytes.substr(0, 12), "KRM410 REC 2");
  EXPECT_EQ(user.records[0].bytes.size(), 1014u);
  EXPECT_GE(clock.milliseconds() - begin, 528);
  EXPECT_LT(reads, 40);
}

/// The instrument hangs up, and is away from then on.
TEST_F(WindowsLineTest, ZPulledPlugIsAFailureWithItsReason) {
  const auto channel = open({});
  std::string failure;
  channel->readable = [&] { failure = errorOf([&] { channel->read(0); }); };
  channel->write(":SIM:HANGUP 0\r\n");
  runEvents(5000, [&] { return !failure.empty(); });
  const std::string start = "57 " + device.toStdString() + ": the device is gone (";
  EXPECT_TRUE(failure.starts_with(start)) << failure;
  EXPECT_EQ(errorOf([&] { channel->write("*IDN?\r\n"); }), failure);
}

TEST(WindowsFiles, FileOfAnyNameIsReplacedWhole) {
  DesktopDisk disk;
  useDisk(&disk);
  const ProgramFolderCopy folder;
  const fs::path path = folder.path() / fs::path(u8"m\u00E9tier \u6CE2\u5F62.dso");
  for (const char* content : {"first", "second"}) {
    writeWholeFile(path, content);
    EXPECT_EQ(readWholeFile(path, 100), content);
  }
  EXPECT_EQ(openNewFile(path), nullptr);
  EXPECT_EQ(errno, EEXIST);
  EXPECT_TRUE(mayWriteInto(folder.path()));
  EXPECT_FALSE(mayWriteInto(folder.path() / "none"));
  useDisk(nullptr);
}

TEST(WindowsFiles, FolderOfTheProgramIsOnOneOfTheDrives) {
  const std::vector<std::string> drives = DesktopDisk().drives();
  EXPECT_EQ(std::ranges::count(drives, pathText(executableFolder().root_path())), 1);
}

}  // namespace
}  // namespace tracewell

int main(int argumentCount, char** arguments) {
  const QCoreApplication application(argumentCount, arguments);
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}
