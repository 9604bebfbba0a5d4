// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "AppendedFile.h"
#include "MeasurementRow.h"

namespace tracewell {

/// Rows of measurements that go into a file as they come, and stay there whatever happens.
///
/// Each row is on the disk itself within 5 seconds, as long as tick is called once a second. A row
/// that is cut, as a kill or a power cut leaves one, is cut away when the file is continued; a
/// whole one without its line end gets that. What the disk does not take is held, and written when
/// it does; only what is held has a bound. Memory does not grow with the rows. Times are
/// milliseconds of Clock.
class MeasurementLog {
 public:
  static constexpr std::size_t mostHeld = 10000;
  /// A row waits no longer for those that come behind it.
  static constexpr std::int64_t longestWait = 2000;
  static constexpr std::int64_t retryInterval = 1000;

  /// Begins the file, or continues it where its heading is the same. Where it is another, the file
  /// is "<name>-2.<extension>", and so on: path() tells. Raises pathAccess.
  MeasurementLog(std::filesystem::path path, MeasurementColumns columns, std::int64_t now);
  /// Finishes it.
  ~MeasurementLog();
  MeasurementLog(const MeasurementLog&) = delete;

  /// Never raises; trouble shows in trouble().
  void append(std::int64_t wallTime, int channel, const OwnMeasurements& values, std::int64_t now);
  /// Writes and flushes what is due.
  void tick(std::int64_t now);
  /// Writes and flushes all that is held, at once. False where that cannot be.
  bool finish(std::int64_t now);

  const std::filesystem::path& path() const { return path_; }
  const MeasurementColumns& columns() const { return columns_; }
  /// Of the whole file, and written by this log.
  std::uintmax_t rows() const { return rows_; }
  std::uintmax_t ownRows() const { return ownRows_; }
  std::uintmax_t bytes() const { return file_ ? file_->size() : safeSize_; }
  std::int64_t duration(std::int64_t now) const { return now - begunAt_; }
  /// Why rows are held: the disk is full, say, or the file is gone. None while all is well.
  const std::optional<std::string>& trouble() const { return trouble_; }
  bool isDiskFull() const { return isDiskFull_; }
  std::size_t held() const { return pending_.size() - unflushed_; }
  /// Rows that were held, and for which there was no room any more.
  std::uintmax_t lost() const { return lost_; }

 private:
  void begin();
  bool continues(const std::filesystem::path& candidate);
  void forgetWritten();
  void writeAll(std::int64_t now);
  void writePending(std::int64_t now);
  void flush(std::int64_t now);
  void fail(const std::string& why, const std::error_code& reason, std::int64_t now);
  void reopen(std::int64_t now);

  /// As the user has named it, and as it is.
  std::filesystem::path wanted_;
  std::filesystem::path path_;
  MeasurementColumns columns_;
  std::int64_t begunAt_;
  /// None while there is trouble.
  std::optional<AppendedFile> file_;
  /// How much of the file the disk holds for sure.
  std::uintmax_t safeSize_ = 0;
  std::uintmax_t rows_ = 0;
  std::uintmax_t ownRows_ = 0;
  std::uintmax_t lost_ = 0;
  /// Rows that the disk does not hold for sure; the first `unflushed_` of them are written.
  std::deque<std::string> pending_;
  std::size_t unflushed_ = 0;
  std::int64_t unflushedSince_ = 0;
  std::int64_t failedAt_ = 0;
  /// What has been written behind `safeSize_` could not be cut away yet.
  bool mustBeCut_ = false;
  std::optional<std::string> trouble_;
  bool isDiskFull_ = false;
};

}  // namespace tracewell
