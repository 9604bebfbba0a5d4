// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The command list "dso.cmd": "number,node text,hint,description" lines ended by CR LF. The very
/// first character of the file belongs to no line; a line keeps its CR, which so ends its last
/// field; a line that begins with "'" is a comment; text behind the last line end is not read.
namespace tracewell {

struct CommandEntry {
  /// Text of the node; none for a line with fewer than two commas.
  std::string node;
  bool hasNode = false;
  std::string hint;
  std::string description;
};

/// Every line but the comments, in order.
std::vector<CommandEntry> readCommandEntries(std::string_view text);

}  // namespace tracewell
