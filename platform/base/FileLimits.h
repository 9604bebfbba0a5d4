// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The largest size of each kind of file in bytes, far above any real one. Of a larger error log
/// the last part is read.
namespace tracewell::fileLimit {

inline constexpr std::uintmax_t kibibyte = 1024;
inline constexpr std::uintmax_t setup = 64 * kibibyte;
inline constexpr std::uintmax_t captions = 512 * kibibyte;
inline constexpr std::uintmax_t messages = 64 * kibibyte;
inline constexpr std::uintmax_t reportTemplate = 256 * kibibyte;
inline constexpr std::uintmax_t commandList = 256 * kibibyte;
inline constexpr std::uintmax_t waveformData = 1024 * kibibyte;
inline constexpr std::uintmax_t description = 256 * kibibyte;
inline constexpr std::uintmax_t errorLog = 1024 * kibibyte;
inline constexpr std::uintmax_t picture = kibibyte * 1024 * 32;
/// Far more than the names and sums of the shipped files take.
inline constexpr std::uintmax_t shippedFiles = 64 * kibibyte;
inline constexpr std::uintmax_t windowState = kibibyte;
/// A `comN` that is no link to a device.
inline constexpr std::uintmax_t portAddress = kibibyte;
/// One of the files that come with the program, whatever its kind.
inline constexpr std::uintmax_t shipped = picture;

}  // namespace tracewell::fileLimit
