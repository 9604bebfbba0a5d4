// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace tracewell {

/// What the user's folder has of each shipped file, as "shipped-files" there says: a line
/// "name,copied,offered" for each, with the sums of the contents.
class ShippedFiles {
 public:
  /// What is damaged counts as not there.
  explicit ShippedFiles(const std::filesystem::path& folder);

  /// Brings the file of this name up to the shipped content. True if that now stands beside the
  /// user's own as "<name>.new" and did not before.
  bool bring(const std::string& name, const std::string& content);
  /// Where that fails, the next start does it all again.
  void keep() const;

 private:
  struct Sums {
    /// Of what was last copied.
    std::string copied;
    /// Of what was last put beside a file that the user has changed.
    std::string offered;
    bool operator==(const Sums&) const = default;
  };
  using Record = std::map<std::string, Sums>;

  bool offer(const std::string& name, const std::string& content, Sums& sums);
  std::string text() const;

  std::filesystem::path folder_;
  Record record_;
  /// As it was read.
  std::string readText_;
};

}  // namespace tracewell
