// SPDX-License-Identifier: GPL-3.0-or-later
#include "Instrument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "Numbers.h"
#include "ScaleTables.h"

namespace tracewell {
namespace {

class InstrumentTest : public testing::Test {
 protected:
  void send(const std::string& line) { instrument.receive(line + "\r\n", now += 5000); }
  std::string ask(const std::string& query) {
    send(query);
    std::string reply = instrument.transmit(now + 4000);
    if (reply.ends_with('\n')) reply.pop_back();
    return reply;
  }
  /// Samples of a record, in units.
  std::vector<int> record(int channel) {
    send(":ACQ" + std::to_string(channel) + ":POIN");
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
    double sum = 0;
    for (const int sample : samples) sum += sample;
    return sum / static_cast<double>(samples.size());
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
  const struct {
    const char* command;
    const char* query;
    const char* reply;
  } cases[] = {{":CHAN1:SCAL 1E-1", ":CHAN1:SCAL?", "100.0 mV"},
               {":CHAN1:SCAL 3E-1", ":CHAN1:SCAL?", "100.0 mV"},
               {":chan2:scal 5", "CHAN2:SCAL?", "5.000 V"},
               {":CHAN2:SCAL 10", ":CHAN2:SCAL?", "5.000 V"},
               {":TIM:SCAL 2E-9", ":TIM:SCAL?", "2.000 ns"},
               {":TIM:SCAL 5", ":TIM:SCAL?", "5.000 s"},
               {":CHAN1:OFFS -4E-1", "CHAN1:OFFS?", "-400 mV"},
               {":CHAN2:OFFS -1.5E1", "CHAN2:OFFS?", "-15.0 V"},
               {":CHAN1:COUP 2", ":CHAN1:COUP?", "2"},
               {":CHAN1:COUP 3", ":CHAN1:COUP?", "2"},
               {":CHAN1:COUP 1 ", ":CHAN1:COUP?", "2"},
               {":TRIG:ADV:EVEN twelve", ":TRIG:ADV:EVEN?", "twelve"},
               {"DISP:BRIG:DATA 77", "DISP:BRIG:DATA?", "77"},
               {":NOTHING 1", ":NOTHING?", ""},
               {"", "SYST:ERR?", "6"}};
  for (const auto& c : cases) {
    send(c.command);
    EXPECT_EQ(ask(c.query), c.reply) << c.command;
  }
}

/// Every scale of the panel is one that the instrument takes and gives back in the panel's words.
TEST_F(InstrumentTest, SpeaksThePanelsScales) {
  for (std::size_t i = 0; i < voltDivSteps; ++i) {
    send(ScaleCommandForKnob(ScaleKnob::Chan1, static_cast<double>(i)));
    EXPECT_EQ(ask(":CHAN1:SCAL?"), VoltDivText[i]);
  }
  for (std::size_t i = 0; i < timeDivSteps; ++i) {
    send(ScaleCommandForKnob(ScaleKnob::Time, static_cast<double>(i)));
    EXPECT_EQ(ask(":TIM:SCAL?"), TimeDivText[i]);
  }
  for (const double offset : {0.5, -2.0, -0.4, 0.0125, -12.5, 0.0, -0.999}) {
    send(":CHAN1:OFFS " + formatExponent(offset));
    EXPECT_NEAR(ParseScaleCaption(ask("CHAN1:OFFS?")), offset, std::fabs(offset) * 0.005);
  }
}

TEST_F(InstrumentTest, TraceFollowsTheSettings) {
  const std::vector<int> plain = record(1);
  ASSERT_EQ(plain.size(), 500u);
  EXPECT_EQ(bytes.size(), 1014u);
  // 2 V peak to peak at 500 mV and 50 units a division; the start is where it passes 0.2 V, rising.
  EXPECT_NEAR(peakToPeak(plain), 200, 14);
  EXPECT_NEAR(plain[250], 20, 12);
  EXPECT_GT(plain[260], plain[240]);

  const auto effect = [&](const std::string& command, const std::string& undo) {
    send(command);
    const std::vector<int> samples = record(1);
    send(undo);
    return samples;
  };
  EXPECT_NEAR(peakToPeak(effect(":CHAN1:SCAL 1", ":CHAN1:SCAL 5E-1")), 100, 14);
  EXPECT_NEAR(mean(plain), 20, 5);
  EXPECT_NEAR(mean(effect(":CHAN1:COUP 0", ":CHAN1:COUP 1")), 0, 3);
  EXPECT_LE(peakToPeak(effect(":CHAN1:COUP 2", ":CHAN1:COUP 1")), 12);
  EXPECT_NEAR(mean(effect(":CHAN1:INV 1", ":CHAN1:INV 0")), -20, 5);
  EXPECT_LT(effect(":TRIG:SLOP 1", ":TRIG:SLOP 0")[260], 20);
  EXPECT_NEAR(effect(":TRIG:LEV 8E-1", ":TRIG:LEV 2E-1")[250], 80, 12);
  EXPECT_NEAR(effect(":TIM:DEL 5E-4", ":TIM:DEL 0")[200], 20, 12);
  EXPECT_NEAR(mean(effect("CHAN1:MATH 1", "CHAN1:MATH 0")), 50, 12);
  send(":CHAN1:SCAL 5");
  EXPECT_NEAR(peakToPeak(effect(":CHAN1:PROB 1", ":CHAN1:PROB 0")), 200, 14);
  send(":CHAN1:SCAL 5E-1");
  send(":Stop");
  EXPECT_EQ(record(1), record(1));
  send(":Run");
  EXPECT_NE(record(1), record(1));
  send(":TRIG:MOD 2");
  const std::vector<int> last = record(1);
  send(":TRIG:LEV 9E0");
  EXPECT_EQ(record(1), last);
}

TEST_F(InstrumentTest, MeasurementsAreThoseOfTheTrace) {
  for (const int channel : {1, 2}) {
    send(":MEAS:SOUR " + std::to_string(channel));
    const std::string frequency = ask(":MEAS:FREQ?");
    const double factor = frequency.ends_with("kHz") ? 1000 : 1;
    const double expected = channel == 1 ? 1000 : 500;
    EXPECT_NEAR(leadingNumber(frequency) * factor, expected, expected * 0.01) << frequency;
    EXPECT_NEAR(leadingNumber(ask(":MEAS:PDUT?")), 50, 3);
    send(":Stop");
    const std::vector<int> samples = record(channel);
    const double voltsPerUnit = (channel == 1 ? 0.5 : 1) / 50;
    EXPECT_NEAR(ParseScaleCaption(ask(":MEAS:VPP?")), peakToPeak(samples) * voltsPerUnit,
                voltsPerUnit);
    EXPECT_NEAR(ParseScaleCaption(ask(":MEAS:VAV?")), mean(samples) * voltsPerUnit, voltsPerUnit);
    send(":Run");
  }
  send(":MEAS:SOUR 1");
  send(":TIM:SCAL 2E-6");
  for (const char* item : {"FREQ", "PER", "PWID", "PDUT"})
    EXPECT_EQ(ask(":MEAS:" + std::string(item) + "?"), "N/A") << item;
  EXPECT_EQ(ask(":MEAS:NONE?"), "");
}

/// The square wave: 500 Hz, 2 V and ringing; times in samples of 10 us.
TEST_F(InstrumentTest, TimesOfTheSquareWave) {
  send(":MEAS:SOUR 2");
  const auto value = [this](const char* item) {
    const std::string reply = ask(":MEAS:" + std::string(item) + "?");
    const double scale = reply.ends_with(" ms") ? 1e-3 : reply.ends_with(" us") ? 1e-6 : 1;
    return std::stod(reply) * scale;
  };
  EXPECT_NEAR(value("PER"), 2e-3, 2e-5);
  EXPECT_NEAR(value("PWID"), 1e-3, 2e-5);
  EXPECT_NEAR(value("NWID"), 1e-3, 2e-5);
  EXPECT_NEAR(value("PDUT"), 50, 1.5);
  EXPECT_LE(value("RIS"), 5e-5);
  EXPECT_LE(value("FALL"), 5e-5);
  send(":CHAN2:SCAL 5");
  send(":CHAN2:COUP 2");
  for (const char* item : {"FREQ", "PER", "RIS", "FALL", "PWID", "NWID", "PDUT"})
    EXPECT_EQ(ask(":MEAS:" + std::string(item) + "?"), "N/A") << item;
}

TEST_F(InstrumentTest, TriggerModesAndSources) {
  // A level that the signal never reaches: automatic runs free, normal waits, automatic level
  // finds.
  send(":TRIG:LEV 30");
  send(":TRIG:MOD 2");
  const auto held = record(1);
  send(":CHAN1:SCAL 5");
  EXPECT_EQ(record(1), held);
  send(":TRIG:MOD 0");
  EXPECT_NE(record(1), held);
  EXPECT_NEAR(std::stod(ask(":TRIG:LEV?")), 200, 50);
  for (const char* source : {"1", "2", "3"}) {
    send(":TRIG:SOUR " + std::string(source));
    EXPECT_EQ(record(2).size(), 500u);
  }
  send(":CHAN2:MATH 2");
  send("CHAN1:MATH 0");
  EXPECT_EQ(ask(":CHAN2:MATH?"), "0");
  send(":TRIG:SOUR 0");
  send(":TRIG:MOD 3");
  const auto single = record(1);
  EXPECT_EQ(record(1), single);
  send(":RUN");
  send(":ACQ:MOD 1");
  send(":ACQ:AVER 6");
  send(":CHAN1:BWL 1");
  EXPECT_LT(peakToPeak(record(1)), peakToPeak(single) + 1);
}

TEST_F(InstrumentTest, BytesTakeTheirTimeOnTheLine) {
  const struct {
    LineRate rate;
    double recordTime;
  } cases[] = {
      {{19200, 8, false, 1}, 528}, {{9600, 8, true, 2}, 1268}, {{2400, 8, false, 1}, 4225}};
  for (const auto& c : cases) {
    instrument.setLineRate(c.rate);
    now += 10000;
    instrument.receive(":ACQ1:POIN\r\n", now);
    const double start = now + 12 * c.rate.byteTime() + 4;
    EXPECT_EQ(instrument.transmit(start).size(), 0u);
    EXPECT_NEAR(static_cast<double>(instrument.transmit(start + c.recordTime / 2).size()), 507, 2);
    EXPECT_FALSE(instrument.transmit(start + c.recordTime * 1.01).empty());
    EXPECT_EQ(instrument.nextByteAt(), std::nullopt);
  }
}

TEST_F(InstrumentTest, AutosetKeepsRepliesWaiting) {
  send(":AUT");
  instrument.receive(":CHAN1:SCAL?\r\n", now + 10);
  EXPECT_EQ(instrument.transmit(now + 900), "");
  EXPECT_EQ(instrument.transmit(now + 1100), "1.000 V\n");
}

TEST_F(InstrumentTest, FaultsComeAndGo) {
  send(":SIM:SILENT 1");
  EXPECT_EQ(ask("*IDN?"), "");
  send(":SIM:OFF");
  send(":SIM:BLANK 1");
  EXPECT_EQ(ask(":CHAN1:INV?"), "0 ");
  send(":SIM:NONNUM 1");
  EXPECT_FALSE(isNumeric(ask(":CHAN1:INV?")));
  send(":SIM:OFF");
  send(":SIM:CUT 300");
  record(1);
  EXPECT_EQ(bytes.size(), 300u);
  send(":SIM:OFF");
  send(":SIM:DROP 10");
  record(1);
  EXPECT_NEAR(static_cast<double>(bytes.size()), 913, 1);
  send(":SIM:OFF");
  send(":SIM:GARBAGE 1");
  EXPECT_NE(ask("*IDN?"), "KRM-410 SIMULATED");
  send(":SIM:OFF");
  send(":SIM:SLOW 500");
  instrument.receive("*IDN?\r\n", now += 5000);
  EXPECT_EQ(instrument.transmit(now + 400), "");
  EXPECT_NE(instrument.transmit(now + 600), "");
  send(":SIM:HANGUP 100");
  record(1);
  EXPECT_EQ(bytes.size(), 100u);
  EXPECT_TRUE(instrument.hasHungUp());
  send(":SIM:NOTHING 1");
  instrument.plugIn();
  send(":SIM:OFF");
  EXPECT_EQ(ask("*IDN?"), "KRM-410 SIMULATED");
}

}  // namespace
}  // namespace tracewell
