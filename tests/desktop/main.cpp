// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "ShownText.h"
#include "Theme.h"

#ifdef TRACEWELL_SANITIZED
/// After 30 seconds the font library reads its configuration anew, and loses parts of the one
/// before.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}
#endif

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  tracewell::applyTheme(application);
  tracewell::keepLabelsPlain(application);
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}
