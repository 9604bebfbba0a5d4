// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderOutput.h"

#include <cstdio>

#include "Error.h"
#include "FileError.h"
#include "Files.h"

namespace tracewell {
namespace {

constexpr const char* standardOutput = "-";

void print(std::string_view text) {
  errno = 0;
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
    throw Error(diskFull, "Tracewell",
                "Cannot write to the standard output (" + lastFailure().message() + ")");
}

}  // namespace

RecorderOutput::RecorderOutput(const RecorderOptions& options)
    : options_(options), samples_(options.channels) {}

void RecorderOutput::begin(std::int64_t now) {
  if (options_.csv == standardOutput)
    print(options_.columns.heading());
  else if (options_.csv)
    log_.emplace(pathOf(*options_.csv), options_.columns, now);
  if (!options_.samples) return;
  if (options_.samples != standardOutput) samplesFile_.emplace(pathOf(*options_.samples));
  if (samplesFile_ && samplesFile_->size() > 0)
    throw fileError(pathAccess, "It is there already", samplesFile_->path());
  writeSamples(samples_.heading());
}

void RecorderOutput::take(int channel, const ChannelRecord& record, const OwnMeasurements& values,
                          std::int64_t wallTime, std::int64_t now) {
  if (log_)
    log_->append(wallTime, channel, values, now);
  else if (options_.csv)
    print(options_.columns.row(wallTime, channel, values));
  if (options_.samples && SamplesTable::canHold(record))
    writeSamples(samples_.rows(channel == 1 ? &record : nullptr, channel == 2 ? &record : nullptr));
}

void RecorderOutput::writeSamples(std::string_view text) {
  if (!samplesFile_) return print(text);
  const std::uintmax_t whole = samplesFile_->size();
  const std::error_code failed = samplesFile_->append(text);
  if (!failed) return;
  samplesFile_->cutTo(whole);
  throw fileError(diskFull, "Cannot write", samplesFile_->path(), failed);
}

void RecorderOutput::tick(std::int64_t now) {
  if (log_) log_->tick(now);
}

bool RecorderOutput::finish(std::int64_t now) {
  bool isWritten = true;
  if (samplesFile_) isWritten = !samplesFile_->flush();
  if (log_) isWritten = log_->finish(now) && isWritten;
  return isWritten;
}

std::optional<std::string> RecorderOutput::trouble() const {
  return log_ ? log_->trouble() : std::nullopt;
}

}  // namespace tracewell
