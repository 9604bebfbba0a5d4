// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <memory>

namespace tracewell {

/// Answers what needs no window: --help and --version. False where neither was asked for.
bool isAnsweredWithoutWindow(int argumentCount, char** arguments);

/// What is left once the toolkit has taken its own options is not known here: says so, and that
/// --help lists them. False where nothing is left.
bool isRefused(const QStringList& arguments);

/// The toolkit ends a program that has no screen as if it had crashed. Here such a start ends with
/// a sentence and EXIT_FAILURE. `argumentCount` outlives the application.
std::unique_ptr<QApplication> makeApplication(int& argumentCount, char** arguments);

}  // namespace tracewell
