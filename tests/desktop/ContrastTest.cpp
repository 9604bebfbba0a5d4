// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPushButton>
#include <QStyleOption>
#include <cmath>

#include "Drawn.h"
#include "ElidedLabel.h"
#include "KnobWidget.h"
#include "MainFormTest.h"
#include "QtValues.h"
#include "SlideWidget.h"
#include "Theme.h"
#include "UnreadMark.h"

namespace tracewell {
namespace {

/// As much as a text, and as a line that carries meaning, needs to be seen by most.
constexpr double ofText = 4.5;
constexpr double ofLines = 3;
/// What cannot be used is not to stand out.
constexpr double ofDisabled = 3;

double luminance(QRgb colour) {
  const auto linear = [](int part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

/// Between what most of it is filled with and what stands out most.
double contrastIn(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  if (counts.empty()) return 0;
  const auto most =
      std::ranges::max_element(counts, {}, [](const auto& counted) { return counted.second; });
  const double ground = luminance(most->first);
  double highest = 1;
  for (const auto& [colour, count] : counts) {
    const double other = luminance(colour);
    highest =
        std::max(highest, (std::max(other, ground) + 0.05) / (std::min(other, ground) + 0.05));
  }
  return highest;
}

class ContrastTest : public MainFormTest {
 protected:
  ~ContrastTest() override { applyTheme(*qApp, Theme::light); }

  double contrastOf(QWidget& widget, const QRect& place) {
    return contrastIn(
        form->grab({widget.mapTo(form.get(), place.topLeft()), place.size()}).toImage());
  }

  /// Where a widget writes; empty where it does not.
  static QRect textOf(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
      return {7, 4, widget.fontMetrics().horizontalAdvance(box->title()), 14};
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
      return label->text().isEmpty() ? QRect() : label->contentsRect();
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
      return box->currentText().isEmpty() ? QRect() : widget.rect().adjusted(4, 4, -40, -4);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button == nullptr || button->text().isEmpty()) return {};
    const int left = qobject_cast<const QPushButton*>(button) != nullptr ? 5 : 20;
    return widget.rect().adjusted(left, 5, -5 - UnreadMark::room, -5);
  }

  void expectReadable(double needed) {
    QApplication::processEvents();
    for (QWidget* widget : form->findChildren<QWidget*>()) {
      const QRect text = textOf(*widget);
      if (text.isEmpty() || !widget->isVisible()) continue;
      EXPECT_GE(contrastOf(*widget, text), needed) << fromQt(widget->objectName());
    }
    for (KnobWidget* knob : form->findChildren<KnobWidget*>())
      EXPECT_GE(contrastOf(*knob, {0, 0, knob->width() / 6, knob->height()}), needed);
    for (SlideWidget* slide : form->findChildren<SlideWidget*>()) {
      const bool isUpright = slide->height() > slide->width();
      const QRect marks = isUpright ? QRect(slide->width() / 2 + 7, 0, 2, slide->height() / 3)
                                    : QRect(0, slide->height() / 2 + 9, slide->width() / 3, 2);
      EXPECT_GE(contrastOf(*slide, marks), ofLines) << fromQt(slide->objectName());
    }
    const QRect menus(0, 0, 60, 15);
    EXPECT_GE(contrastOf(*find("menuBar"), menus), needed);
  }
};

/// Black on white, as some desktops are set for those who see little.
QPalette blackOnWhite() {
  QPalette desktop(Qt::white, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Highlight})
    desktop.setColor(role, Qt::black);
  return desktop;
}

TEST_F(ContrastTest, ThemesHaveTheirColours) {
  QWidget none;
  for (const auto& [theme, section] : {std::pair(Theme::light, "light colours"),
                                       {Theme::dark, "dark colours"},
                                       {Theme::highContrast, "colours of high contrast"},
                                       {Theme::system, "colours of the desktop"}}) {
    applyTheme(*qApp, theme, blackOnWhite());
    expectDrawn(none, section, [](const QString& asked) {
      const QString role = asked.section(QLatin1Char(' '), -1);
      const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
      const auto number = static_cast<QPalette::ColorRole>(roles.keyToValue(role.toLatin1()));
      const auto group = asked == role ? QPalette::Active : QPalette::Disabled;
      return QApplication::palette().color(group, number).name();
    });
  }
}

TEST_F(ContrastTest, EverythingCanBeReadInEveryTheme) {
  EXPECT_EQ(themeOf(blackOnWhite()), Theme::highContrast);
  EXPECT_EQ(themeOf(QPalette(QColor(0xf5, 0xf5, 0xf5))), Theme::light);
  main.lblStatus.caption = "Saved";
  main.lblNotice.sentences = {{"kept aside", true}};
  main.lblNotice.caption = "kept aside";
  main.lblNotice.visible = true;
  main.lblAge.caption = "CH1: live";
  main.lblPort.caption = "port 0";
  main.lblMeasure(0).caption = "Vpp(1)";
  const std::tuple<Theme, QPalette, bool> themes[] = {
      {Theme::system, QPalette(QColor(0xef, 0xef, 0xef)), false},
      {Theme::system, QPalette(QColor(0x23, 0x26, 0x29)), true},
      {Theme::system, blackOnWhite(), false},
      {Theme::light, blackOnWhite(), false},
      {Theme::dark, {}, true},
      {Theme::highContrast, {}, true}};
  const auto sizeOfScale = [this] { return QFontInfo(find("lblChan1")->font()).pixelSize(); };
  const int size = sizeOfScale();
  for (const auto& [theme, desktop, isDark] : themes) {
    SCOPED_TRACE(testing::Message() << static_cast<int>(theme) << isDark);
    applyTheme(*qApp, theme, desktop);
    EXPECT_EQ(form->palette().color(QPalette::Window).lightness() < 128, isDark);
    QApplication::processEvents();
    EXPECT_EQ(sizeOfScale(), size);
    for (const bool isStale : {true, false}) {
      SCOPED_TRACE(isStale ? "stale" : "known");
      for (Control* control : main.controls()) {
        if (!control->trust) continue;
        control->trust = [isStale] { return isStale ? Trust::stale : Trust::holds; };
        control->notifyChanged();
      }
      expectReadable(ofText);
    }
    form->setEnabled(false);
    expectReadable(ofDisabled);
    form->setEnabled(true);
  }
}

TEST_F(ContrastTest, GraticuleAndOldTracesCanBeSeen) {
  QWidget& plot = *find("plot");
  const QRect beside(plot.width() / 20, 2, plot.width() / 10, plot.height() / 16);
  QApplication::processEvents();
  EXPECT_GE(contrastOf(plot, beside), ofLines);
  for (Axis& axis : main.graphDSO.axes()) axis.gridColour = main.graphDSO.plotAreaColour();
  const std::array<std::int16_t, 2> ends = {-250, 249};
  const std::array<double, 2> level = {175, 175};
  for (const int number : {1, 2}) {
    Plot& trace = main.graphDSO.plot(number);
    for (Plot& other : main.graphDSO.plots()) other.visible = &other == &trace;
    trace.pale = [] { return true; };
    trace.plotXvsY(ends, level);
    QTest::qWait(1);
    EXPECT_GE(contrastOf(plot, beside), ofLines) << number;
  }
}

}  // namespace
}  // namespace tracewell
