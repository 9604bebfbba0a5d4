// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QObject>
#include <functional>

#include "Controls.h"

/// What the user does to a widget beyond what the toolkit reports as a signal. Each watch belongs
/// to the watched object and goes with it.
namespace tracewell {

void onDoubleClick(QObject* watched, const std::function<void()>& action);

/// For Enter, which a dialog would otherwise take for its default button.
void onEnter(QObject* watched, const std::function<void()>& action);

/// Enter on a text that is not taken yet takes it and does no more: what it opens is to be seen
/// before the dialog is closed. Tab takes it before it looks for the next box, which may be the one
/// that opens.
void takeOnKeys(QComboBox& box, const ComboBox& control);

/// Keys that edit a text are the line's as long as it has the focus, whether there is anything to
/// edit or not: what is typed behind them is meant for it.
void keepEditingKeys(QLineEdit& line);

/// When the user has pressed a key in a list, which moves through it. Focus alone, which also gives
/// a list its current entry, is no choice, and neither is the release of a key that was pressed
/// elsewhere.
void onMoveByKey(QObject* list, const std::function<void()>& action);

}  // namespace tracewell
