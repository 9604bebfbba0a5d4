// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppendedFile.h"

#include <utility>

#include "Disk.h"
#include "FileError.h"
#include "SystemFiles.h"

namespace tracewell {

namespace fs = std::filesystem;

AppendedFile::AppendedFile(fs::path path) : path_(std::move(path)) {
  std::error_code failed;
  const fs::file_status status = fs::status(path_, failed);
  isNew_ = status.type() == fs::file_type::not_found;
  if (!isNew_ && failed) throw cannotWrite(path_, failed);
  if (!isNew_ && !fs::is_regular_file(status)) throw notAFile(path_);
  file_.reset(openToAppend(path_));
  if (file_ == nullptr) throw cannotWrite(path_);
  // What could not be written is not to come later by itself.
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
  if (isNew_ && diskInUse() != nullptr)
    diskInUse()->takeOwner(*file_, path_.has_parent_path() ? path_.parent_path() : ".");
  size_ = fs::file_size(path_, failed);
  if (failed) throw cannotWrite(path_, failed);
}

std::error_code AppendedFile::append(std::string_view bytes) {
  errno = 0;
  const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get());
  size_ += written;
  if (written == bytes.size()) return {};
  // A system that gives no reason must not make it a success.
  const std::error_code failure = lastFailure();
  return failure ? failure : std::make_error_code(std::errc::io_error);
}

std::error_code AppendedFile::flush() {
  if (diskInUse() == nullptr) return {};
  if (const std::error_code failed = diskInUse()->flush(*file_)) return failed;
  if (!std::exchange(isNew_, false)) return {};
  return diskInUse()->flushFolder(path_.has_parent_path() ? path_.parent_path() : ".");
}

std::error_code AppendedFile::cutTo(std::uintmax_t size) {
  std::error_code failed;
  fs::resize_file(path_, size, failed);
  if (!failed) size_ = size;
  return failed;
}

bool AppendedFile::isAsWritten() const {
  std::error_code failed;
  return fs::file_size(path_, failed) == size_ && !failed;
}

}  // namespace tracewell
