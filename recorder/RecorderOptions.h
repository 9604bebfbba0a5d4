// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "ByteChannel.h"
#include "MeasurementRow.h"

namespace tracewell {

/// What tracewell-record is told on its command line.
struct RecorderOptions {
  LineSettings line;
  std::vector<int> channels = {1};
  MeasurementColumns columns{{Quantity::maximum, Quantity::minimum, Quantity::peakToPeak,
                              Quantity::mean, Quantity::rms, Quantity::frequency},
                             {}};
  /// Files, or "-" for the standard output.
  std::optional<std::string> csv;
  std::optional<std::string> samples;
  /// Milliseconds from one request to the next.
  int interval = 1200;
  /// Milliseconds without a record after which it ends.
  int patience = 30000;
  /// New records of each channel.
  std::optional<std::int64_t> count;
  /// Milliseconds since 1970.
  std::optional<std::int64_t> until;
  bool isQuiet = false;
  bool wantsHelp = false;
  bool wantsVersion = false;

  /// An end of its own, without a signal.
  bool hasEnd() const { return count || until; }
};

class RecorderUsageError : public std::exception {
 public:
  explicit RecorderUsageError(std::string text) : text_(std::move(text)) {}
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string text_;
};

/// Throws RecorderUsageError. `now` is the time on the wall, which "--until 18:00" counts from.
RecorderOptions recorderOptions(const std::vector<std::string>& arguments, std::int64_t now);

/// All that --help says.
std::string recorderHelp();

}  // namespace tracewell
