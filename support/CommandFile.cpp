// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFile.h"

namespace tracewell {
namespace {

CommandEntry readEntry(std::string_view line) {
  CommandEntry entry;
  const std::size_t first = line.find(',');
  const std::size_t second = first == line.npos ? line.npos : line.find(',', first + 1);
  const std::size_t last = line.rfind(',');
  if (last != line.npos) entry.description = line.substr(last + 1);
  if (second == line.npos) return entry;
  entry.hasNode = true;
  entry.node = line.substr(first + 1, second - first - 1);
  const std::size_t third = line.find(',', second + 1);
  if (third != line.npos) entry.hint = line.substr(second + 1, third - second - 1);
  return entry;
}

}  // namespace

std::vector<CommandEntry> readCommandEntries(std::string_view text) {
  std::vector<CommandEntry> entries;
  std::size_t start = 1;
  for (std::size_t end = text.find("\r\n"); end != text.npos; end = text.find("\r\n", start)) {
    const std::string_view line = start <= end ? text.substr(start, end + 1 - start) : "";
    if (!line.starts_with('\'')) entries.push_back(readEntry(line));
    start = end + 2;
  }
  return entries;
}

}  // namespace tracewell
