// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "AppendedFile.h"
#include "ChannelRecord.h"
#include "MeasurementLog.h"
#include "RecorderOptions.h"
#include "SamplesCsv.h"

namespace tracewell {

/// Where records go: rows of measurements and samples, into files or to the standard output.
class RecorderOutput {
 public:
  explicit RecorderOutput(const RecorderOptions& options);
  /// Begins the files. Raises what writing them raises.
  void begin(std::int64_t now);

  /// Raises diskFull when the standard output or the file of samples takes no more; a log holds
  /// what its disk does not take.
  void take(int channel, const ChannelRecord& record, const OwnMeasurements& values,
            std::int64_t wallTime, std::int64_t now);
  /// To be called once a second, at least.
  void tick(std::int64_t now);
  /// Writes what is held. False where that could not be.
  bool finish(std::int64_t now);

  /// Why the log holds rows, as long as it does.
  std::optional<std::string> trouble() const;

 private:
  void writeSamples(std::string_view text);

  const RecorderOptions& options_;
  std::optional<MeasurementLog> log_;
  std::optional<AppendedFile> samplesFile_;
  SamplesTable samples_;
};

}  // namespace tracewell
