// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

/// Stands between a picture file and the library that decodes it. Needs neither Qt nor the library.
namespace tracewell {

/// Pixels that a picture may have, in all; each takes some fifteen bytes on its way.
inline constexpr std::size_t largestPictureArea = 10'000'000;
/// Pixels that it may have either way.
inline constexpr int largestPictureSide = 8192;
/// Bytes that all lines of a PCX may have together; three make a pixel.
inline constexpr std::size_t largestPcxLines = 24'000'000;

struct GuardedPicture {
  /// The library's name of the format; empty for what is no bmp, gif, pcx, tif, png or jpg.
  std::string format;
  /// The file without all that no picture needs.
  std::string bytes;
};

/// Only the parts that make the first picture are left, so that comments, profiles and the like,
/// which a library inflates and copies, cost nothing. What is cut short stays so. Raises
/// std::runtime_error for what costs too much by itself: too many parts or scans, arithmetic
/// coding, lines or tiles that are far longer than the picture.
GuardedPicture guardedPicture(std::string bytes);

}  // namespace tracewell
