// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QObject>
#include <functional>

#include "Controls.h"

/// User actions on a widget for which the toolkit has no signal. Each watch belongs to the watched
/// object and is deleted with it.
namespace tracewell {

void onDoubleClick(QObject* watched, const std::function<void()>& action);

/// Runs `action` at Enter, which a dialog takes for its default button unless the result is true.
void onEnter(QObject* watched, const std::function<bool()>& action);

/// Enter on a text that is not taken yet only takes it: the user sees what it opens before the
/// dialog closes. Tab takes it before it looks for the next box, which may be the one that opens.
void takeOnKeys(QComboBox& box, const ComboBox& control);

/// While the line has the focus it gets all keys that edit a text, even if it is empty: the user
/// means the line. For a box with a line in it, pass the box: it has the focus.
void keepEditingKeys(QWidget& line);

/// Tab into the line leaves the caret behind the text, which the user completes.
void keepCaretAtEnd(QLineEdit& line);

/// Of a list in which nothing is selected, the first key that moves selects the first entry and
/// does not pass it over; if the program does not take it, the next key goes on. To be called
/// before onMoveByKey, which must see the key first.
void chooseCurrentFirst(QAbstractItemView& list);

/// Home and End go to the first and the last line of a table; the toolkit would go along the line.
void goByLines(QAbstractItemView& table);

/// Runs `action` when the user presses a key that moves through a list. Focus alone, which also
/// gives a list a current entry, is no choice; nor is the release of a key that was pressed
/// elsewhere.
void onMoveByKey(QObject* list, const std::function<void()>& action);

}  // namespace tracewell
