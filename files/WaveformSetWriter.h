// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

/// The texts of a saved waveform set. Lines end with CR LF.
namespace tracewell {

/// The samples of the displayed channels: a line of headings, then 500 lines. A sample is its low
/// byte alone, minus 256 unless the high byte is 0. Without a displayed channel the text is empty.
/// Raises "Subscript out of range" for a channel without a record yet.
std::string BuildCsvText(const frmDSO& main);

/// The nine lines that describe a set: picture, data file, author, description, positions, scales
/// (channel 1's twice, as readers expect), time position. notSaved stands for a channel
/// that is not displayed, and a blank for a line break in author and description.
std::string buildInfText(const frmDSO& main, const std::string& picturePath,
                         const std::string& author, const std::string& description);

/// `path` without its last four characters, the place of an extension. Raises "Invalid procedure
/// call or argument" for a shorter text.
std::string withoutExtension(const std::string& path);

}  // namespace tracewell
