// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "ShownText.h"
#include "Theme.h"

int main(int argumentCount, char** arguments) {
  QApplication application(argumentCount, arguments);
  tracewell::applyTheme(application);
  tracewell::keepLabelsPlain(application);
  testing::InitGoogleTest(&argumentCount, arguments);
  return RUN_ALL_TESTS();
}
