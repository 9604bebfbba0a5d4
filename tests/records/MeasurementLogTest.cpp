// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasurementLog.h"

#include <fstream>

#include "Bench.h"
#include "WallTime.h"

namespace tracewell {
namespace {

const std::string heading = "channel,vpp (V),freq (Hz),limits";

}  // namespace

class MeasurementLogTest : public testing::Test {
 protected:
  const ProgramFolderCopy folder;
  const std::filesystem::path path = folder.path() / "log.csv";
  FailingDisk disk;
  MeasurementColumns columns{{Quantity::peakToPeak, Quantity::frequency},
                             {limitOf("vpp > 500 mV").value(), limitOf("freq<2").value()}};
  std::int64_t now = 0;

  static OwnMeasurements values(double vpp) {
    OwnMeasurements found;
    found[Quantity::peakToPeak] = OwnValue::of(vpp);
    found[Quantity::frequency] = OwnValue::no(NoValue::flat);
    return found;
  }
  void append(MeasurementLog& log, double vpp) { log.append(0, 1, values(vpp), now += 1200); }
  /// Without the time, which has the zone of this machine.
  Lines rows(const std::filesystem::path& file) const {
    Lines found;
    std::ifstream stream(file, std::ios::binary);
    for (std::string line; std::getline(stream, line);)
      found.push_back(line.substr(line.find(',') + 1));
    return found;
  }
};

TEST_F(MeasurementLogTest, IsContinuedBehindItsLastWholeRowOrBegunAnew) {
  {
    MeasurementLog log(path, columns, now);
    for (const double vpp : {0.25, 0.75, 0.25}) append(log, vpp);
    EXPECT_EQ(disk.flushes, 2);
  }
  EXPECT_EQ(disk.flushes, 3) << "the rows of the last seconds";
  const Lines whole = {heading, "1,0.25,,", "1,0.75,,vpp > 500 mV", "1,0.25,,"};
  EXPECT_EQ(rows(path), whole);
  const Lines ends = {"1970-01-01T0", "1970,1,0.75,,vpp > 500", std::string(100000, '\0')};
  for (const std::string& torn : ends) {
    std::ofstream(path, std::ios::binary | std::ios::app) << torn;
    MeasurementLog log(path, columns, now);
    EXPECT_EQ(log.rows(), 3U);
    EXPECT_EQ(log.bytes(), std::filesystem::file_size(path));
    EXPECT_EQ(rows(path), whole);
  }
  std::filesystem::resize_file(path, 7);
  MeasurementLog again(path, columns, now);
  append(again, 0.1);
  std::ofstream(path, std::ios::binary | std::ios::app) << "time,another program's\n";
  append(again, 0.2);
  EXPECT_TRUE(again.finish(now) && again.ownRows() == 2);
  EXPECT_EQ(rows(path), (Lines{heading, "1,0.1,,", "another program's", "1,0.2,,"}));
  columns.quantities.pop_back();
  MeasurementLog other(path, columns, now);
  EXPECT_EQ(other.path(), folder.path() / "log-2.csv");
}

TEST_F(MeasurementLogTest, HoldsWhatTheDiskDoesNotTakeAndGoesOn) {
  MeasurementLog log(path, columns, now);
  append(log, 0.1);
  log.tick(now += 3000);
  disk.fault = std::errc::no_space_on_device;
  append(log, 0.2);
  log.tick(now += 3000);
  EXPECT_TRUE(log.isDiskFull() && log.held() == 1U);
  EXPECT_THROW(MeasurementLog(folder.path() / "new.csv", columns, now), Error);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "new.csv"));
  EXPECT_EQ(rows(path), (Lines{heading, "1,0.1,,"}));
  now += 10;
  for (int i = 0; i < 10003; ++i) log.append(0, 1, values(0.75), now);
  EXPECT_EQ(log.lost(), 4U);
  disk.fault = std::errc();
  for (int i = 0; i < 5; ++i) log.tick(now += 1000);
  EXPECT_TRUE(!log.trouble() && log.rows() == 10001U);
  // Another program takes the line end or the file away, where the system lets it.
  std::error_code refused;
  std::filesystem::resize_file(path, std::filesystem::file_size(path) - 1, refused);
  EXPECT_EQ(MeasurementLog(path, columns, now).rows(), 10001U) << "a line end is missing";
  EXPECT_EQ(rows(path).size(), 10002U);
  if (!std::filesystem::remove(path, refused)) return;
  append(log, 0.4);
  EXPECT_TRUE(log.finish(now));
  EXPECT_EQ(rows(path), (Lines{heading, "1,0.4,,"}));
}

TEST(MeasurementRow, TimesHaveAZoneAndLimitsAreReadStrictly) {
  const std::string time = isoTime(1773581345250);
  // 13:29:05 of Greenwich, whatever zone this machine is in.
  ASSERT_EQ(time.size(), std::string("2026-03-15T14:29:05.250+01:00").size());
  const auto minutes = [&](std::size_t at) {
    return 60 * std::stoi(time.substr(at, 2)) + std::stoi(time.substr(at + 3, 2));
  };
  const int zone = (time[23] == '-' ? -1 : 1) * minutes(24);
  EXPECT_EQ((minutes(11) - zone + 2880) % 1440, 13 * 60 + 29) << time;
  EXPECT_DOUBLE_EQ(limitOf("freq <1.5 kHz").value().value, 1500);
  for (const char* const text : {"", "vpp", "vpp >", "vpp > x", "volts > 1", "vpp > 1 s",
                                 "vpp >> 1", "vpp > 1e999", "vpp > -1e400000 V"})
    EXPECT_FALSE(limitOf(text)) << text;
  std::string wrong;
  EXPECT_EQ(quantitiesOf("vpp, freq", wrong).value().size(), 2U);
  EXPECT_FALSE(quantitiesOf("vpp,", wrong) || quantitiesOf("", wrong));
}

}  // namespace tracewell
