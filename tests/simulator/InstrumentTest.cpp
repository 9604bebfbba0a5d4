// SPDX-License-Identifier: GPL-3.0-or-later
#include "Instrument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "Numbers.h"
#include "ScaleTables.h"

namespace tracewell {

class InstrumentTest : public testing::Test {
 protected:
  void send(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) instrument.receive(line + "\r\n", now += 5000);
  }
  std::string ask(const std::string& query) {
    send({query});
    const std::string reply = instrument.transmit(now + 4000);
    return reply.substr(0, reply.find('\n'));
  }
  /// Samples of a record, in units.
  std::vector<int> record(int channel) {
    send({":ACQ" + std::to_string(channel) + ":POIN"});
    bytes = instrument.transmit(now + 4000);
    std::vector<int> samples;
    for (std::size_t i = 14; i + 1 < bytes.size(); i += 2) {
      const int bits =
          static_cast<unsigned char>(bytes[i]) * 256 + static_cast<unsigned char>(bytes[i + 1]);
      samples.push_back(bits < 32768 ? bits : bits - 65536);
    }
    return samples;
  }
  static double mean(const std::vector<int>& samples) {
    return std::accumulate(samples.begin(), samples.end(), 0.0) / 500;
  }
  static int peakToPeak(const std::vector<int>& samples) {
    const auto [low, high] = std::ranges::minmax(samples);
    return high - low;
  }

  Instrument instrument;
  double now = 0;
  std::string bytes;
};

TEST_F(InstrumentTest, KeepsWhatIsSetAndRefusesWhatIsNone) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {":CHAN1:SCAL 1E-1", ":CHAN1:SCAL?", "100.0 mV"},
      {":CHAN1:SCAL 3E-1", ":CHAN1:SCAL?", "100.0 mV"},
      {":chan2:scal 5", "CHAN2:SCAL?", "5.000 V"},
      {":CHAN2:SCAL 10", ":CHAN2:SCAL?", "5.000 V"},
      {":TIM:SCAL 5", ":TIM:SCAL?", "5.000 s"},
      {":CHAN1:OFFS -4E-1", "CHAN1:OFFS?", "-400 mV"},
      {":CHAN2:OFFS -1.5E1", "CHAN2:OFFS?", "-15.0 V"},
      {":CHAN1:COUP 2", ":CHAN1:COUP?", "2"},
      {":CHAN1:COUP 3", ":CHAN1:COUP?", "2"},
      {":CHAN1:COUP 1 ", ":CHAN1:COUP?", "2"},
      {":TRIG:ADV:EVEN twelve", ":TRIG:ADV:EVEN?", "twelve"},
      {":CHAN2:MATH 2", ":CHAN2:MATH?", "2"},
      {":CHAN1:MATH 2", ":CHAN2:MATH?", "0"},
      {":CHAN2:MATH 0", ":CHAN1:MATH?", "0"},
      {":NOTHING 1", ":NOTHING?", ""},
      {"", "SYST:ERR?", "6"}};
  for (const auto& [command, query, reply] : cases) {
    send({command});
    EXPECT_EQ(ask(query), reply) << command;
  }
}

/// Every scale of the panel is one that the instrument takes and gives back in the panel's words.
TEST_F(InstrumentTest, SpeaksThePanelsScales) {
  for (std::size_t i = 0; i < voltDivSteps; ++i) {
    send({ScaleCommandForKnob(ScaleKnob::Chan1, static_cast<double>(i))});
    EXPECT_EQ(ask(":CHAN1:SCAL?"), VoltDivText[i]);
  }
  for (std::size_t i = 0; i < timeDivSteps; ++i) {
    send({ScaleCommandForKnob(ScaleKnob::Time, static_cast<double>(i))});
    EXPECT_EQ(ask(":TIM:SCAL?"), TimeDivText[i]);
  }
}

TEST_F(InstrumentTest, TraceFollowsTheSettings) {
  const std::vector<int> plain = record(1);
  EXPECT_EQ(bytes.size(), 1014u);
  // 2 V peak to peak at 500 mV and 50 units a division; the start is where it passes 0.2 V, rising.
  EXPECT_NEAR(plain[250], 20, 12);
  EXPECT_GT(plain[260], plain[240]);
  const std::tuple<const char*, const char*, double, double, double> cases[] = {
      {"", "", 20, 200, 20},
      {":CHAN1:SCAL 1", ":CHAN1:SCAL 5E-1", 10, 100, 10},
      {":CHAN1:COUP 0", ":CHAN1:COUP 1", 0, 200, 20},
      {":CHAN1:COUP 2", ":CHAN1:COUP 1", 0, 6, 0},
      {":CHAN1:INV 1", ":CHAN1:INV 0", -20, 200, 20},
      {":TRIG:LEV 8E-1", ":TRIG:LEV 2E-1", 20, 200, 80},
      // A quarter of a period, to the crest.
      {":TIM:DEL 2.5E-4", ":TIM:DEL 0", 20, 200, 120}};
  for (const auto& [command, undo, average, height, start] : cases) {
    SCOPED_TRACE(command);
    send({command});
    const std::vector<int> samples = record(1);
    send({undo});
    EXPECT_NEAR(mean(samples), average, 12);
    EXPECT_NEAR(peakToPeak(samples), height, 14);
    EXPECT_NEAR(samples[250], start, 12);
  }
  send({":CHAN1:MATH 1"});
  EXPECT_NEAR(mean(record(1)), 50, 12);
  send({":CHAN2:MATH 2"});
  EXPECT_NEAR(mean(record(2)), 5, 3);
  send({":CHAN1:SCAL 5", ":CHAN1:PROB 1", ":TRIG:SLOP 1"});
  const std::vector<int> falling = record(1);
  EXPECT_NEAR(peakToPeak(falling), 200, 14);
  EXPECT_LT(falling[260], falling[240]);
}

TEST_F(InstrumentTest, MeasurementsAreThoseOfTheTrace) {
  for (const int channel : {1, 2}) {
    send({":Run", ":MEAS:SOUR " + std::to_string(channel)});
    record(channel);
    send({":Stop"});
    const std::vector<int> samples = record(channel);
    const double perUnit = (channel == 1 ? 0.5 : 1) / 50;
    const double period = channel * 1e-3;
    const std::tuple<const char*, double, double> cases[] = {
        {"PER", period, period / 100},
        {"PWID", period / 2, 4e-5},
        {"NWID", period / 2, 4e-5},
        {"VPP", peakToPeak(samples) * perUnit, perUnit},
        {"PDUT", 50, 3},
        {"VAV", mean(samples) * perUnit, perUnit}};
    for (const auto& [item, expected, tolerance] : cases)
      EXPECT_NEAR(ParseScaleCaption(ask(":MEAS:" + std::string(item) + "?")), expected, tolerance)
          << item << channel;
    const std::string frequency = ask(":MEAS:FREQ?");
    const double factor = frequency.ends_with("kHz") ? 1000 : 1;
    EXPECT_NEAR(leadingNumber(frequency) * factor * period, 1, 0.01) << frequency;
  }
  // The edges of the square wave.
  for (const char* item : {"RIS", "FALL"})
    EXPECT_LE(ParseScaleCaption(ask(":MEAS:" + std::string(item) + "?")), 5e-5);
  send({":Run", ":CHAN2:SCAL 5", ":CHAN2:COUP 2"});
  for (const char* item : {"FREQ", "PER", "RIS", "FALL", "PWID", "NWID", "PDUT"})
    EXPECT_EQ(ask(":MEAS:" + std::string(item) + "?"), "N/A") << item;
  EXPECT_EQ(ask(":MEAS:NONE?"), "");
}

TEST_F(InstrumentTest, TriggerModesAndSources) {
  EXPECT_NE(record(1), record(1));
  send({":Stop"});
  EXPECT_EQ(record(1), record(1));
  send({":Run"});
  // A level that the signal never reaches: normal waits, automatic level finds.
  const auto held = record(1);
  send({":TRIG:MOD 2", ":TRIG:LEV 30"});
  EXPECT_EQ(record(1), held);
  send({":TRIG:MOD 0"});
  EXPECT_NE(record(1), held);
  EXPECT_NEAR(std::stod(ask(":TRIG:LEV?")), 200, 50);
  send({":TRIG:MOD 3"});
  const auto single = record(1);
  EXPECT_EQ(record(1), single);
  send({":RUN", ":ACQ:MOD 1", ":ACQ:AVER 6"});
  EXPECT_LT(peakToPeak(record(1)), peakToPeak(single) + 1);
}

TEST_F(InstrumentTest, AutosetKeepsRepliesWaiting) {
  send({":AUT"});
  instrument.receive(":CHAN1:SCAL?\r\n", now + 10);
  EXPECT_EQ(instrument.transmit(now + 900), "");
  EXPECT_EQ(instrument.transmit(now + 1100), "1.000 V\n");
}

TEST_F(InstrumentTest, FaultsComeAndGo) {
  const std::string healthy = "KRM-410 SIMULATED";
  const std::tuple<const char*, std::string, std::size_t> cases[] = {
      {"SILENT 1", "", 0},
      {"BLANK 1", healthy + " ", 1014},
      {"NONNUM 1", "x" + healthy, 1014},
      {"CUT 300", healthy, 300},
      {"DROP 500", healthy, 1012},
      {"HANGUP 118", healthy, 100},
      {"OFF", healthy, 1014}};
  for (const auto& [fault, reply, recordBytes] : cases) {
    instrument.plugIn();
    send({":SIM:OFF", ":SIM:" + std::string(fault)});
    EXPECT_EQ(ask("*IDN?"), reply) << fault;
    record(1);
    EXPECT_NEAR(static_cast<double>(bytes.size()), static_cast<double>(recordBytes), 1) << fault;
    EXPECT_EQ(instrument.hasHungUp(), recordBytes == 100);
  }
  send({":SIM:SLOW 500", "*IDN?"});
  EXPECT_EQ(instrument.transmit(now + 400), "");
  EXPECT_EQ(instrument.transmit(now + 600), healthy + "\n");
  send({":SIM:GARBAGE 1"});
  EXPECT_NE(ask("*IDN?"), healthy);
}

}  // namespace tracewell
