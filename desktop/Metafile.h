// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "Image.h"

namespace tracewell {

/// A placeable Windows metafile that draws the image point by point, at 96 points to an inch. Its
/// sizes are signed 16-bit numbers.
std::string metafile(const Image& image);

}  // namespace tracewell
