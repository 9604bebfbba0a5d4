// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace tracewell {

/// What the standard library cannot: waits until the disk itself holds what was written, and gives
/// files away.
/// Implemented by desktop/DesktopDisk.
class Disk {
 public:
  virtual ~Disk() = default;

  /// The content of a file that is open for writing and has been flushed by the library.
  virtual std::error_code flush(std::FILE& file) = 0;
  /// Of the one who runs the program for another, as an administrator: gives the file, which is
  /// new and open for writing, to the owner of `like`, a file or a folder. Else, and where that
  /// fails, it stays.
  virtual void takeOwner(std::FILE& file, const std::filesystem::path& like) = 0;
  /// The names in a folder. No error where the file system has no such thing.
  virtual std::error_code flushFolder(const std::filesystem::path& folder) = 0;
};

/// The disk under every file that is written from now on; the caller's, and null for none. One for
/// the process, since files are written before there is a program that could hand it on.
void useDisk(Disk* disk);
/// Null for none.
Disk* diskInUse();

}  // namespace tracewell
