// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnobValues.h"

#include <QMap>
#include <QRegularExpression>
#include <cmath>

namespace tracewell {
namespace {

std::optional<int> exponentOf(const QString& unit) {
  static const QMap<QString, int> exponents = {
      {QStringLiteral("n"), -9}, {QStringLiteral("u"), -6}, {QStringLiteral("\u03bc"), -6},
      {QStringLiteral("m"), -3}, {QStringLiteral("v"), 0},  {QStringLiteral("s"), 0}};
  // The sign for micro and the Greek letter are one then.
  const auto found = exponents.constFind(unit.left(1).toCaseFolded());
  return found == exponents.cend() ? std::nullopt : std::optional(*found);
}

/// In decades.
double distanceOf(const KnobValue& caption, const KnobValue& value) {
  const double decades =
      std::log10(caption.number) + caption.exponent.value_or(0) - std::log10(value.number);
  return std::fabs(value.exponent ? decades - *value.exponent : std::remainder(decades, 3));
}

}  // namespace

KnobValue captionValue(const QString& caption) {
  static const QRegularExpression form(QStringLiteral("^([0-9]*\\.?[0-9]*)(.*)$"));
  const QRegularExpressionMatch parts = form.match(caption);
  return {parts.captured(1).toDouble(), exponentOf(parts.captured(2))};
}

std::optional<KnobValue> typedValue(const QString& typed, const QString& unit) {
  const QRegularExpression form(
      QStringLiteral("^([0-9]*[.,]?[0-9]*) *([num\u00b5]?)(%1)?$").arg(unit),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch parts = form.match(typed);
  KnobValue value;
  value.number = parts.captured(1).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
  value.exponent = exponentOf(parts.captured(2) + parts.captured(3));
  // No scale reads so: it can only be meant in the unit itself.
  if (!value.exponent && (value.number < 0.1 || value.number >= 1000)) value.exponent = 0;
  return value.number > 0 ? std::optional(value) : std::nullopt;
}

int nearestCaption(const QStringList& captions, const KnobValue& value, int present) {
  // Rounding must not decide which of two equal ones is nearer.
  constexpr double same = 1e-6;
  int nearest = present;
  double smallest = distanceOf(captionValue(captions[present]), value);
  for (int i = 0; i < captions.size(); ++i) {
    const double distance = distanceOf(captionValue(captions[i]), value);
    const bool isSame = std::fabs(distance - smallest) < same;
    const bool isCloser = isSame && qAbs(i - present) < qAbs(nearest - present);
    if (distance < smallest - same || isCloser) nearest = i;
    smallest = qMin(smallest, distance);
  }
  return nearest;
}

}  // namespace tracewell
