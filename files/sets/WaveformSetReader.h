// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reads what WaveformSetWriter writes, also after a spreadsheet has changed it.
namespace tracewell {

/// In a description, the value of a channel that was not saved.
inline constexpr const char* notSaved = "N";

/// The lines of a description file that a reader uses.
struct WaveformDescription {
  std::string picturePath;
  std::string dataFile;
  std::string author;
  std::string description;
  /// Positions at saving time in divisions, or notSaved.
  std::string channel1 = notSaved;
  std::string channel2 = notSaved;
  /// What stands in the line of the time: the volts per division of channel 1.
  std::string time;
  bool operator==(const WaveformDescription&) const = default;
};

/// Raises an error if the file is missing, too large or has fewer than seven lines.
WaveformDescription readDescription(const std::filesystem::path& path);

/// Points in graph units, one per data line; a channel that the file does not hold has none.
struct LoadedWaveforms {
  std::vector<double> channel1;
  std::vector<double> channel2;
};

/// The data lines of a ".csv" text, lifted by the positions of the description. The first line is
/// skipped; a line ends with CR LF or LF, and text behind the last line end is ignored. Raises
/// "Type mismatch" for what is no number, "Subscript out of range" at the 501st data line. In a
/// file of two columns a line with one value repeats the last point of the other channel.
LoadedWaveforms readWaveforms(const std::string& csvText, const std::string& position1,
                              const std::string& position2);

/// The first column of a ".csv" text as it stands, under the same rules.
std::vector<double> readFirstColumn(const std::string& csvText);

/// The channels of a text whose heading and lines are as WaveformSetWriter writes them. None for
/// another text, which may be read without an error, as a trace that is cut or something else.
struct SavedChannels {
  bool one;
  bool two;
};
std::optional<SavedChannels> channelsAsSaved(std::string_view csvText);

/// The whole file. Raises an error if it is larger than any waveform file can be.
std::string readWaveformFile(const std::filesystem::path& path);

}  // namespace tracewell
