// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <functional>

#include "Bench.h"
#include "Binder.h"
#include "Forms.h"

namespace tracewell {

inline void drag(QWidget& widget, QPoint from, QPoint to) {
  QTest::mousePress(&widget, Qt::LeftButton, {}, from);
  QTest::mouseMove(&widget, to);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

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

/// With the other windows, too.
class EveryFormTest : public MainFormTest {
 protected:
  /// Does something to a window and the widgets bound to it.
  static void bound(Window& window, const std::function<void(Window&, QWidget&)>& act) {
    SCOPED_TRACE(window.name());
    const auto dialog = makeForm(window.name(), nullptr);
    bindControls(window, *dialog);
    act(window, *dialog);
    unbindControls(window);
  }
  void forEachDialog(const std::function<void(Window&, QWidget&)>& act) {
    for (Window* window : program.otherWindows()) bound(*window, act);
  }
};

}  // namespace tracewell
