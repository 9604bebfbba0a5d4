// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <array>

namespace tracewell {

/// The colours of the panel's graph, which are the same in every theme.
struct RecorderLook {
  QColor ground;
  QColor grid;
  std::array<QColor, 2> channels;

  static constexpr QColor text{0xd5, 0xdb, 0xe0};
  static constexpr QColor gap{0xff, 0xab, 0x40};
  static constexpr QColor cursor{0xff, 0x8a, 0x80};
  static constexpr QColor mark{0x4f, 0x9c, 0xd8};
};

}  // namespace tracewell
