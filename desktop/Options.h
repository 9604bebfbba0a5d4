// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRadioButton>

namespace tracewell {

class OptionButton;

/// Shows whether the option is selected. The model clears its siblings, and all of them may be
/// clear, which Qt's own exclusion would not allow; but by that it knows the options of one parent
/// as a group with arrow keys.
void showSelected(QRadioButton& button, bool isSelected);

/// From now on what the user selects is the model's; where it has refused, all options show again
/// what holds.
void selectWhenChosen(QRadioButton& button, OptionButton& option);

}  // namespace tracewell
