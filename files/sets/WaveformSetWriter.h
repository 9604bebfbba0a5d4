// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "Words.h"

/// Waveform sets: a picture, and beside it data and description, whose lines end with CR LF.
namespace tracewell {

struct SavedTrace {
  /// As received, header included.
  std::string record;
  /// In divisions.
  double position = 0;
  /// Volts per division as the instrument writes it; empty where it is not known.
  std::string scale;
};

/// What is saved beside the picture.
struct WaveformSet {
  /// Of channel 1 and 2; none for a channel that is not saved.
  std::array<std::optional<SavedTrace>, 2> traces;
  /// In divisions.
  double timePosition = 0;
  std::string author;
  std::string description;
};

/// The samples: a line of headings, then 500 lines. A sample is its low byte alone, minus 256
/// unless the high byte is 0. Without a trace the text is empty. Raises "Subscript out of range"
/// for a record that is cut, or empty.
std::string BuildCsvText(const WaveformSet& set);

/// The nine lines that describe a set: picture, data file, author, description, positions, scales
/// (channel 1's twice, as readers expect), time position. notSaved stands for a channel that is not
/// saved, and a blank for a line break in author and description.
std::string buildInfText(const WaveformSet& set, const std::string& picturePath);

/// The bytes of the three files.
struct WaveformSetFiles {
  std::string csv;
  std::string inf;
  std::string picture;
};
/// Writes all three, or none. Raises pathAccess or diskFull, and pathAccess for a picture with the
/// name of its data.
void writeWaveformSet(const std::filesystem::path& picturePath, const WaveformSetFiles& files);

/// "Saved a.png, a.csv and a.inf in /home/user"
std::string setWasSaved(const Words& words, const std::filesystem::path& picturePath);

/// `path` without its last four characters, the place of an extension. Raises "Invalid procedure
/// call or argument" for a shorter text.
std::string withoutExtension(const std::string& path);

}  // namespace tracewell
