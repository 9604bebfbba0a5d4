// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelStyle.h"

#include <QApplication>
#include <QComboBox>
#include <QCommonStyle>
#include <QEvent>
#include <QIconEngine>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>

namespace tracewell {
namespace {

/// Radius of the corners of Fusion's boxes.
constexpr qreal corner = 2;

void outline(QPainter& painter, const QStyleOption& option, bool isRound = false) {
  const bool isFocused = option.state & QStyle::State_HasFocus;
  const QRectF line = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(isFocused ? QPen(option.palette.color(QPalette::Highlight), 2)
                           : QPen(option.palette.color(QPalette::Mid), 1));
  if (isRound)
    painter.drawEllipse(line);
  else
    painter.drawRoundedRect(line, corner, corner);
  painter.restore();
}

/// Over Fusion's own, which is hardly paler than an empty box.
void dot(QPainter& painter, const QStyleOption& option) {
  const QRectF place(option.rect);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(option.palette.color(QPalette::Highlight));
  painter.drawEllipse(place.center(), place.width() / 4, place.height() / 4);
  painter.restore();
}

/// Fusion draws a button of a size and a palette once; but each widget has a palette of its own,
/// even one like all others.
QStyleOptionButton inSharedPalette(QStyleOptionButton button) {
  QPalette shared = QApplication::palette();
  shared.setCurrentColorGroup(button.palette.currentColorGroup());
  if (button.palette == shared) button.palette = shared;
  return button;
}

/// Draws the arrow of a chosen line of a tree in the colour of its text.
QStyleOptionViewItem inHighlightedText(QStyleOptionViewItem line) {
  line.palette.setBrush(QPalette::WindowText, line.palette.highlightedText());
  return line;
}

/// A style change would make it build its list, long before it opens.
bool isUnstyledBox(QObject* watched) {
  const auto* box = qobject_cast<QComboBox*>(watched);
  return box != nullptr && !box->testAttribute(Qt::WA_WState_Polished);
}

/// A resize would make it measure its entries, which it does anyway when it opens.
bool isUnopenedMenu(QObject* watched) {
  const auto* menu = qobject_cast<QMenu*>(watched);
  return menu != nullptr && !menu->testAttribute(Qt::WA_WState_Created);
}

/// For the entries of a menu bar that there is no room for. It is read only when it is painted.
class ExtensionIcon : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
    read().paint(painter, place, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return read().pixmap(size, 1, mode, state);
  }
  QIconEngine* clone() const override { return new ExtensionIcon; }

 private:
  static QIcon read() {
    return QCommonStyle().standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
  }
};

}  // namespace

PanelStyle::PanelStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void PanelStyle::polish(QApplication* application) {
  QProxyStyle::polish(application);
  application->installEventFilter(this);
}

bool PanelStyle::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::StyleChange) return isUnstyledBox(watched);
  return event->type() == QEvent::Resize && isUnopenedMenu(watched);
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
    const QStyleOptionButton shared = inSharedPalette(*button);
    QProxyStyle::drawPrimitive(element, &shared, painter, widget);
  } else if (const auto* line = qstyleoption_cast<const QStyleOptionViewItem*>(option);
             line != nullptr && element == PE_IndicatorBranch && line->state & State_Selected) {
    const QStyleOptionViewItem written = inHighlightedText(*line);
    QProxyStyle::drawPrimitive(element, &written, painter, widget);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  const bool hasFrame = frame == nullptr || frame->lineWidth > 0;
  switch (element) {
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
      return outline(*painter, *option);
    case PE_IndicatorRadioButton:
      if (option->state & State_On) dot(*painter, *option);
      return outline(*painter, *option, true);
    case PE_PanelLineEdit:
      if (hasFrame) outline(*painter, *option);
      return;
    default:
      return;
  }
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_ComboBox) outline(*painter, *option);
}

int PanelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* more) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, more);
}

QIcon PanelStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                               const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton) return QIcon(new ExtensionIcon);
  return QProxyStyle::standardIcon(which, option, widget);
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_ScrollBarSlider) outline(*painter, *option);
}

}  // namespace tracewell
