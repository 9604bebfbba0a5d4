// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace tracewell {

/// What the standard library cannot do: wait until the disk holds what was written, give files
/// away, and list drives. Implemented by desktop/DesktopDisk, in UnixDisk.cpp and WindowsDisk.cpp.
class Disk {
 public:
  virtual ~Disk() = default;

  /// Flushes the content of a file that is open for writing and that the library has flushed.
  virtual std::error_code flush(std::FILE& file) = 0;
  /// For an administrator who runs the program for another user: gives the file, which is new and
  /// open for writing, to the owner of `like`, a file or a folder. Otherwise, or if that fails, the
  /// file keeps its owner.
  virtual void takeOwner(std::FILE& file, const std::filesystem::path& like) = 0;
  /// Flushes the names in a folder. No error if the file system cannot do that.
  virtual std::error_code flushFolder(const std::filesystem::path& folder) = 0;
  /// Gives the file the name of another, which goes. Whatever happens there is one of the two.
  virtual std::error_code rename(const std::filesystem::path& from,
                                 const std::filesystem::path& to) {
    std::error_code failed;
    std::filesystem::rename(from, to, failed);
    return failed;
  }
  /// Letters where the system has them, the one root where it has not. Asks none of them, since a
  /// drive of the network may be away.
  virtual std::vector<std::string> drives() { return {"/"}; }
};

/// The disk under every file that is written from now on; the caller's, null for none. The process
/// has one, since files are written before there is a program that could hand it on.
void useDisk(Disk* disk);
/// Null for none.
Disk* diskInUse();

}  // namespace tracewell
