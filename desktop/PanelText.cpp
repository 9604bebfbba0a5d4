// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelText.h"

#include <QCoreApplication>

namespace tracewell {

/// All texts of languages/*.ts have the one context.
QString panelText(const char* english) {
  return QCoreApplication::translate("Panel", english);
}

}  // namespace tracewell
