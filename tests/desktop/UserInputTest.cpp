// SPDX-License-Identifier: GPL-3.0-or-later
#include "UserInput.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QMenu>
#include <QTest>

#include "DesktopClock.h"

namespace tracewell {
namespace {

/// Writes down the keys and the movements that reach it.
class Seen : public QWidget {
 public:
  Seen() {
    setMouseTracking(true);
    resize(100, 100);
    show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
  }
  QString told;
  std::function<void()> onKey;

 private:
  void keyPressEvent(QKeyEvent* event) override {
    told += event->text();
    if (onKey) std::exchange(onKey, {})();
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    told += QString::number(event->position().x());
  }
};

class UserInputTest : public testing::Test {
 protected:
  void type(const char* keys) {
    for (; *keys != '\0'; ++keys) QTest::keyClick(main.windowHandle(), *keys);
  }
  /// The user during a handler's wait.
  void meanwhile(const std::function<void()>& user) {
    const Gate::Hold waiting(gate);
    user();
  }
  static void pressCloseButton(const QWidget& window) {
    QCloseEvent event;
    QApplication::sendEvent(window.windowHandle(), &event);
    EXPECT_FALSE(event.isAccepted());
  }

  DesktopClock clock;
  Gate gate;
  StandBy standBy{clock, gate};
  UserInput input{gate, standBy};
  Seen main;
  QMenu menu{&main};
  QDialog dialog{&main};
};

/// Qt closes them until there are none.
TEST_F(UserInputTest, PopupsCloseForADialogThatOpensRightBehindAWait) {
  menu.addAction("entry");
  menu.popup({});
  meanwhile([&] { type("a"); });
  EXPECT_TRUE(menu.close());
  ASSERT_FALSE(menu.isVisible());
  menu.popup({});
  dialog.open();
  EXPECT_FALSE(menu.isVisible());
}

TEST_F(UserInputTest, OnlyTheUsersClosingOfADialogWaits) {
  int closings = 0;
  QObject::connect(&dialog, &QDialog::finished, [&] { ++closings; });
  for (const bool isUser : {true, false}) {
    closings = 0;
    dialog.open();
    meanwhile([&] {
      isUser ? pressCloseButton(dialog) : dialog.accept();
      if (isUser) pressCloseButton(dialog);
      EXPECT_EQ(dialog.isVisible(), isUser);
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog.isVisible(); }));
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(dialog.result(), isUser ? QDialog::Rejected : QDialog::Accepted);
  }
}

TEST_F(UserInputTest, WhatIsKeptComesInItsOrderAndOfAMovementTheLastPlace) {
  Seen other;
  const auto move = [](const QWidget& to, int x) { QTest::mouseMove(to.windowHandle(), {x, 5}); };
  meanwhile([&] {
    type("a");
    for (const int x : {1, 2, 3}) move(main, x);
    move(other, 4);
    for (const int x : {5, 6}) move(main, x);
    type("b");
    move(main, 7);
    QTest::qWait(20);
  });
  EXPECT_EQ(main.told + other.told, "");
  // What comes before the rest has come is behind it.
  type("c");
  EXPECT_TRUE(QTest::qWaitFor([this] { return main.told == QStringLiteral("a36b7c"); }));
  EXPECT_EQ(other.told, "4");
}

/// The handler has opened the dialog, which has closed the menu.
TEST_F(UserInputTest, WhatIsKeptForWindowsBehindADialogIsDropped) {
  bool isTriggered = false;
  QObject::connect(menu.addAction("entry"), &QAction::triggered, [&] { isTriggered = true; });
  meanwhile([&] { type("a"); });
  menu.popup({});
  meanwhile([&] {
    const QPoint entry = menu.actionGeometry(menu.actions().at(0)).center();
    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, entry);
  });
  dialog.open();
  QTest::qWait(20);
  EXPECT_EQ(main.told, "");
  EXPECT_FALSE(isTriggered);
}

}  // namespace
}  // namespace tracewell
