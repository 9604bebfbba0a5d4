// SPDX-License-Identifier: GPL-3.0-or-later
#include "Files.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "Error.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

Error fileError(int number, const std::string& what, const fs::path& path,
                const std::error_code& reason = {}) {
  std::error_code ignored;
  const fs::path whole = fs::absolute(path, ignored);
  std::string text = what + ": " + pathText(whole.empty() ? path : whole);
  if (reason) text += " (" + reason.message() + ")";
  return {number, "Tracewell", text};
}

/// Why the last operation of a stream failed.
std::error_code streamFailure() {
  return {errno, std::generic_category()};
}

/// Removes an unfinished file, whatever made it so.
class Unfinished {
 public:
  explicit Unfinished(fs::path path) : path_(std::move(path)) {}
  ~Unfinished() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }
  Unfinished(const Unfinished&) = delete;

 private:
  fs::path path_;
};

fs::path linkTarget(const fs::path& path) {
  std::error_code failed;
  const fs::path target = fs::canonical(path, failed);
  return failed ? path : target;
}

}  // namespace

std::string pathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path pathOf(const std::string& text) {
  try {
    return std::u8string(text.begin(), text.end());
  } catch (const std::exception&) {
    throw Error(pathAccess, "Tracewell", "Not a path: " + text);
  }
}

std::string readWholeFile(const fs::path& path) {
  std::error_code failed;
  const fs::file_status status = fs::status(path, failed);
  if (status.type() == fs::file_type::not_found)
    throw fileError(fileNotFound, "File not found", path);
  if (failed) throw fileError(pathAccess, "Cannot read", path, failed);
  if (!fs::is_regular_file(status)) throw fileError(pathAccess, "Not a file", path);
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  std::string bytes;
  std::array<char, 65536> block;
  while (file.read(block.data(), block.size()), file.gcount() > 0)
    bytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
  if (!file.is_open() || file.bad())
    throw fileError(pathAccess, "Cannot read", path, streamFailure());
  return bytes;
}

void writeWholeFile(const fs::path& path, std::string_view bytes) {
  const fs::path target = linkTarget(path);
  fs::path beside = target;
  beside += ".new";
  errno = 0;
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  if (!file) throw fileError(pathAccess, "Cannot write", path, streamFailure());
  const Unfinished unfinished(beside);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw fileError(diskFull, "Cannot write", path, streamFailure());
  std::error_code failed;
  fs::rename(beside, target, failed);
  if (failed) throw fileError(pathAccess, "Cannot replace", path, failed);
}

}  // namespace tracewell
