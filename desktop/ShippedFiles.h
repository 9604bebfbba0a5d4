// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace tracewell {

/// Which content of each shipped file the user's folder has. "shipped-files" there has a line
/// "name,copied,offered" for each, with the sums of the contents.
class ShippedFiles {
 public:
  /// A damaged line counts as missing.
  explicit ShippedFiles(const std::filesystem::path& folder);

  /// Updates the file of this name to the shipped content. True if that now stands beside the
  /// user's own as "<name>.new" and did not before.
  bool bring(const std::string& name, const std::string& content);
  /// If that fails, the next start does it all again.
  void keep() const;

 private:
  struct Sums {
    /// Sum of the content last copied.
    std::string copied;
    /// Sum of the content last put beside a file that the user has changed.
    std::string offered;
    bool operator==(const Sums&) const = default;
  };
  using Record = std::map<std::string, Sums>;

  bool offer(const std::string& name, const std::string& content, Sums& sums);
  std::string text() const;

  std::filesystem::path folder_;
  Record record_;
  /// The text as read.
  std::string readText_;
};

}  // namespace tracewell
