// SPDX-License-Identifier: GPL-3.0-or-later
#include "Files.h"

#include <algorithm>
#include <array>
#include <fstream>

#include "FileError.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

std::ifstream openForReading(const fs::path& path) {
  std::error_code failed;
  const fs::file_status status = fs::status(path, failed);
  if (status.type() == fs::file_type::not_found)
    throw fileError(fileNotFound, "File not found", path);
  if (failed) throw cannotRead(path, failed);
  if (!fs::is_regular_file(status)) throw notAFile(path);
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open()) throw cannotRead(path);
  return file;
}

/// What the file holds from here on, at most `limit` bytes.
std::string readUpTo(std::ifstream& file, const fs::path& path, std::uintmax_t limit) {
  std::string bytes;
  std::array<char, 65536> block;
  while (bytes.size() < limit) {
    const auto wanted = std::min<std::uintmax_t>(block.size(), limit - bytes.size());
    file.read(block.data(), static_cast<std::streamsize>(wanted));
    if (file.gcount() == 0) break;
    bytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) throw cannotRead(path);
  return bytes;
}

}  // namespace

Error fileError(int number, const std::string& what, const fs::path& path,
                const std::error_code& reason) {
  std::string text = what + ": " + wholePathText(path);
  if (reason) text += " (" + reason.message() + ")";
  return {number, "Tracewell", text};
}

Error cannotRead(const fs::path& path, const std::error_code& reason) {
  return fileError(pathAccess, "Cannot read", path, reason);
}

Error cannotWrite(const fs::path& path, const std::error_code& reason, int number) {
  return fileError(number, "Cannot write", path, reason);
}

Error notAFile(const fs::path& path) {
  return fileError(pathAccess, "Not a file", path);
}

std::string pathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path wholePath(const fs::path& path) {
  std::error_code ignored;
  const fs::path whole = fs::absolute(path, ignored);
  return whole.empty() ? path : whole;
}

std::string wholePathText(const fs::path& path) {
  return pathText(wholePath(path));
}

fs::path pathOf(const std::string& text) {
  try {
    return std::u8string(text.begin(), text.end());
  } catch (const std::exception&) {
    throw Error(pathAccess, "Tracewell", "Not a path: " + text);
  }
}

/// The size that the system states is not asked: it is none for some files, and may change.
std::string readWholeFile(const fs::path& path, std::uintmax_t limit) {
  std::ifstream file = openForReading(path);
  std::string bytes = readUpTo(file, path, limit + 1);
  if (bytes.size() > limit)
    throw fileError(pathAccess, "Larger than the " + std::to_string(limit) + " bytes allowed",
                    path);
  return bytes;
}

void checkReadable(const fs::path& path, std::string_view bytes, std::uintmax_t limit) {
  if (bytes.size() > limit)
    throw fileError(pathAccess,
                    "Not written, since " + std::to_string(bytes.size()) +
                        " bytes are more than the " + std::to_string(limit) +
                        " that could be read again",
                    path);
}

FileEnd readFileEnd(const fs::path& path, std::uintmax_t limit) {
  std::ifstream file = openForReading(path);
  file.seekg(0, std::ios::end);
  const std::streamoff size = file.tellg();
  if (size < 0) throw cannotRead(path);
  const std::streamoff skipped =
      std::max<std::streamoff>(0, size - static_cast<std::streamoff>(limit));
  file.seekg(skipped);
  std::string bytes = readUpTo(file, path, limit);
  const std::uintmax_t whole = static_cast<std::uintmax_t>(skipped) + bytes.size();
  return {std::move(bytes), whole};
}

}  // namespace tracewell
