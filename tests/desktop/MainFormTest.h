// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>

#include "Bench.h"
#include "Binder.h"
#include "Forms.h"

namespace tracewell {

/// Real widgets bound to the whole program on a scripted port.
class MainFormTest : public ProgramTest {
 protected:
  MainFormTest() {
    form = makeForm("frmDSO", nullptr);
    bindControls(main, *form);
    form->resize(1280, 800);
    form->show();
    QApplication::processEvents();
  }
  ~MainFormTest() override { unbindControls(main); }

  template <class Widget = QWidget>
  Widget* find(const char* name) {
    return form->findChild<Widget*>(QLatin1String(name));
  }

  std::unique_ptr<QWidget> form;
};

}  // namespace tracewell
