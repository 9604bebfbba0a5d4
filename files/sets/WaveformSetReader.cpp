// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveformSetReader.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "Error.h"
#include "Files.h"
#include "Graph.h"
#include "Numbers.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

constexpr double unitsToADivision = Graph::unitsPerDivision;

/// Takes the next complete line off the front of `text`; false when there is none.
bool takeLine(std::string_view& text, std::string_view& line) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) return false;
  line = text.substr(0, end);
  if (line.ends_with('\r')) line.remove_suffix(1);
  text.remove_prefix(end + 1);
  return true;
}

/// Takes the next line off the front of a description; false when there is none. A lone LF is text
/// there, since a file may have one in its name.
bool takeDescriptionLine(std::string_view& text, std::string_view& line) {
  const std::size_t end = text.find("\r\n");
  if (end == std::string_view::npos) return false;
  line = text.substr(0, end);
  text.remove_prefix(end + 2);
  return true;
}

/// Calls `take` with every data line of the text.
template <class Take>
void forEachDataLine(std::string_view text, Take take) {
  std::string_view line;
  takeLine(text, line);
  for (int count = 0; takeLine(text, line); ++count) {
    try {
      if (count >= WaveformRecord::sampleCount) throw subscriptError();
      take(line);
    } catch (const Error& error) {
      const std::string place = " in data line " + std::to_string(count + 1);
      throw Error(error.number(), error.source(), error.description() + place);
    }
  }
}

double sample(std::string_view text) {
  return toInt16(text);
}

/// Where a line of a file of two columns has one value, so that later points keep their places.
void repeatLast(std::vector<double>& points) {
  points.push_back(points.empty() ? 0 : points.back());
}

/// What a trace at that position is lifted by; none for one that is not there.
std::optional<double> liftOf(const std::string& position) {
  if (position == notSaved) return std::nullopt;
  try {
    return checked(toDouble(position) * unitsToADivision);
  } catch (const Error& error) {
    throw Error(error.number(), error.source(),
                error.description() + " in the description: " + position);
  }
}

double lifted(std::string_view text, const std::optional<double>& lift) {
  if (!lift) throw typeMismatchError();
  return sample(text) + *lift;
}

}  // namespace

std::string readWaveformFile(const std::filesystem::path& path) {
  return readWholeFile(path, fileLimit::waveformData);
}

WaveformDescription readDescription(const std::filesystem::path& path) {
  const std::string text = readWholeFile(path, fileLimit::description);
  WaveformDescription result;
  std::string_view rest = text;
  for (std::string* part :
       {&result.picturePath, &result.dataFile, &result.author, &result.description,
        &result.channel1, &result.channel2, &result.time}) {
    std::string_view line;
    if (!takeDescriptionLine(rest, line))
      throw Error(invalidProcedureCall, "Tracewell", "Not a description: " + pathText(path));
    *part = line;
  }
  return result;
}

LoadedWaveforms readWaveforms(const std::string& csvText, const std::string& position1,
                              const std::string& position2) {
  LoadedWaveforms loaded;
  const bool hasOnlyChannel1 = position2 == notSaved;
  bool hasTwoColumns = false;
  forEachDataLine(csvText, [&](std::string_view line) {
    hasTwoColumns = hasTwoColumns || line.find(',') != std::string_view::npos;
  });
  // The position of a column that is not there does not matter.
  const std::optional<double> lift1 =
      hasTwoColumns || hasOnlyChannel1 ? liftOf(position1) : std::nullopt;
  const std::optional<double> lift2 = liftOf(position2);
  forEachDataLine(csvText, [&](std::string_view line) {
    const std::size_t comma = line.find(',');
    const bool hasBoth = comma != std::string_view::npos;
    if (hasBoth || hasOnlyChannel1)
      loaded.channel1.push_back(lifted(line.substr(0, comma), lift1));
    else if (hasTwoColumns)
      repeatLast(loaded.channel1);
    if (hasBoth || !hasOnlyChannel1)
      loaded.channel2.push_back(toInt16(lifted(hasBoth ? line.substr(comma + 1) : line, lift2)));
    else if (hasTwoColumns)
      repeatLast(loaded.channel2);
  });
  return loaded;
}

std::vector<double> readFirstColumn(const std::string& csvText) {
  std::vector<double> points;
  forEachDataLine(csvText, [&](std::string_view line) {
    points.push_back(sample(line.substr(0, line.find(','))));
  });
  return points;
}

std::optional<SavedChannels> channelsAsSaved(std::string_view csvText) {
  std::string_view heading, line;
  takeLine(csvText, heading);
  const bool hasBoth = heading == "Channel 1,Channel 2";
  const SavedChannels channels{hasBoth || heading == "Channel 1",
                               hasBoth || heading == "Channel 2"};
  if (!channels.one && !channels.two) return std::nullopt;
  int count = 0;
  for (; takeLine(csvText, line); ++count)
    if (std::ranges::count(line, ',') != (hasBoth ? 1 : 0)) return std::nullopt;
  const bool isWhole = count == WaveformRecord::sampleCount && csvText.empty();
  return isWhole ? std::optional(channels) : std::nullopt;
}

}  // namespace tracewell
