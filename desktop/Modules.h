// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "Error.h"

/// Parts of the program that lie in libraries of their own, with what they stand on: they are
/// loaded when they are first needed, and the start is that much shorter. A program that has
/// everything inside (TRACEWELL_MODULES_INSIDE) has them inside, too. The IID of its plug-in is
/// the module's name.
namespace tracewell {

/// The object that the library of that name makes; it stays until the program ends. The library
/// lies beside the program, or in lib/tracewell where the program is in bin. Raises an error of
/// that number, with the system's words, when it cannot be loaded.
QObject& moduleObject(const QString& name, int errorNumber);

/// What a library that is there, and is another version's, raises.
Error foreignModule(const QString& name, int errorNumber);

template <typename Interface>
Interface& moduleOf(const QString& name, int errorNumber) {
  auto* found = qobject_cast<Interface*>(&moduleObject(name, errorNumber));
  if (found == nullptr) throw foreignModule(name, errorNumber);
  return *found;
}

}  // namespace tracewell
