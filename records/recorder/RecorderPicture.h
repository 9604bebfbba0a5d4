// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "RecordStore.h"
#include "Words.h"

namespace tracewell {

enum class RecorderMode { trace, spectrum, xy };
enum class SpectrumShape { hann, flatTop, none };

/// How records are drawn.
struct RecorderChoice {
  RecorderMode mode = RecorderMode::trace;
  /// How many records behind the one pointed at belong to it.
  int behind = 0;
  /// What is drawn of these: each by itself, up to mostFading; their outer edge; their mean.
  bool isFading = true;
  bool hasEnvelope = false;
  bool hasMean = false;
  SpectrumShape window = SpectrumShape::hann;
  /// Else in volts RMS.
  bool isInDecibels = true;

  static constexpr int mostFading = 20;
};

struct RecorderAxis {
  /// "V", "s", "Hz", "dBV", or "div" where a scale is not known.
  std::string unit;
  double low = 0;
  double high = 1;
  /// From grid line to grid line.
  double step = 0.1;
};

struct RecorderCurve {
  enum Kind { behind, lowest, highest, mean, record };
  Kind kind = record;
  int channel = 1;
  /// Of those behind: 1 for the one before the record.
  int age = 0;
  std::vector<double> x;
  std::vector<double> y;
};

struct RecorderPicture {
  RecorderMode mode = RecorderMode::trace;
  RecorderAxis x;
  /// Of channel 1 and 2. In X-Y channel 1 goes across, and only that of channel 2 is there.
  std::array<std::optional<RecorderAxis>, 2> y;
  /// Volts and seconds per division, where the axes are in these.
  std::optional<double> secondsPerDivision;
  std::array<std::optional<double>, 2> voltsPerDivision;
  /// In the order in which they are painted.
  std::vector<RecorderCurve> curves;
  struct Label {
    int channel = 1;
    double x = 0;
    double y = 0;
    std::string text;
  };
  std::vector<Label> labels;
  /// What else must be known about it.
  std::vector<std::string> notes;
};

/// The records of one channel: first the one pointed at, then those behind it, all made under its
/// scales.
struct DrawnRecords {
  int channel = 1;
  std::vector<RecordStore::Number> numbers;
};

RecorderPicture tracePicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                             const RecorderChoice& choice, const Words& words);
RecorderPicture xyPicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                          const Words& words);
/// Of the mean of all records of a channel.
RecorderPicture spectrumPicture(const RecordStore& store, std::span<const DrawnRecords> channels,
                                const RecorderChoice& choice, const Words& words);
/// The program has been built with spectra.
bool hasSpectra();

/// What is drawn as a table for a spreadsheet: tabs between columns, LF behind lines. The records
/// themselves, the mean and the envelope; empty where nothing is drawn.
std::string tableOf(const RecorderPicture& picture);

}  // namespace tracewell
