// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>

#include "DesktopClipboard.h"
#include "MainFormTest.h"
#include "QtValues.h"

namespace tracewell {

class CopyTest : public MainFormTest {
 protected:
  CopyTest() {
    clipboard.told = [this](const std::string& text, const Image& picture) {
      DesktopClipboard().put(text, picture);
      pastes += (pastes.isEmpty() ? "" : ",") + QByteArray(content().hasText() ? "text" : "") +
                (content().hasImage() ? "picture" : "");
    };
    port.answerLikeAnInstrument();
    main.cmdStart.press();
    port.deliver(1, makeRecord([](int i) { return i; }));
  }

  static const QMimeData& content() { return *QGuiApplication::clipboard()->mimeData(); }

  /// Where the mouse is there is a widget within the widget.
  static void chooseInMenuOf(QWidget& widget, int entry) {
    const QPoint middle = widget.rect().center();
    QWidget* hit = widget.childAt(middle);
    if (hit == nullptr) hit = &widget;
    const QPoint place = hit->mapFrom(&widget, middle);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(middle));
    QApplication::sendEvent(hit, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions().at(entry)->trigger();
    menu->close();
  }

  void drop(const QList<QUrl>& files) {
    QWidget& graph = *find("graphDSO");
    QMimeData data;
    data.setUrls(files);
    QDragEnterEvent enter({9, 9}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    enter.ignore();
    QApplication::sendEvent(&graph, &enter);
    if (!enter.isAccepted()) return;
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&graph, &event);
    QApplication::processEvents();
  }

  QByteArray pastes;
};

TEST_F(CopyTest, KeyAndMenuCopyWhatIsShown) {
  QWidget& graph = *find("graphDSO");
  QTest::keyClick(&graph, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(content().text().startsWith("Time (div)\tCH1 (div)\n-5\t0\n"));
  EXPECT_EQ(qvariant_cast<QImage>(content().imageData()).pixelColor(0, 0), QColor('g', 'r', 'a'));
  for (const int entry : {0, 1, 2}) chooseInMenuOf(graph, entry);
  // Those that have something to show can be taken away one by one.
  for (const int number : {3, 4, 6}) main.graphDSO.plot(number).visible = true;
  for (const int number : {3, 6}) main.graphDSO.plot(number).plotXvsY(main.XIndex, main.XIndex);
  chooseInMenuOf(graph, 4);
  EXPECT_TRUE(main.graphDSO.plot(3).visible() && !main.graphDSO.plot(6).visible());
  main.lblMeasure(0).caption = "Freq1.000 kHz";
  QWidget& results = *find("fmMeasure");
  QTest::keyClick(&results, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(content().text(), "Freq\t1.000 kHz\n");
  chooseInMenuOf(results, 0);
  EXPECT_EQ(pastes, "textpicture,textpicture,picture,text,text,text");

  auto& box = *find<QPlainTextEdit>("txtMsg");
  QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(content().text(), box.toPlainText());
  QTextCursor firstLetter(box.document());
  firstLetter.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
  box.setTextCursor(firstLetter);
  QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(content().text(), "1");
}

TEST_F(CopyTest, OneDataFileCanBeDroppedOnTheGraph) {
  const auto file = [this](const char* name) {
    return QUrl::fromLocalFile(toQt(folder.path() / name));
  };
  writeWholeFile(folder.path() / "a.CSV", "Channel 1\r\n7\r\n8\r\n");
  drop({file("a.CSV"), file("a.CSV")});
  drop({file("dso.cmd")});
  drop({QUrl("http://host/a.csv")});
  EXPECT_TRUE(main.graphDSO.plot(3).y().empty());
  {
    const Gate::Hold waiting(gate);
    drop({file("a.CSV")});
    QTest::qWait(60);
    EXPECT_TRUE(main.graphDSO.plot(3).y().empty());
  }
  const std::vector<double> dropped = {7, 8};
  EXPECT_TRUE(QTest::qWaitFor([&] { return main.graphDSO.plot(3).y() == dropped; }));
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

}  // namespace tracewell
