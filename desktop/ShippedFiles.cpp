// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShippedFiles.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <sstream>

#include "Error.h"
#include "Files.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

constexpr const char* recordFile = "shipped-files";
/// Of versions that wrote no record, and replaced the language files by their own.
constexpr const char* versionFile = "shipped-version";

/// Tells contents apart; nobody has a reason to forge one.
std::string sumOf(const std::string& content) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char c : content) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(sum));
  return digits.data();
}

bool isLanguageFile(const std::string& name) {
  return name.ends_with(".cap") || name.ends_with(".msg");
}

std::optional<std::string> contentOf(const fs::path& path, std::uintmax_t limit) {
  try {
    return readWholeFile(path, limit);
  } catch (const Error&) {
    return std::nullopt;
  }
}

/// False when it could not be done.
bool written(const fs::path& path, const std::string& content) {
  try {
    writeWholeFile(path, content);
    return true;
  } catch (const Error&) {
    return false;
  }
}

}  // namespace

ShippedFiles::ShippedFiles(const fs::path& folder) : folder_(folder) {
  readText_ = contentOf(folder / recordFile, fileLimit::shippedFiles).value_or("");
  std::istringstream lines(readText_);
  std::string name;
  Sums sums;
  while (std::getline(lines, name, ',') && std::getline(lines, sums.copied, ',') &&
         std::getline(lines, sums.offered, '\r') && lines.get() == '\n')
    record_[name] = sums;
  std::error_code ignored;
  if (fs::exists(folder / versionFile, ignored))
    std::erase_if(record_, [](const auto& entry) { return isLanguageFile(entry.first); });
}

bool ShippedFiles::bring(const std::string& name, const std::string& content) {
  const fs::path path = folder_ / name;
  std::error_code ignored;
  const bool isThere = fs::exists(fs::symlink_status(path, ignored));
  const std::optional<std::string> own =
      isThere ? contentOf(path, fileLimit::shipped) : std::nullopt;
  const bool isKnown = record_.contains(name);
  Sums& sums = record_[name];
  const bool isUnchanged = !isThere || own == content || (own && sumOf(*own) == sums.copied);
  if (!isUnchanged && !isKnown && isLanguageFile(name)) {
    // Most likely of an earlier version; the words of this one are needed.
    try {
      keepAside(path);
    } catch (const Error&) {
      return false;
    }
  } else if (!isUnchanged) {
    return offer(name, content, sums);
  }
  if (own == content || written(path, content)) sums.copied = sumOf(content);
  return false;
}

/// Nothing is new that the user's own began as, or that was offered before.
bool ShippedFiles::offer(const std::string& name, const std::string& content, Sums& sums) {
  const std::string sum = sumOf(content);
  if (sum == sums.copied || sum == sums.offered) return false;
  if (!written(folder_ / (name + ".new"), content)) return false;
  sums.offered = sum;
  return true;
}

std::string ShippedFiles::text() const {
  std::string text;
  for (const auto& [name, sums] : record_)
    text += name + "," + sums.copied + "," + sums.offered + "\r\n";
  return text;
}

void ShippedFiles::keep() const {
  std::error_code ignored;
  if (text() == readText_ || written(folder_ / recordFile, text()))
    fs::remove(folder_ / versionFile, ignored);
}

}  // namespace tracewell
