// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "DesktopDisk.h"

namespace tracewell {
namespace {

std::error_code lastError() {
  return {errno, std::generic_category()};
}

}  // namespace

DesktopDisk::DesktopDisk() = default;

std::error_code DesktopDisk::flush(std::FILE& file) {
  return ::fsync(::fileno(&file)) == 0 ? std::error_code() : lastError();
}

void DesktopDisk::takeOwner(std::FILE& file, const std::filesystem::path& like) {
  struct stat owner {};
  if (::geteuid() != 0 || ::stat(like.c_str(), &owner) != 0 || owner.st_uid == 0) return;
  [[maybe_unused]] const int ignored = ::fchown(::fileno(&file), owner.st_uid, owner.st_gid);
}

/// A folder that may be written but not read cannot be flushed.
std::error_code DesktopDisk::flushFolder(const std::filesystem::path& folder) {
  const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return errno == EACCES ? std::error_code() : lastError();
  const bool isFlushed = ::fsync(opened) == 0 || errno == EINVAL || errno == ENOTSUP;
  const std::error_code failure = isFlushed ? std::error_code() : lastError();
  ::close(opened);
  return failure;
}

std::error_code DesktopDisk::rename(const std::filesystem::path& from,
                                    const std::filesystem::path& to) {
  return Disk::rename(from, to);
}

std::vector<std::string> DesktopDisk::drives() {
  return Disk::drives();
}

}  // namespace tracewell
