// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace tracewell {

/// A number and what stands behind it: "20m", ".5", "1V". What is no prefix is the unit.
struct KnobValue {
  double number = 0;
  /// A power of ten; none where nothing says so.
  std::optional<int> exponent;
};

/// What a caption of a knob says.
KnobValue captionValue(const QString& caption);

/// What the user has typed on a knob of that unit ("V", "s", or empty for none): a number above
/// zero with a point or a comma, perhaps a prefix and the unit. None if it is anything else.
std::optional<KnobValue> typedValue(const QString& typed, const QString& unit);

/// The index of the caption nearest to a value. A value without exponent fits captions of any
/// prefix: 20 is 20 ns as well as 20 ms. Of several, the one nearest to `present` is meant.
int nearestCaption(const QStringList& captions, const KnobValue& value, int present);

}  // namespace tracewell
