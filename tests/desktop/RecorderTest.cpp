// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QTableWidget>
#include <fstream>

#include "Bench.h"
#include "DesktopProgram.h"
#include "DesktopRecorder.h"
#include "Drawn.h"
#include "FullDisk.h"
#include "Listener.h"
#include "MainFormTest.h"
#include "QtValues.h"
#include "RecorderGraph.h"
#include "RecorderWindow.h"

namespace tracewell {

/// The program on this desktop with the simulated instrument, and the recorder's window.
class RecorderWindowTest : public testing::Test {
 protected:
  RecorderWindowTest() {
    EXPECT_TRUE(desktop.start());
    connectSimulated();
    entry()->trigger();
    window = &recorder().open();
    QApplication::processEvents();
  }

  DesktopRecorder& recorder() { return dynamic_cast<DesktopRecorder&>(*desktop.recorder); }
  QAction* entry() {
    for (QWidget* form : QApplication::topLevelWidgets())
      if (auto* const found = form->findChild<QAction*>(QStringLiteral("recorder"))) return found;
    return nullptr;
  }
  void connectSimulated() {
    desktop.program.main.cmdStart.press();
    waitForRecords(2);
  }
  void waitForRecords(RecordStore::Number count) {
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return recorder().recorder().store().end() >= count; }, 30000));
    QApplication::processEvents();
  }
  template <class Widget>
  Widget& find(const char* name) {
    auto* const found = window->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(name);
    return *found;
  }
  static QString described(QWidget& part) {
    return QAccessible::queryAccessibleInterface(&part)->text(QAccessible::Description);
  }
  void choose(const char* box, int index) {
    find<QComboBox>(box).setCurrentIndex(index);
    QApplication::processEvents();
  }

  ProgramFolderCopy folder;
  DesktopProgram desktop{folder.path()};
  RecorderWindow* window = nullptr;
};

/// While it stands at a record, others that come are no news to whoever listens.
TEST_F(RecorderWindowTest, TellsAReaderWhatItsPartsAreAndOfChangesAlone) {
  const auto roleOf = [](QWidget& part) {
    return QAccessible::queryAccessibleInterface(&part)->role();
  };
  EXPECT_EQ(roleOf(*window), QAccessible::Window);
  for (const char* const part : {"recorderGraph", "recordStrip"})
    EXPECT_EQ(roleOf(find<QWidget>(part)), QAccessible::Graphic);
  window->view().follow(false);
  waitForRecords(3);
  Lines told;
  const Listener listener([&](QAccessibleEvent& event) {
    const std::string name = fromQt(event.object()->objectName());
    const bool isOfPanel = name == "cmdStart" && event.type() == QAccessible::DescriptionChanged;
    if (isOfPanel || name == "recorderGraph" || name == "recordStrip" || name == "pins")
      told.push_back(name);
  });
  waitForRecords(5);
  EXPECT_EQ(told, Lines());
  window->view().step(-1);
  waitForRecords(6);
  EXPECT_EQ(told, Lines{"recordStrip"});
  EXPECT_EQ(fromQt(described(find<QWidget>("recordStrip"))), window->view().title());
  // In another language all is described anew.
  told.clear();
  desktop.program.languageMenu.mnbLA_Click(3);
  for (const char* const part : {"cmdStart", "recordStrip"})
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::ranges::count(told, part) > 0; })) << part;
}

TEST_F(RecorderWindowTest, KeepsFollowsStepsPinsShowsLogsAndExports) {
  const RecordStore& store = recorder().recorder().store();
  RecorderView& view = window->view();
  EXPECT_EQ(view.selected(), store.end() - 1);
  EXPECT_EQ(
      find<QTableWidget>("values").item(static_cast<int>(Quantity::frequency), 1)->text().left(5),
      QStringLiteral("1.000"));

  auto& strip = find<QWidget>("recordStrip");
  strip.setFocus();
  QTest::keyClick(&strip, Qt::Key_Home);
  EXPECT_EQ(view.selected(), 0);
  QApplication::processEvents();
  EXPECT_FALSE(find<QCheckBox>("follow").isChecked());
  // A reader toggles without a click.
  find<QCheckBox>("follow").toggle();
  EXPECT_TRUE(view.isFollowing());
  find<QCheckBox>("follow").toggle();
  QTest::keyClick(&strip, Qt::Key_Home);
  find<QLineEdit>("pinName").setText(QStringLiteral("as <b>found</b>"));
  // The list is up to date once it is closed.
  find<QComboBox>("pins").showPopup();
  find<QPushButton>("pin").click();
  QApplication::processEvents();
  find<QComboBox>("pins").hidePopup();
  QApplication::processEvents();
  EXPECT_TRUE(find<QComboBox>("pins").itemText(1).startsWith("as <b>found</b> CH1 "));
  const auto said = [&] {
    QApplication::processEvents();
    return fromQt(find<QLabel>("recorderStatus").text());
  };
  const auto pinSays = [&](const char* typed) {
    find<QLineEdit>("pinName").setText(QLatin1String(typed));
    said();
    return fromQt(find<QPushButton>("pin").text());
  };
  EXPECT_EQ(pinSays(""), "Let go");
  EXPECT_EQ(find<QComboBox>("pins").currentIndex(), 1);
  EXPECT_EQ(find<QComboBox>("pins").itemText(0), QStringLiteral("Pinned: 1"));
  EXPECT_EQ(pinSays("other"), "Rename");
  QTest::keyClick(&find<QWidget>("pinName"), Qt::Key_Return);
  EXPECT_EQ(store.pinned().at(0).second, "other");
  EXPECT_EQ(pinSays(""), "Let go");
  find<QPushButton>("pin").click();
  EXPECT_EQ(pinSays(""), "Pin");
  EXPECT_EQ(find<QComboBox>("pins").itemText(0), QStringLiteral("Nothing pinned"));
  EXPECT_FALSE(find<QComboBox>("pins").isEnabled());

  QList<QImage> copied;
  for (const char* part : {"recordStrip", "recordStrip", "recorderGraph"}) {
    find<QWidget>(part).setFocus();
    find<QPushButton>("copy").click();
    EXPECT_EQ(said(), "Copied");
    copied << QGuiApplication::clipboard()->image();
  }
  EXPECT_EQ(copied[1], copied[2]);
  EXPECT_GT(copied[2].height(), find<QWidget>("recorderGraph").height());
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Time (s)\tCH1 (V)"));
  find<QPushButton>("showInPanel").click();
  EXPECT_EQ(said(), "It lies over the live traces now");
  const Plot& reference = desktop.program.main.graphDSO.plot(ScopeGraph::firstReference);
  EXPECT_TRUE(reference.isShown());

  // What is saved can be loaded, and lies where the record lies already.
  window->saveSetInto(folder.path() / "set.png");
  EXPECT_FALSE(find<QLabel>("recorderStatus").text().contains("not known"));
  frmDSO& main = desktop.program.main;
  main.slideTime.drag(1);
  main.slideTime.release();
  for (Slide* slide : {&main.channels[0].slide, &main.slideTime})
    slide->trust = [] { return Trust::unread; };
  window->saveSetInto(folder.path() / "set.png");
  for (const char* slide : {"Channel One", "Time"})
    EXPECT_TRUE(find<QLabel>("recorderStatus")
                    .text()
                    .contains(QLatin1String(slide) +
                              QLatin1String(" Position: not known whether recorded at")))
        << fromQt(find<QLabel>("recorderStatus").text());
  main.slideTime.drag(0);
  frmLoad& load = desktop.program.loadWindow;
  load.formActivate.raise();
  load.show();
  load.fileCSV.choose(static_cast<int>(std::ranges::find(load.fileCSV.items(), "set.csv") -
                                       load.fileCSV.items().begin()));
  EXPECT_EQ(load.pictureCSV.image().width, find<RecorderGraph>("recorderGraph").width());
  load.cmdOK.press();
  const Plot& loaded = desktop.program.main.graphDSO.plot(ScopeGraph::firstReference + 1);
  EXPECT_TRUE(loaded.isShown());
  EXPECT_EQ(loaded.y(), reference.y());
  EXPECT_EQ(loaded.scale(), reference.scale());

  choose("cursors", 1);
  EXPECT_EQ(fromQt(described(find<QWidget>("recorderGraph"))), "|Δt| = 1.50 ms. 1/|Δt| = 667 Hz");
  QTest::keyClick(&find<QWidget>("recorderGraph"), Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return described(find<QWidget>("recorderGraph")).contains("= 1.40 ms"); }));
  EXPECT_EQ(described(strip), find<QLabel>("title").text());
  choose("mode", 2);
  const auto picture = view.picture();
  ASSERT_FALSE(picture.labels.empty());
  EXPECT_NEAR(picture.labels[0].x, 1000, 5);
  QApplication::processEvents();
  const QString peak = toQt("CH1: " + picture.labels[0].text).section(QLatin1Char('\n'), 0, 0);
  EXPECT_TRUE(described(find<QWidget>("recorderGraph")).contains(peak)) << fromQt(peak);
  choose("mode", 0);

  QTest::keyClick(&strip, Qt::Key_End, Qt::ShiftModifier);
  EXPECT_TRUE(view.isMarked());
  window->exportInto(folder.path() / "part.csv");
  const auto lines = [&](const char* name) {
    std::ifstream file(folder.path() / name);
    return std::count(std::istreambuf_iterator<char>(file), {}, '\n');
  };
  const auto exported = view.exported();
  EXPECT_EQ(lines("part.csv"), 1 + 500 * (exported.end - exported.first));
  EXPECT_EQ(said(), "Saved " + (folder.path() / "part.csv").string());
  std::optional<FullDisk> disk(100);
  view.select(exported.first);
  EXPECT_THROW(window->exportInto(folder.path() / "part.csv"), Error);
  disk.reset();
  EXPECT_EQ(lines("part.csv"), 1 + 500 * (exported.end - exported.first));

  QApplication::processEvents();
  EXPECT_EQ(find<QPushButton>("export").text(), QStringLiteral("Export stretch…"));
  QTest::keyClick(&strip, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_FALSE(view.isMarked());
  EXPECT_EQ(find<QPushButton>("export").text(), QStringLiteral("Export…"));

  auto& bar = find<RecorderLogBar>("logBar");
  find<QPushButton>("log").click();
  EXPECT_TRUE(bar.isVisible());
  Lines logged;
  for (const QAction* entry : bar.findChild<QMenu*>()->actions())
    if (entry->isChecked()) logged.push_back(fromQt(entry->text()));
  // The list stays open for the next tick.
  auto& list = *bar.findChild<QMenu*>();
  list.popup({});
  const QList<QAction*> ticks = list.actions();
  list.setActiveAction(ticks[0]);
  QTest::keyClick(&list, Qt::Key_Space);
  QTest::mouseClick(&list, Qt::LeftButton, {}, list.actionGeometry(ticks[1]).center());
  EXPECT_TRUE(list.isVisible() && ticks[0]->isChecked() && ticks[1]->isChecked());
  QTest::keyClick(&list, Qt::Key_Escape);
  EXPECT_FALSE(list.isVisible());
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  EXPECT_EQ(logged, (Lines{"Peak to peak  (vpp)", "RMS  (rms)", "Frequency  (freq)"}));
  for (QAction* tick : ticks) tick->setChecked(false);
  find<QPushButton>("logStart").click();
  EXPECT_EQ(said(), "Choose what is measured first");
  for (QAction* tick : ticks) tick->setChecked(true);
  for (const char* limits : {"vpp > 1 V; high", "; vpp > 9 V ;"}) {
    find<QLineEdit>("logLimits").setText(QLatin1String(limits));
    EXPECT_EQ(recorder().recorder().log(), nullptr);
    QTimer::singleShot(0, [] {
      if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
        EXPECT_EQ(dialog->iconProvider()->type(QFileInfo("a.csv")), "CSV");  // By its name.
        static_cast<QDialog*>(dialog)->accept();
      }
    });
    find<QPushButton>("logStart").click();
    EXPECT_EQ(said().substr(0, 18), *limits == ';' ? "" : "Not a limit: high.");
  }
  EXPECT_EQ(find<QPushButton>("logStart").text(), QStringLiteral("Stop the log"));
  for (const char* part : {"logQuantities", "logLimits", "logPins", "logRings"})
    EXPECT_FALSE(find<QWidget>(part).isEnabled());
  EXPECT_TRUE(find<QLabel>("logState").text().contains(QLatin1String("log.csv")));
  window->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(window, Qt::Key_F);
  EXPECT_TRUE(QTest::qWaitFor([&] { return view.isFollowing(); }, 2000));
  // The log goes on while the window is closed.
  QTest::keyClick(&strip, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  QTest::keyClick(&strip, Qt::Key_F9);
  EXPECT_FALSE(window->isVisible());
  waitForRecords(store.end() + 2);
  find<QPushButton>("logStart").click();
  EXPECT_EQ(said(), "The log has ended");
  EXPECT_EQ(recorder().recorder().log(), nullptr);
  EXPECT_GE(lines("log.csv"), 3);
  entry()->trigger();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(view.selected(), store.end() - 1);
  for (int i = 0; i < 5; ++i) find<QPushButton>("showInPanel").click();
  EXPECT_EQ(said(), "No reference is free: remove one in the panel first");
}

TEST_F(RecorderWindowTest, FitsASmallScreenInEveryLanguage) {
  // What is said with words, of whatever kind of widget.
  const auto said = [this] {
    QStringList texts;
    for (const QObject* part : window->findChildren<QObject*>()) {
      for (const char* kind : {"text", "toolTip", "accessibleName", "placeholderText"})
        texts << part->property(kind).toString();
      if (const auto* box = qobject_cast<const QComboBox*>(part))
        for (int i = 0; i < box->count(); ++i) texts << box->itemText(i);
    }
    texts << window->windowTitle().section(QLatin1Char(' '), 0, 0);
    return texts.filter(QRegularExpression(QStringLiteral("[a-z]{3}")));
  };
  expectDrawn(*window, "recorder at first");
  window->resize(1180, 760);
  find<QPushButton>("log").setChecked(true);
  QApplication::processEvents();
  expectDrawn(*window, "recorder");
  const QStringList english = said();
  for (int language = 1; language <= 5; ++language) {
    desktop.program.languageMenu.mnbLA_Click(static_cast<std::int16_t>(language));
    find<QPushButton>("log").setChecked(true);
    find<QPushButton>("copy").click();
    for (int mode = 0; mode < find<QComboBox>("mode").count(); ++mode) {
      choose("mode", mode);
      EXPECT_LE(window->minimumSizeHint().width(), 1024) << language << mode;
      EXPECT_LE(window->minimumSizeHint().height(), 700 - 40) << language << mode;
      for (const char* const box : {"channel", "mode", "behind", "cursors"})
        EXPECT_GE(find<QComboBox>(box).minimumWidth(), find<QComboBox>(box).sizeHint().width());
    }
    for (const auto& [button, keys] : {std::pair("copy", "Ctrl+C"),
                                       {"save", "Ctrl+S"},
                                       {"export", "Ctrl+E"},
                                       {"log", "Ctrl+L"},
                                       {"follow", "F"}})
      EXPECT_EQ(find<QAbstractButton>(button).shortcut(), QKeySequence(QLatin1String(keys)));
    for (const QString& text : said())
      EXPECT_TRUE(language == 1 || language == 3 || text.startsWith(QLatin1String("vpp >")) ||
                  !english.contains(text))
          << language << fromQt(text);
    // What there is has a place of its own.
    QRegion taken;
    for (const auto* part : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!part->isVisible()) continue;
      EXPECT_FALSE(taken.intersects(part->geometry())) << fromQt(part->objectName());
      EXPECT_TRUE(window->rect().adjusted(6, 6, -6, -4).contains(part->geometry()));
      taken += part->geometry();
    }
    for (const auto* const button : window->findChildren<QPushButton*>()) {
      const bool fits = !button->isVisible() || button->width() >= button->sizeHint().width();
      EXPECT_TRUE(fits) << language << fromQt(button->text());
    }
    for (const auto* const part : window->findChildren<QWidget*>()) {
      const bool isStop = part->focusPolicy() & Qt::TabFocus && part->isVisible();
      const bool isNamed =
          !part->accessibleName().isEmpty() || !part->property("text").toString().isEmpty();
      EXPECT_TRUE(!isStop || isNamed) << fromQt(part->objectName());
      const bool isTipped = qobject_cast<const QAbstractButton*>(part) != nullptr ||
                            qobject_cast<const QComboBox*>(part) != nullptr;
      EXPECT_TRUE(!isStop || !isTipped || !part->toolTip().isEmpty()) << fromQt(part->objectName());
      const auto* const line = qobject_cast<const QLineEdit*>(part);
      EXPECT_TRUE(line == nullptr || !line->placeholderText().isEmpty());
    }
  }
}

}  // namespace tracewell
