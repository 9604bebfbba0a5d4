// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QLabel>
#include <QTest>
#include <csignal>

#include "Bench.h"
#include "DesktopProgram.h"
#include "MainFormTest.h"
#include "Termination.h"

namespace tracewell {
namespace {

auto openFiles() {
  return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
}

TEST(Termination, SignalsEndTheProgramUnlessItWasStartedToIgnoreThem) {
  const auto before = openFiles();
  std::signal(SIGHUP, SIG_IGN);
  int ends = 0;
  {
    const Termination termination([&] { ++ends; });
    std::raise(SIGHUP);
    QTest::qWait(20);
    EXPECT_EQ(ends, 0);
    // More than the pipe has room for.
    for (int i = 0; i < 70000; ++i) std::raise(SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&ends] { return ends == 1; }));
  }
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
  EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
  EXPECT_EQ(openFiles(), before);
}

/// A form goes in its own time, after the window that it showed.
TEST(Ending, FormsReachNothingThatIsGone) {
  const ProgramFolderCopy folder;
  for (int i = 0; i < 2; ++i) {
    DesktopProgram desktop(folder.path());
    ASSERT_TRUE(desktop.start());
    QApplication::processEvents();
  }
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(Binder, ControlOfAnUnknownKindIsAnError) {
  class Novelty : public Control {
   public:
    using Control::Control;
  };
  Bench bench;
  Window window("frmNew", "New", bench.services);
  ValueLabel known(window, "known", "");
  const Novelty novelty(window, "novelty");
  {
    QWidget form;
    (new QLabel(&form))->setObjectName("known");
    EXPECT_THROW(bindControls(window, form), Error);
  }
  // The control bound before it has forgotten the form.
  EXPECT_FALSE(known.changed);
  known.caption = "x";
}

}  // namespace
}  // namespace tracewell
