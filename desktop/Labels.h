// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace tracewell {

class ValueLabel;

/// What a label on one line may take up before it would push its window off a small screen. Pixels,
/// as many times as much as its font is higher.
int widestOf(const QLabel& label);

/// Shows what a label of the form says, with its weight where it is a sentence, and to those who
/// listen; the lamp that it explains says it, too.
void showValue(const ValueLabel& control, QLabel& label, const QWidget& form);

}  // namespace tracewell
