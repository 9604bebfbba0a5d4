// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace tracewell {

/// Waits until the disk itself holds what was written, which the standard library cannot.
/// Implemented by desktop/DesktopDisk.
class Disk {
 public:
  virtual ~Disk() = default;

  /// The content of a file that is open for writing and has been flushed by the library.
  virtual std::error_code flush(std::FILE& file) = 0;
  /// The names in a folder. No error where the file system has no such thing.
  virtual std::error_code flushFolder(const std::filesystem::path& folder) = 0;
};

/// The disk under every file that is written from now on; the caller's, and null for none. One for
/// the process, since files are written before there is a program that could hand it on.
void useDisk(Disk* disk);

}  // namespace tracewell
