// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <algorithm>

#include "Drawn.h"
#include "ElidedLabel.h"
#include "MainFormTest.h"
#include "QtValues.h"
#include "TextGrowth.h"
#include "UnreadMark.h"

namespace tracewell {
namespace {

using LayoutTest = EveryFormTest;

/// Text that its widget has no room for.
Lines cutTexts(QWidget& form) {
  Lines cut;
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const auto* label = qobject_cast<const QLabel*>(widget);
    const auto* box = qobject_cast<const QGroupBox*>(widget);
    const bool isOurs = !widget->objectName().startsWith(QLatin1String("qt_"));
    if (!isOurs || !widget->isVisible() || (label != nullptr && label->wordWrap())) continue;
    const QString text = button != nullptr  ? button->text()
                         : label != nullptr ? label->text()
                         : box != nullptr   ? box->title()
                                            : QString();
    if (const auto* line = qobject_cast<const ElidedLabel*>(widget)) {
      if (line->isCut()) cut.push_back(fromQt(text));
      continue;
    }
    const int needed =
        qMax(widget->minimumSizeHint().width(),
             widget->fontMetrics().horizontalAdvance(text) + (box != nullptr ? 18 : 0));
    if (!text.isEmpty() && widget->width() < needed) cut.push_back(fromQt(text));
  }
  return cut;
}

bool isShortened(const QWidget& form) {
  return std::ranges::any_of(form.findChildren<QLabel*>(), [](const QLabel* label) {
    return label->text().endsWith(QChar(0x2026));
  });
}

/// Beside a status line that says nothing a notice has the whole row; beside a long one, a place.
TEST_F(LayoutTest, ANoticeIsNotCutWhileTheRowHasRoom) {
  form->resize(1280, 800);
  auto* notice = find<QLabel>("lblNotice");
  main.lblNotice.caption = std::string(100, 'x') + "default.dso.bad";
  main.lblNotice.visible = true;
  QApplication::processEvents();
  EXPECT_GT(notice->width(), notice->fontMetrics().horizontalAdvance(notice->text()));
  main.lblStatus.caption = std::string(900, 'y');
  QApplication::processEvents();
  EXPECT_GT(notice->width(), notice->fontMetrics().horizontalAdvance("default.dso"));
}

TEST_F(LayoutTest, EveryWindowFitsASmallScreenInEveryLanguageWithNothingCut) {
  // As long as results are.
  for (ValueLabel& result : main.lblMeasure)
    result.caption = result.index() % 2 == 0 ? "Duty Cycle(2): 50.00 %" : "-Width(1) : -500.0 ms";
  for (MenuEntry* language :
       {&main.mnbLA1, &main.mnbLA2, &main.mnbLA3, &main.mnbLA4, &main.mnbLA5}) {
    language->choose();
    SCOPED_TRACE(language->caption());
    main.lblConnect.caption = main.state.Msg[9];
    main.cmdStart.caption = main.state.Msg[3];
    main.lblTest.visible = true;
    QApplication::processEvents();
    form->resize(1024, 700);
    QApplication::processEvents();
    EXPECT_EQ(find("central")->size(), find<QScrollArea>("view")->viewport()->size());
    EXPECT_EQ(cutTexts(*form), Lines());
    EXPECT_FALSE(isShortened(*form));
    forEachDialog([](Window&, QWidget& dialog) {
      dialog.show();
      QApplication::processEvents();
      dialog.adjustSize();
      QApplication::processEvents();
      EXPECT_EQ(cutTexts(dialog), Lines());
      EXPECT_FALSE(isShortened(dialog));
      EXPECT_LE(dialog.width(), 1024);
      EXPECT_LE(dialog.height(), 660);
    });
  }
}

/// What lies under the marks is blank, or a row of one colour.
Lines coveredBy(QWidget& form) {
  Lines covered;
  for (UnreadMark* mark : form.findChildren<UnreadMark*>()) {
    if (!mark->isVisible()) continue;
    QWidget& marked = *mark->parentWidget();
    mark->hide();
    const QImage under = marked.grab(mark->geometry()).toImage();
    int most = 0;
    for (int y = 0; y < under.height(); ++y)
      for (int x = 1; x < under.width(); ++x)
        most = qMax(most, qAbs(qGray(under.pixel(x, y)) - qGray(under.pixel(0, y))));
    constexpr int shade = 12;
    if (most > shade || !marked.rect().contains(mark->geometry()))
      covered.push_back(fromQt(marked.objectName()));
  }
  return covered;
}

TEST_F(LayoutTest, MarksCoverNoText) {
  const auto mark = [](Window& window, QWidget& widget) {
    for (Control* control : window.controls()) {
      const bool isValue = dynamic_cast<ComboBox*>(control) != nullptr ||
                           dynamic_cast<CheckBox*>(control) != nullptr ||
                           dynamic_cast<OptionButton*>(control) != nullptr ||
                           dynamic_cast<Slide*>(control) != nullptr;
      if (!control->trust && (!isValue || widget.objectName() == QLatin1String("frmDSO"))) continue;
      control->trust = [] { return Trust::unread; };
      control->notifyChanged();
    }
    QApplication::processEvents();
  };
  form->resize(1024, 700);
  main.cmdRunStop.visible = true;
  for (MenuEntry* language :
       {&main.mnbLA1, &main.mnbLA2, &main.mnbLA3, &main.mnbLA4, &main.mnbLA5}) {
    language->choose();
    SCOPED_TRACE(language->caption());
    main.slideCH2.drag(-2);
    main.lblChan1.caption = "500.0 mV";
    main.shownMessages.cmdRunStop = 6;
    mark(main, *form);
    EXPECT_EQ(find("central")->size(), find<QScrollArea>("view")->viewport()->size());
    EXPECT_EQ(coveredBy(*form), Lines());
  }
  forEachDialog([&mark](Window& window, QWidget& dialog) {
    dialog.show();
    mark(window, dialog);
    dialog.adjustSize();
    QApplication::processEvents();
    EXPECT_EQ(coveredBy(dialog), Lines());
  });
}

/// The graph has what the column of knobs leaves, and what is read from afar grows with the window.
TEST_F(LayoutTest, GraphTakesAllSpareRoomAndItsTextsGrow) {
  main.lblStatus.caption = "Saved";
  main.lblAge.caption = "CH1: unchanged for 12 s";
  // How large its letters are.
  const auto told = [this](const QString& name) {
    return QString::number(pixelsOf(*form->findChild<QWidget*>(name)));
  };
  for (const QSize size : {QSize(1024, 700), QSize(1280, 800), QSize(1920, 1080), QSize(1920, 700),
                           QSize(2560, 1440), QSize(3840, 2160)}) {
    const std::string name = std::to_string(size.width()) + " x " + std::to_string(size.height());
    SCOPED_TRACE(name);
    form->resize(size);
    QApplication::processEvents();
    EXPECT_EQ(find("central")->size(), find<QScrollArea>("view")->viewport()->size());
    expectDrawn(*form, "window of " + name, told);
    const bool isSmall = size.width() < 1920 || size.height() < 1080;
    for (MenuEntry* language : {&main.mnbLA3, &main.mnbLA4, &main.mnbLA1}) {
      language->choose();
      QApplication::processEvents();
      if (isSmall && language != &main.mnbLA1) continue;
      EXPECT_EQ(cutTexts(*form), Lines()) << language->caption();
      EXPECT_FALSE(isShortened(*form));
    }
    main.graphDSO.toggleEnlarged();
    QApplication::processEvents();
    EXPECT_EQ(find("graphDSO")->width() + 20, size.width());
    EXPECT_TRUE(find("scales")->isVisible());
    main.graphDSO.toggleEnlarged();
  }
}

}  // namespace
}  // namespace tracewell
