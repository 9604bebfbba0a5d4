// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "Image.h"

/// Picture files as bytes. Raises nothing but Error.
namespace tracewell {

/// As Pictures::encode. A cursor points with its upper left corner.
std::string encodePicture(const Image& image, int format);

/// As Pictures::load. Takes the first of several pages or frames; transparent parts become white.
/// Refuses pictures of more than 8192 pixels either way.
Image loadPicture(const std::filesystem::path& path);

}  // namespace tracewell
