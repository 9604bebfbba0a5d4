// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>

namespace tracewell {

/// Holds a widget against a section of tests/scripts/drawn.txt, whose head says how to read it.
/// `told` is what comes of its keys and mouse, or what it says of what is asked.
void expectDrawn(QWidget& widget, const std::string& section,
                 const std::function<QString(const QString& asked)>& told = {},
                 QColor ground = Qt::black);

}  // namespace tracewell
