// SPDX-License-Identifier: GPL-3.0-or-later
#include "Harmonics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "Converter.h"

namespace tracewell {
namespace {

constexpr std::size_t mostHarmonics = 5;
constexpr std::size_t mostTerms = 1 + 2 * mostHarmonics;
constexpr double turn = 2 * std::numbers::pi;

using Terms = std::array<double, mostTerms>;

bool counts(int sample) {
  return sample > converter::lowest && sample < converter::highest;
}

/// Factors of the terms whose sum fits the samples best. `basis(i)` makes the terms at a sample.
template <class Basis>
Terms fit(const Samples& samples, std::size_t terms, const Basis& basis) {
  std::array<std::array<double, mostTerms + 1>, mostTerms> equations{};
  for (std::size_t i = 0; i < samples.size(); ++i) {
    if (!counts(samples[i])) continue;
    const Terms at = basis(static_cast<double>(i));
    for (std::size_t row = 0; row < terms; ++row) {
      for (std::size_t column = row; column < terms; ++column)
        equations[row][column] += at[row] * at[column];
      equations[row][terms] += at[row] * samples[i];
    }
  }
  for (std::size_t row = 0; row < terms; ++row)
    for (std::size_t column = 0; column < row; ++column)
      equations[row][column] = equations[column][row];
  // The equations are symmetric and positive, so none has to change its place.
  for (std::size_t pivot = 0; pivot < terms; ++pivot)
    for (std::size_t row = 0; row < terms; ++row) {
      if (row == pivot) continue;
      const double factor = equations[row][pivot] / equations[pivot][pivot];
      for (std::size_t column = pivot; column <= terms; ++column)
        equations[row][column] -= factor * equations[pivot][column];
    }
  Terms result{};
  for (std::size_t i = 0; i < terms; ++i) result[i] = equations[i][terms] / equations[i][i];
  return result;
}

bool isSine(const Samples& samples, double period) {
  constexpr double mostOfHarmonic = 0.05;
  // The steps of the converter make some of their own.
  constexpr double ofSteps = 0.15 * converter::step;
  // What is faster than half the rate of the samples looks like something slower.
  const auto below = static_cast<std::size_t>(std::max(0.0, std::ceil(period / 2) - 1));
  const std::size_t harmonics = std::min(mostHarmonics, below);
  if (harmonics < 2) return false;
  const std::size_t terms = 1 + 2 * harmonics;
  const Terms found = fit(samples, terms, [&](double time) {
    const double cosine = std::cos(turn * time / period);
    const double sine = std::sin(turn * time / period);
    Terms at{1, cosine, sine};
    for (std::size_t term = 3; term < terms; term += 2) {
      at[term] = at[term - 2] * cosine - at[term - 1] * sine;
      at[term + 1] = at[term - 1] * cosine + at[term - 2] * sine;
    }
    return at;
  });
  const double fundamental = std::hypot(found[1], found[2]);
  for (std::size_t term = 3; term < terms; term += 2)
    if (!(std::hypot(found[term], found[term + 1]) <= mostOfHarmonic * fundamental + ofSteps))
      return false;
  return true;
}

/// Of samples that are seen: what hides the others has harmonics of its own. The sine must pass
/// near all of them, end where they end, and be hidden where they are not, but for noise.
bool isPartOfSine(const Samples& samples, const Sine& sine, double itsNoise) {
  constexpr double mostBeside = 0.04;
  constexpr double noise = 4 * converter::step;
  double squares = 0;
  double count = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double angle = turn * (static_cast<double>(i) - sine.rising) / sine.period;
    const double miss = samples[i] - sine.offset - sine.amplitude * std::sin(angle);
    if (!counts(samples[i])) {
      const double inside = samples[i] <= converter::lowest ? -miss : miss;
      if (inside > noise) return false;
      continue;
    }
    squares += miss * miss;
    ++count;
  }
  const auto [minimum, maximum] = std::ranges::minmax(samples);
  const auto endsAt = [&](double seen, double end) {
    const double beyond = std::fabs(end - sine.offset) - std::fabs(seen - sine.offset);
    return !counts(static_cast<int>(seen)) ||
           (beyond < converter::step && beyond > -noise - mostBeside * sine.amplitude);
  };
  return squares <= count * (std::pow(mostBeside * sine.amplitude, 2) + itsNoise * itsNoise) &&
         endsAt(minimum, sine.offset - sine.amplitude) &&
         endsAt(maximum, sine.offset + sine.amplitude);
}

/// The least that is possible with white noise (Cramer and Rao), for the part that is seen.
double periodError(const Samples& samples, const Sine& sine, double noise) {
  const auto count = static_cast<double>(std::ranges::count_if(samples, counts));
  const double ofAngle =
      std::sqrt(24 / count) * noise / (sine.amplitude * static_cast<double>(samples.size()));
  return ofAngle * sine.period * sine.period / turn;
}

}  // namespace

std::optional<Sine> sineOf(const Samples& samples, double period, double noise) {
  constexpr int rounds = 5;
  constexpr double mostMoved = 0.05;
  const bool isWhole = std::ranges::all_of(samples, counts);
  if (isWhole && !isSine(samples, period)) return std::nullopt;
  double frequency = turn / period;
  Terms found{};
  for (int round = 0; round < rounds; ++round) {
    // The fourth term is what a small change of the frequency changes.
    const Terms last = found;
    const std::size_t terms = round == 0 ? 3 : 4;
    found = fit(samples, terms, [&](double time) {
      const double cosine = std::cos(frequency * time);
      const double sine = std::sin(frequency * time);
      return Terms{1, cosine, sine, time * (last[2] * cosine - last[1] * sine)};
    });
    frequency += found[3];
  }
  Sine sine{found[0], std::hypot(found[1], found[2]), turn / frequency, 0, 0};
  const bool isNear = std::fabs(sine.period - period) <= mostMoved * period;
  if (!isNear || !std::isfinite(sine.amplitude)) return std::nullopt;
  sine.error = periodError(samples, sine, noise);
  sine.rising = std::atan2(-found[1], found[2]) / frequency;
  return isWhole || isPartOfSine(samples, sine, noise) ? std::optional(sine) : std::nullopt;
}

}  // namespace tracewell
