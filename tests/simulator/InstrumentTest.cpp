// SPDX-License-Identifier: GPL-3.0-or-later
#include "Instrument.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "Played.h"
#include "ScaleTables.h"

namespace tracewell {

/// Told line by line what a script says (tests/scripts/instrument.txt).
class InstrumentScript {
 public:
  std::string play(const std::string& script) {
    std::string all;
    for (const std::string& step : split(script, ", "))
      if (const std::string told = tell(step); !told.empty()) all += "; " + told;
    return all.substr(std::min<std::size_t>(2, all.size()));
  }

  std::string tell(const std::string& line) {
    if (line == "plug in") return instrument_.plugIn(), "";
    if (line.starts_with("within=")) return patience_ = std::stod(line.substr(7)), "";
    if (line.starts_with("pause=")) return pause_ = std::stod(line.substr(6)), "";
    instrument_.receive(line + "\r\n", now_ += pause_);
    if (line.ends_with("POIN")) return textOf(instrument_.transmit(now_ + patience_));
    if (!line.ends_with('?')) return "";
    const std::string bytes = instrument_.transmit(now_ + patience_);
    if (bytes.ends_with('\n')) return bytes.substr(0, bytes.size() - 1);
    return bytes.empty() ? "none" : std::to_string(bytes.size()) + " bytes";
  }

 private:
  /// Units, roughly: the mean, from the lowest to the highest, and the middle, where the trigger
  /// is.
  std::string textOf(const std::string& bytes) {
    std::string text = "record of " + std::to_string(bytes.size());
    if (instrument_.hasHungUp()) text += ", hung up";
    if (bytes.size() != 1014) return text;
    if (std::exchange(last_, bytes.substr(14)) == bytes.substr(14)) return text + " as before";
    std::array<int, 500> samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
      samples[i] = static_cast<std::int16_t>(static_cast<unsigned char>(bytes[14 + 2 * i]) * 256 +
                                             static_cast<unsigned char>(bytes[15 + 2 * i]));
    const auto [low, high] = std::ranges::minmax(samples);
    const auto tens = [](double value) { return std::to_string(std::lround(value / 10) * 10); };
    const double mean = std::accumulate(samples.begin(), samples.end(), 0.0) / 500;
    return text + ": mean " + tens(mean) + ", height " + tens(high - low) + ", middle " +
           tens(samples[250]) + (samples[260] > samples[240] ? " rising" : " falling");
  }

  Instrument instrument_;
  double now_ = 0;
  double pause_ = 5000;
  double patience_ = 4000;
  std::string last_;
};

TEST(InstrumentTest, ComesToWhatStandsBelowIt) {
  playFile("instrument.txt",
           [](const std::string& script) { return InstrumentScript().play(script); });
}

/// Every scale of the panel is one that the instrument takes and gives back in the panel's words.
TEST(InstrumentTest, SpeaksThePanelsScales) {
  InstrumentScript instrument;
  for (std::size_t i = 0; i < voltDivSteps; ++i) {
    instrument.tell(ScaleCommandForKnob(ScaleKnob::Chan1, static_cast<double>(i)));
    EXPECT_EQ(instrument.tell(":CHAN1:SCAL?"), VoltDivText[i]);
  }
  for (std::size_t i = 0; i < timeDivSteps; ++i) {
    instrument.tell(ScaleCommandForKnob(ScaleKnob::Time, static_cast<double>(i)));
    EXPECT_EQ(instrument.tell(":TIM:SCAL?"), TimeDivText[i]);
  }
}

}  // namespace tracewell
