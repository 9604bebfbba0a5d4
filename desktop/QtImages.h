// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include "Image.h"

/// The program's pictures and Qt's.
namespace tracewell {

QImage toQt(const Image& image);
Image fromQt(const QImage& image);

}  // namespace tracewell
