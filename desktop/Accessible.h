// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QWidget>

namespace tracewell {

/// Knobs, slides, lamps, graphs, and labels with a name of their own are from now on what they are
/// for screen readers as well: dials and sliders that can be turned, and things that say their
/// state. Not every reader asks for a value's words, so the description begins with them.
void installAccessible();

/// Labels of a new form that have got their names only after their texts are asked for anew.
void takeNamedLabels(QWidget& form);

/// What a widget is that the toolkit takes for a mere frame. Before anybody asks.
void setRole(QWidget& widget, QAccessible::Role role);

/// What such a widget describes from now on. Nobody is told: tellWords does.
void setWords(QWidget& widget, const QString& words);

/// Tells those who listen, if anybody does, that a knob or slide stands at another value.
void tellValue(QWidget& widget);

/// The same of the words for a value or a state.
void tellWords(QWidget& widget);

/// The same of everything on a form whose description is a tip: these are in another language.
void tellTips(QWidget& form);

/// The same of the name of a label, which holds its text.
void tellName(QWidget& label);

/// The same of what a graph describes, if it is not what was told last. The ages of the traces
/// change all the time: they are described and not told.
void tellGraph(QWidget& graphView);

/// Sets a tip that goes with the state of the widget, and tells it.
void setTip(QWidget& widget, const QString& tip);

}  // namespace tracewell
