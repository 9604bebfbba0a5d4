// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace tracewell {

/// A new widget laid out as forms/<name>.ui says, owned by the caller. Raises an Error for a name
/// without a form. Made from the list of forms in CMakeLists.txt.
std::unique_ptr<QWidget> makeForm(const std::string& name, QWidget* parent);

/// The names of all forms, in alphabetical order.
std::vector<std::string> formNames();

}  // namespace tracewell
