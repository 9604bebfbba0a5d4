// SPDX-License-Identifier: GPL-3.0-or-later
#include "Spectrum.h"

#include <fftw3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "WaveformRecord.h"

namespace tracewell {
namespace {

constexpr std::size_t count = WaveformRecord::sampleCount;
constexpr std::size_t binCount = count / 2 + 1;
constexpr double unitsPerDivision = 50;

/// The factors of cosines that a window is the sum of, and how far a peak's foot reaches, in bins.
struct WindowForm {
  std::array<double, 5> factors;
  std::size_t foot;
};
const WindowForm& formOf(SpectrumWindow window) {
  static constexpr std::array<WindowForm, 3> forms = {
      {{{0.5, -0.5}, 2}, {{1, -1.933, 1.286, -0.388, 0.0322}, 5}, {{1}, 1}}};
  return forms[static_cast<std::size_t>(window)];
}

std::array<double, count> weightsOf(SpectrumWindow window) {
  const WindowForm& form = formOf(window);
  std::array<double, count> weights{};
  for (std::size_t i = 0; i < count; ++i)
    for (std::size_t term = 0; term < form.factors.size(); ++term) {
      const double turns = static_cast<double>(term * i) / count;
      weights[i] += form.factors[term] * std::cos(2 * std::numbers::pi * turns);
    }
  return weights;
}

/// The transform of 500 real values. It is planned once, without measuring, so that the same values
/// make the same spectrum.
class Transform {
 public:
  Transform()
      : in_(fftw_alloc_real(count)),
        out_(fftw_alloc_complex(binCount)),
        plan_(fftw_plan_dft_r2c_1d(count, in_, out_, FFTW_ESTIMATE)) {}
  ~Transform() {
    fftw_destroy_plan(plan_);
    fftw_free(out_);
    fftw_free(in_);
  }
  Transform(const Transform&) = delete;

  double& operator[](std::size_t sample) { return in_[sample]; }
  void carryOut() { fftw_execute(plan_); }
  double power(std::size_t bin) const {
    return out_[bin][0] * out_[bin][0] + out_[bin][1] * out_[bin][1];
  }

 private:
  double* in_;
  fftw_complex* out_;
  fftw_plan plan_;
};

/// A sine has half of its amplitude in its bin, and the other half at the negative frequency.
double sidesOf(std::size_t bin) {
  return bin == 0 || bin == binCount - 1 ? 1 : 2;
}

bool canBeMeant(std::span<const ChannelRecord> records) {
  const auto fits = [&](const ChannelRecord& record) {
    return record.bytes.size() == WaveformRecord::byteCount && record.madeUnder.voltsPerDivision &&
           record.madeUnder.secondsPerDivision &&
           record.madeUnder.secondsPerDivision == records[0].madeUnder.secondsPerDivision;
  };
  return !records.empty() && std::ranges::all_of(records, fits);
}

/// Where the top of a single sine is between the bins, and how much higher than its highest bin.
/// The side of the higher neighbour and that neighbour's share of the highest tell it.
struct Top {
  double shift;
  double rise;
};
Top topOf(SpectrumWindow window, double left, double middle, double right) {
  const double share = std::max(left, right) / middle;
  const double side = right > left ? 1 : -1;
  double shift = 0;
  if (window == SpectrumWindow::hann) shift = std::max(0.0, (2 * share - 1) / (share + 1));
  if (window == SpectrumWindow::none) shift = share / (share + 1);
  if (shift == 0) return {0, 1};
  const double angle = std::numbers::pi * shift;
  const double lost = window == SpectrumWindow::hann ? 1 - shift * shift : 1;
  return {side * shift, lost * angle / std::sin(angle)};
}

/// The middle of the powers of the flat top, which is as wide to the one side as to the other.
double flatTopMiddle(const std::vector<double>& heights, std::size_t bin) {
  const std::size_t foot =
      std::min({formOf(SpectrumWindow::flatTop).foot, bin, heights.size() - 1 - bin});
  double sum = 0;
  double moment = 0;
  for (std::size_t at = bin - foot; at <= bin + foot; ++at) {
    sum += heights[at] * heights[at];
    moment += heights[at] * heights[at] * static_cast<double>(at);
  }
  return moment / sum;
}

SpectrumPeak peakAt(const Spectrum& spectrum, std::size_t bin) {
  const std::vector<double>& heights = spectrum.voltsRms;
  if (spectrum.window == SpectrumWindow::flatTop)
    return {spectrum.resolution * flatTopMiddle(heights, bin), heights[bin]};
  const Top top = topOf(spectrum.window, heights[bin - 1], heights[bin], heights[bin + 1]);
  return {spectrum.resolution * (static_cast<double>(bin) + top.shift), heights[bin] * top.rise};
}

}  // namespace

double Spectrum::dbv(double voltsRms) {
  constexpr double lowest = 1e-10;
  return 20 * std::log10(std::max(voltsRms, lowest));
}

double noiseBandwidth(SpectrumWindow window) {
  double sum = 0;
  double squares = 0;
  for (const double weight : weightsOf(window)) {
    sum += weight;
    squares += weight * weight;
  }
  return count * squares / (sum * sum);
}

std::optional<Spectrum> spectrumOf(std::span<const ChannelRecord> records, SpectrumWindow window) {
  if (!canBeMeant(records)) return std::nullopt;
  const std::array<double, count> weights = weightsOf(window);
  const double sum = count * formOf(window).factors[0];
  std::array<double, binCount> squares{};
  Transform transform;
  for (const ChannelRecord& record : records) {
    const Samples samples = decodeSamples(record.bytes, 0);
    const double voltsPerUnit = *record.madeUnder.voltsPerDivision / unitsPerDivision;
    for (std::size_t i = 0; i < count; ++i) transform[i] = voltsPerUnit * samples[i] * weights[i];
    transform.carryOut();
    for (std::size_t bin = 0; bin < binCount; ++bin)
      squares[bin] += sidesOf(bin) * transform.power(bin) / (sum * sum);
  }
  const double seconds = *records[0].madeUnder.secondsPerDivision / unitsPerDivision * count;
  Spectrum spectrum{window, 1 / seconds, {}, records.size()};
  for (const double square : squares)
    spectrum.voltsRms.push_back(std::sqrt(square / static_cast<double>(records.size())));
  return spectrum;
}

std::vector<SpectrumPeak> peaksOf(const Spectrum& spectrum, std::size_t most) {
  const std::vector<double>& heights = spectrum.voltsRms;
  const std::size_t foot = formOf(spectrum.window).foot;
  std::vector<std::size_t> tops;
  for (std::size_t bin = foot; bin + 1 < heights.size(); ++bin) {
    const auto begin = heights.begin() + static_cast<std::ptrdiff_t>(bin - std::min(bin, foot));
    const auto end =
        heights.begin() + static_cast<std::ptrdiff_t>(std::min(bin + foot + 1, heights.size()));
    if (heights[bin] > 0 &&
        std::max_element(begin, end) - heights.begin() == static_cast<std::ptrdiff_t>(bin))
      tops.push_back(bin);
  }
  std::ranges::sort(tops, [&](std::size_t a, std::size_t b) { return heights[a] > heights[b]; });
  tops.resize(std::min(tops.size(), most));
  std::vector<SpectrumPeak> peaks;
  for (const std::size_t bin : tops) peaks.push_back(peakAt(spectrum, bin));
  return peaks;
}

}  // namespace tracewell
