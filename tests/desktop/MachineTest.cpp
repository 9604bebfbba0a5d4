// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QScreen>
#include <QTimer>

#include "Bench.h"
#include "DesktopDialogs.h"
#include "DesktopProgram.h"
#include "Drawn.h"
#include "PortDirectory.h"
#include "QtValues.h"
#include "WindowState.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

class PortDirectoryTest : public testing::Test, protected Surroundings {
 protected:
  const ProgramFolderCopy folder;
  PortDirectory directory{folder.path(), clock, standBy};
};

TEST_F(PortDirectoryTest, NumbersMeanDevicesUnlessALinkInTheProgramFolderSaysOtherwise) {
  const fs::path link = folder.path() / "com34";
  fs::create_symlink(folder.path() / "device", link);
  const std::pair<std::int16_t, std::string> cases[] = {{0, "simulated instrument"},
                                                        {1, "ttyS0"},
                                                        {32, "ttyS31"},
                                                        {33, "ttyUSB0"},
                                                        {34, link.string()},
                                                        {35, "ttyUSB2"},
                                                        {64, "ttyUSB31"},
                                                        {65, "ttyACM0"},
                                                        {96, "ttyACM31"},
                                                        {97, ""},
                                                        {-1, ""}};
  for (const auto& [number, device] : cases)
    EXPECT_EQ(directory.deviceOf(number), device) << number;

  const auto isListed = [&](std::int16_t number) {
    const auto ports = directory.ports();
    return std::ranges::count(ports, number, &PortList::Entry::number) == 1;
  };
  using State = PortList::State;
  EXPECT_TRUE(isListed(0));
  EXPECT_FALSE(isListed(34));
  EXPECT_EQ(directory.stateOf(34), State::absent);
  writeWholeFile(folder.path() / "device", "");
  EXPECT_TRUE(isListed(34));
  EXPECT_EQ(directory.stateOf(34), State::ready);
  {
    QProcess other;
    other.setStandardInputFile(toQt(folder.path() / "device"));
    other.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    ASSERT_TRUE(other.waitForStarted());
    EXPECT_EQ(directory.stateOf(34), State::inUseElsewhere);
    other.kill();
    other.waitForFinished();
  }
  fs::remove(link);
  EXPECT_EQ(directory.deviceOf(34), link.string());
  EXPECT_EQ(directory.stateOf(34), State::absent);
  EXPECT_NE(directory.open({.portNumber = 0}), nullptr);
  EXPECT_THROW(directory.open({.portNumber = 34}), Error);
  EXPECT_THROW(directory.open({.portNumber = 97}), Error);
}

TEST_F(PortDirectoryTest, FileWithTheAddressOfAServerStandsForItUntilTheEnd) {
  const fs::path file = folder.path() / "com5";
  writeWholeFile(file, "tcp://bench 3");
  EXPECT_EQ(directory.deviceOf(5), file.string());
  EXPECT_THROW(directory.open({.portNumber = 5}), Error);
  writeWholeFile(file, "tcp://bench3:4001\r\n");
  for (const char* then : {"tcp://other:1", ""}) {
    EXPECT_EQ(directory.deviceOf(5), "bench3:4001");
    EXPECT_EQ(directory.stateOf(5), PortList::State::ready);
    EXPECT_EQ(std::ranges::count(directory.ports(), "bench3:4001", &PortList::Entry::device), 1);
    fs::remove(file);
    if (*then != '\0') writeWholeFile(file, then);
  }
}

TEST(WindowState, WindowComesBackWhereItWasIfThatIsOnAScreen) {
  const ProgramFolderCopy folder;
  const fs::path file = folder.path() / "window.state";
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize most = screen.size().boundedTo({1280, 800});
  const std::pair<const char*, QRect> cases[] = {
      {"60,70,500,400,0\r\n", {60, 70, 500, 400}},
      {"60,70,500,400,1\r\n", {60, 70, 500, 400}},
      {"60,70,500,400,0,contrast\r\n", {60, 70, 500, 400}},
      {"9000,-700,500,400,0\r\n", {}},
      {"60,70,0,400,0\r\n", {}},
      {"60,70,99999,99999,0\r\n", {}},
      {"60,70,500,400,0\r\n\r\n", {}},
      {"60,70,999999999999,400,0\r\n", {}},
      {"", {}}};
  for (const auto& [content, place] : cases) {
    SCOPED_TRACE(content);
    writeWholeFile(file, content);
    QWidget window;
    WindowState state(folder.path());
    state.restore(window);
    EXPECT_TRUE(screen.contains(window.frameGeometry()));
    EXPECT_TRUE(!place.isValid() || window.geometry() == place);
    EXPECT_LE(window.width(), most.width());
    EXPECT_EQ(window.isMaximized(), std::string(content).ends_with(",1\r\n"));
    if (!place.isValid()) continue;
    // Kept as it was before it was made as large as the screen.
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(window.geometry() == place, !window.isMaximized());
    fs::remove(file);
    state.keep(window);
    EXPECT_EQ(contentOf(file), content);
  }
  QWidget none;
  expectDrawn(none, "windows that come back", [&](const QString& asked) {
    writeWholeFile(file, fromQt(asked) + "\r\n");
    QWidget window;
    const WindowState state(folder.path());
    state.restore(window);
    const QRect at = window.geometry();
    const QString place = QStringLiteral("%1,%2 %3 x %4, theme %5").arg(at.x()).arg(at.y());
    return place.arg(at.width()).arg(at.height()).arg(static_cast<int>(state.theme()));
  });
  // Kept by the program itself at its end.
  {
    fs::remove(folder.path() / "default.dso");
    fs::create_symlink("about.jpg", folder.path() / "default.dso");
    DesktopProgram desktop(folder.path());
    ASSERT_TRUE(desktop.start());
    EXPECT_TRUE(desktop.program.main.lblNotice.caption().ends_with(" kept as about.jpg.bad"));
    QWidget* window = desktop.windows.widgetOf(desktop.program.main.graphDSO)->window();
    window->setGeometry(30, 50, 640, 480);
    window->findChild<QMenu*>("theme")->actions()[2]->trigger();
    EXPECT_LT(window->palette().color(QPalette::Window).lightness(), 128);
    desktop.program.main.closeForGood();
  }
  EXPECT_EQ(contentOf(file), "30,50,640,480,0,dark\r\n");
}

/// Does so with the dialog that is opened next.
template <class Dialog>
void use(const std::function<void(Dialog&)>& action) {
  QTimer::singleShot(0, [action] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    action(*dialog);
  });
}

class DesktopDialogsTest : public testing::Test {
 protected:
  ProgramFolderCopy folder;
  Gate gate;
  DesktopDialogs dialogs{gate};
};

TEST_F(DesktopDialogsTest, FilesArePickedWithTheSuffixOfTheFilter) {
  const FileDialog offer{folder.path(), "Setup",        "offered",     "*.dso|*.dso",
                         false,         {"txt", "dso"}, {"bak", "old"}};
  const FileDialog anyName{folder.path(), "Export", "", "*.csv|*.csv"};
  for (const std::string name : {"exp1.5", "exp.v2", "exp"})
    EXPECT_EQ(anyName.completed(name), name + ".csv");
  EXPECT_EQ(anyName.completed("exp1.txt"), "exp1.txt");
  // What the user types (nothing: Cancel), the file to save, what is asked before it is replaced,
  // the file to open.
  const std::tuple<QString, fs::path, QStringList, fs::path> cases[] = {
      {"", "offered", {}, "offered"},
      {"new.TXT", folder.path() / "new.TXT", {"new.bak", "new.old"}, {}},
      {"one.txt", folder.path() / "one.txt", {"one.old"}, folder.path() / "one.txt"},
      {"all.txt", folder.path() / "all.txt", {}, folder.path() / "all.txt"},
      {"1.5", folder.path() / "1.5.dso", {"1.5.dso"}, folder.path() / "1.5"},
      {"default", folder.path() / "default.dso", {}, folder.path() / "default.dso"}};
  for (const char* name :
       {"1.5.dso", "new.bak", "new.old", "one.txt", "one.old", "all.txt", "all.bak", "all.old"})
    writeWholeFile(folder.path() / name, "%PDF-1.4");
  for (const auto& [typed, saved, questions, opened] : cases) {
    QStringList asked;
    std::function<void(QMessageBox&)> agree;
    const auto answer = [&, name = typed, many = questions.size()](QFileDialog& dialog) {
      EXPECT_EQ(dialog.nameFilters(), QStringList("*.dso (*.dso)"));
      dialog.setOption(QFileDialog::DontConfirmOverwrite, name != "1.5");
      // It is not looked into: a folder may be slow, and /proc/kmsg has no end.
      EXPECT_EQ(dialog.iconProvider()->type(QFileInfo(toQt(folder.path() / "1.5.dso"))), "DSO");
      auto* line = dialog.findChild<QLineEdit*>("fileNameEdit");
      EXPECT_EQ(line->text(), "offered");
      line->setText(name);
      const bool isSaved = dialog.acceptMode() == QFileDialog::AcceptSave;
      agree = [&, many](QMessageBox& box) {
        asked << box.text().section(' ', 0, 0);
        if (asked.size() < many) use<QMessageBox>(agree);
        box.done(QMessageBox::Yes);
      };
      if (isSaved && many > 0) use<QMessageBox>(agree);
      QDialog& box = dialog;
      name.isEmpty() ? box.reject() : box.accept();
    };
    use<QFileDialog>(answer);
    EXPECT_EQ(dialogs.saveFile(offer), saved);
    EXPECT_EQ(asked, questions);
    if (typed == "1.5") writeWholeFile(opened, "%PDF-1.4");
    if (opened.empty()) continue;
    use<QFileDialog>(answer);
    EXPECT_EQ(dialogs.openFile(offer), opened);
  }
}

TEST_F(DesktopDialogsTest, ColourStaysUnlessOneIsPicked) {
  const Colour before{1, 2, 3};
  const Colour other{200, 100, 50};
  for (const bool isPicked : {false, true}) {
    use<QColorDialog>([&](QColorDialog& dialog) {
      dialog.setCurrentColor(toQt(other));
      isPicked ? dialog.accept() : dialog.reject();
    });
    EXPECT_EQ(dialogs.pickColour(before), isPicked ? other : before);
  }
}

TEST_F(DesktopDialogsTest, AloneTheProgramAsksAndShowsNothing) {
  for (const Answer usual : {Answer::Yes, Answer::No}) {
    use<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs.askYesNo("End?", "Tracewell", usual), usual);
  }
  use<QMessageBox>([&](QMessageBox&) { dialogs.goOnAlone(); });
  EXPECT_EQ(dialogs.askYesNo("End?", "Tracewell"), Answer::No);
  testing::internal::CaptureStderr();
  EXPECT_EQ(dialogs.askYesNo("End?", "Tracewell"), Answer::Yes);
  dialogs.showMessage("not \x1Bsaved");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "tracewell: End? Yes\ntracewell: not \uFFFDsaved\n");
}

}  // namespace
}  // namespace tracewell
