// SPDX-License-Identifier: GPL-3.0-or-later
#include "Spectrum.h"

#include <cmath>
#include <numbers>

#include "Doubles.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// 1 V and 1 ms to the division: 50 kHz, 100 Hz to the bin.
ChannelRecord recordOf(const std::function<double(double)>& units) {
  const std::string bytes =
      makeRecord([&](int i) { return static_cast<int>(std::lround(units(i))); });
  return {bytes, {}, {1, 1e-3, std::nullopt, std::nullopt}, 0, 0};
}

double sineAt(double cycles, double i) {
  return std::sin(2 * std::numbers::pi * cycles * i / 500);
}

double meanSquareOf(const ChannelRecord& record) {
  double sum = 0;
  for (const double sample : decodeSamples(record.bytes, 0)) sum += sample * sample / 50 / 50 / 500;
  return sum;
}

}  // namespace

TEST(Spectrum, SinesHaveTheirFrequencyAndHeight) {
  struct Case {
    SpectrumWindow window;
    double cycles;
    /// Hertz, and share of the height.
    double frequencyWithin;
    double heightWithin;
  };
  constexpr Case cases[] = {{SpectrumWindow::none, 20, 0.1, 0.001},
                            {SpectrumWindow::hann, 20.5, 0.5, 0.002},
                            {SpectrumWindow::hann, 33.3, 0.5, 0.002},
                            {SpectrumWindow::flatTop, 20.4, 2, 0.003}};
  for (const auto& [window, cycles, frequencyWithin, heightWithin] : cases) {
    const ChannelRecord record = recordOf([wave = cycles](double i) {
      return 1000 + 5000 * sineAt(wave, i) + 500 * sineAt(3 * wave, i);
    });
    const auto spectrum = spectrumOf({&record, 1}, window);
    const auto peaks = peaksOf(spectrum.value(), 2);
    ASSERT_EQ(peaks.size(), 2U);
    EXPECT_NEAR(peaks[0].frequency, 100 * cycles, frequencyWithin) << cycles;
    EXPECT_NEAR(peaks[0].voltsRms, 100 / std::numbers::sqrt2, 71 * heightWithin) << cycles;
    EXPECT_NEAR(peaks[1].frequency, 300 * cycles, frequencyWithin) << cycles;
    EXPECT_NEAR(peaks[1].voltsRms, 10 / std::numbers::sqrt2, 7.1 * heightWithin) << cycles;
    EXPECT_NEAR(spectrum->voltsRms[0], 20, 20 * (cycles == 20 ? 0.001 : 0.1));
  }
}

TEST(Spectrum, PowersAddUpToThoseOfTheSamples) {
  const ChannelRecord records[] = {recordOf([](double i) { return std::fmod(i * i * 7919, 977); }),
                                   recordOf([](double i) { return i < 250 ? 300 : -100; })};
  const auto spectrum = spectrumOf(records, SpectrumWindow::none);
  double sum = 0;
  for (const double height : spectrum.value().voltsRms) sum += height * height;
  EXPECT_NEAR(sum, (meanSquareOf(records[0]) + meanSquareOf(records[1])) / 2, 1e-9 * sum);
  EXPECT_NEAR(noiseBandwidth(SpectrumWindow::hann), 1.5, 1e-12);
  ChannelRecord other = records[1];
  other.madeUnder.secondsPerDivision = 2e-3;
  const ChannelRecord unlike[] = {records[0], other};
  EXPECT_FALSE(spectrumOf(unlike, SpectrumWindow::none));
  EXPECT_NEAR(Spectrum::dbv(0.1), -20, 1e-12);
}

}  // namespace tracewell
