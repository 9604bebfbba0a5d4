// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasurementLog.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <utility>

#include "Error.h"
#include "FileError.h"
#include "Files.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

/// "log.csv", "log-2.csv", "log-3.csv", ...
fs::path numbered(const fs::path& path, int number) {
  if (number == 1) return path;
  fs::path name = path.stem();
  name += "-" + std::to_string(number);
  name += path.extension();
  return path.parent_path() / name;
}

std::string firstBytes(const fs::path& path, std::size_t count) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(count, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(count));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

std::uintmax_t countLines(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::array<char, 65536> block;
  std::uintmax_t lines = 0;
  do {
    file.read(block.data(), block.size());
    lines +=
        static_cast<std::uintmax_t>(std::count(block.begin(), block.begin() + file.gcount(), '\n'));
  } while (file);
  return lines;
}

bool isOutOfRoom(const std::error_code& reason) {
#ifdef EDQUOT
  if (reason.value() == EDQUOT) return true;
#endif
  return reason == std::errc::no_space_on_device;
}

/// Where the last whole line ends. Behind it there may be a line that was cut, or, after a power
/// cut, bytes 0 that were never written.
std::uintmax_t endOfWholeLines(const fs::path& path) {
  constexpr std::uintmax_t block = 65536;
  std::uintmax_t limit = block;
  while (true) {
    const FileEnd end = readFileEnd(path, limit);
    const std::size_t written = std::min(end.bytes.find('\0'), end.bytes.size());
    const std::size_t lineEnd = end.bytes.substr(0, written).rfind('\n');
    if (lineEnd != std::string::npos) return end.size - end.bytes.size() + lineEnd + 1;
    if (end.isWhole()) return 0;
    limit *= 2;
  }
}

/// Whether only its line end is missing to the last row, as after some text editors.
bool isRowBehind(const fs::path& path, std::uintmax_t wholeLines,
                 const MeasurementColumns& columns) {
  constexpr std::uintmax_t longestRow = 65536;
  const FileEnd end = readFileEnd(path, longestRow);
  const std::uintmax_t before = end.size - end.bytes.size();
  return wholeLines >= before &&
         columns.isRow(std::string_view(end.bytes).substr(wholeLines - before));
}

}  // namespace

MeasurementLog::MeasurementLog(fs::path path, MeasurementColumns columns, std::int64_t now)
    : wanted_(std::move(path)), columns_(std::move(columns)), begunAt_(now) {
  begin();
}

MeasurementLog::~MeasurementLog() {
  finish(failedAt_);
}

bool MeasurementLog::finish(std::int64_t now) {
  writeAll(now);
  // Only the flush finds out that another program has had the file, which is then begun again.
  if (!pending_.empty() && !isDiskFull_) writeAll(now);
  return pending_.empty();
}

void MeasurementLog::writeAll(std::int64_t now) {
  if (!file_) reopen(now);
  writePending(now);
  flush(now);
}

void MeasurementLog::begin() {
  constexpr int mostFiles = 1000;
  for (int number = 1; number <= mostFiles; ++number)
    if (continues(numbered(wanted_, number))) return;
  throw fileError(pathAccess, "There are too many files of that name", wanted_);
}

/// Takes the file if it has the same heading, or none yet.
bool MeasurementLog::continues(const fs::path& candidate) {
  const std::string heading = columns_.heading();
  std::error_code unknown;
  const bool isNew = fs::status(candidate, unknown).type() == fs::file_type::not_found;
  AppendedFile file(candidate);
  const std::string begins = firstBytes(candidate, heading.size());
  const bool isSame = begins == heading;
  if (!isSame && (!heading.starts_with(begins) || begins.size() < file.size())) return false;
  const std::uintmax_t whole = isSame ? endOfWholeLines(candidate) : 0;
  std::error_code failed;
  if (isSame && isRowBehind(candidate, whole, columns_))
    failed = file.append("\n");
  else if (whole < file.size())
    failed = file.cutTo(whole);
  if (!failed && whole == 0) failed = file.append(heading);
  if (!failed) failed = file.flush();
  if (failed) {
    if (whole == 0) file.cutTo(0);
    // Windows removes no file that is open.
    { const AppendedFile closed(std::move(file)); }
    if (isNew) fs::remove(candidate, unknown);
    throw cannotWrite(candidate, failed, isOutOfRoom(failed) ? diskFull : pathAccess);
  }
  if (candidate == path_) forgetWritten();
  path_ = candidate;
  rows_ = countLines(candidate) - 1;
  safeSize_ = file.size();
  file_.emplace(std::move(file));
  return true;
}

/// Another program has had the file. Rows that it has left there, or put its own lines between, are
/// not written again.
void MeasurementLog::forgetWritten() {
  std::ifstream file(path_, std::ios::binary);
  file.seekg(static_cast<std::streamoff>(safeSize_));
  for (std::string line; !pending_.empty() && std::getline(file, line);) {
    if (line + "\n" != pending_.front()) continue;
    pending_.pop_front();
    ++ownRows_;
  }
}

void MeasurementLog::append(std::int64_t wallTime, int channel, const OwnMeasurements& values,
                            std::int64_t now) {
  pending_.push_back(columns_.row(wallTime, channel, values));
  tick(now);
  while (pending_.size() > mostHeld + unflushed_) {
    pending_.erase(pending_.begin() + static_cast<std::ptrdiff_t>(unflushed_));
    ++lost_;
  }
}

void MeasurementLog::tick(std::int64_t now) {
  if (!file_ && now - failedAt_ >= retryInterval) reopen(now);
  writePending(now);
  if (unflushed_ > 0 && now - unflushedSince_ >= longestWait) flush(now);
}

void MeasurementLog::writePending(std::int64_t now) {
  while (file_ && unflushed_ < pending_.size()) {
    const std::error_code failed = file_->append(pending_[unflushed_]);
    if (failed) return fail("Cannot write", failed, now);
    if (unflushed_++ == 0) unflushedSince_ = now;
    ++rows_;
    ++ownRows_;
  }
}

void MeasurementLog::flush(std::int64_t now) {
  if (!file_) return;
  if (!file_->isAsWritten()) return fail("Changed by another program", {}, now);
  const std::error_code failed = file_->flush();
  if (failed) return fail("Cannot write", failed, now);
  pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(unflushed_));
  unflushed_ = 0;
  safeSize_ = file_->size();
  trouble_.reset();
  isDiskFull_ = false;
}

/// What is not on the disk for sure is written again later, so that no row is there twice or cut.
void MeasurementLog::fail(const std::string& why, const std::error_code& reason, std::int64_t now) {
  trouble_ = fileError(pathAccess, why, path_, reason).description();
  isDiskFull_ = isOutOfRoom(reason);
  failedAt_ = now;
  mustBeCut_ = file_->isAsWritten() && file_->cutTo(safeSize_);
  file_.reset();
  rows_ -= unflushed_;
  ownRows_ -= unflushed_;
  unflushed_ = 0;
}

/// A file that is as this log has left it goes on; else another program has had it, and it is begun
/// like any file.
void MeasurementLog::reopen(std::int64_t now) {
  try {
    std::error_code failed;
    if (mustBeCut_) fs::resize_file(path_, safeSize_, failed);
    if (failed) throw cannotWrite(path_, failed);
    mustBeCut_ = false;
    const std::uintmax_t size = fs::file_size(path_, failed);
    if (failed || size != safeSize_) return begin();
    file_.emplace(path_);
  } catch (const Error& error) {
    trouble_ = error.description();
    failedAt_ = now;
  }
}

}  // namespace tracewell
