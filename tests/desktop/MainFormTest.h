// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "Binder.h"
#include "Doubles.h"
#include "Forms.h"

namespace tracewell {

/// Real widgets bound to the whole program on a scripted port.
class MainFormTest : public testing::Test {
 protected:
  MainFormTest() {
    bench.program.start();
    form = makeForm("frmDSO", nullptr);
    bindControls(bench.main, *form);
    form->resize(1280, 800);
    form->show();
    QApplication::processEvents();
  }
  ~MainFormTest() override { unbindControls(bench.main); }

  template <class Widget = QWidget>
  Widget* find(const char* name) {
    return form->findChild<Widget*>(QLatin1String(name));
  }
  std::vector<std::string> takeWire() { return std::exchange(bench.port.wire, {}); }

  Bench bench;
  std::unique_ptr<QWidget> form;
};

}  // namespace tracewell
