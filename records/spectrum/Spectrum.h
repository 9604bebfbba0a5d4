// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "ChannelRecord.h"

/// What frequencies a record consists of, by FFTW.
namespace tracewell {

/// With the Hann window lines are told apart, with the flat top their heights are true (within
/// 0.02 dB wherever they fall), none is for signals that repeat within the record.
/// The flat top's five factors are those of the ISO 18431-2 flat-top window.
enum class SpectrumWindow { hann, flatTop, none };

struct SpectrumPeak {
  /// Hertz, and volts RMS, of the sine that would make this peak. Between the bins it is found by
  /// the form that the window gives a sine, which is exact for a single one with Hann or none; with
  /// the flat top its height is the bin's, and its frequency the middle of the powers around.
  double frequency = 0;
  double voltsRms = 0;
};

/// The single-sided spectrum of 500 samples: 251 bins from 0 Hz to half the rate of the samples.
struct Spectrum {
  SpectrumWindow window = SpectrumWindow::hann;
  /// Hertz from bin to bin: the inverse of the record's length.
  double resolution = 0;
  /// Volts RMS of a sine at each bin's frequency; at 0 Hz the direct voltage. Their squares,
  /// divided by the window's noise bandwidth, add up to the mean square of the samples.
  std::vector<double> voltsRms;
  /// How many records it is the mean of.
  std::size_t records = 0;

  double frequencyOf(std::size_t bin) const { return resolution * static_cast<double>(bin); }
  /// 20 log10 of volts RMS; no less than -200.
  static double dbv(double voltsRms);
};

/// Of records with scales that are known and the same time base, the mean of their powers. None
/// where there is no record, a scale is not known, a record is cut, or the time bases differ.
std::optional<Spectrum> spectrumOf(std::span<const ChannelRecord> records, SpectrumWindow window);

/// In bins: how much wider than one bin the window takes white noise to be.
double noiseBandwidth(SpectrumWindow window);

/// The highest peaks beyond 0 Hz, the highest first; what the window's foot makes of one is no
/// other.
std::vector<SpectrumPeak> peaksOf(const Spectrum& spectrum, std::size_t most);

}  // namespace tracewell
