// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextGrowth.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFontInfo>
#include <QGroupBox>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QVariant>

namespace tracewell {
namespace {

constexpr QSizeF designedSize(1280, 800);
/// Of the column, in heights of the form's font: 480 pixels in the usual one.
constexpr int columnWidth = 40;
/// Of what is read from near.
constexpr qreal slowness = 0.5;
constexpr qreal mostGrowth = 4.0 / 3;

/// A window that is only wide, or only high, has no more room for text.
qreal growthOf(const QSizeF& window) {
  return qMax(1.0,
              qMin(window.width() / designedSize.width(), window.height() / designedSize.height()));
}

/// A button in a larger window is higher than its text needs: it is what the hand looks for.
constexpr qreal heightOfButton = 2.25;

void setPixels(const std::vector<QWidget*>& widgets, int pixels, int usual) {
  for (QWidget* widget : widgets) {
    // With what the style sheet has made of it.
    QFont font = widget->font();
    font.setPixelSize(pixels);
    widget->setFont(font);
    if (qobject_cast<QPushButton*>(widget) != nullptr)
      widget->setMinimumHeight(pixels > usual ? qRound(heightOfButton * pixels) : 0);
  }
}

/// Written on. The graph sees to its parts itself.
bool growsSlowly(QWidget& widget) {
  const auto is = [&widget](auto... kinds) { return (widget.inherits(kinds) || ...); };
  if (widget.parentWidget()->inherits("tracewell::GraphView")) return false;
  return is("QAbstractButton", "QGroupBox", "QLabel", "QComboBox", "QLineEdit",
            "tracewell::KnobWidget", "tracewell::SlideWidget");
}

}  // namespace

int pixelsOf(const QWidget& widget) {
  return QFontInfo(widget.font()).pixelSize();
}

TextGrowth::TextGrowth(QWidget& form)
    : QObject(&form),
      form_(form),
      central_(form.findChild<QWidget*>(QStringLiteral("central"))),
      column_(form.findChild<QWidget*>(QStringLiteral("column"))) {
  for (QWidget* widget : form.findChildren<QWidget*>()) {
    const int pixels = widget->property("pixels").toInt();
    if (pixels > 0) {
      const QVariant most = widget->property("mostPixels");
      texts_.push_back({widget, pixels, most.isValid() ? most.toInt() : INT_MAX});
      continue;
    }
    if (central_ == nullptr || !central_->isAncestorOf(widget) || !growsSlowly(*widget)) continue;
    const bool isInColumn = column_ != nullptr && column_->isAncestorOf(widget);
    (isInColumn ? inColumn_ : beside_).push_back(widget);
  }
  if (texts_.empty()) return;
  limitColumn();
  grow();
  form.installEventFilter(this);
  if (central_ != nullptr) central_->installEventFilter(this);
}

bool TextGrowth::eventFilter(QObject* watched, QEvent* event) {
  const bool isOfForm = watched == &form_;
  if (isOfForm && event->type() == QEvent::Resize) grow();
  // A style sheet has fonts of its own; it reaches the parts of the form after the form.
  if (isOfForm && event->type() == QEvent::StyleChange)
    QMetaObject::invokeMethod(this, &TextGrowth::grow, Qt::QueuedConnection);
  if (isOfForm && event->type() == QEvent::FontChange) {
    limitColumn();
    growSlowly();
  }
  // Where a text has become another one there.
  const bool haveGrown = wanted_ > pixelsOf(form_);
  if (event->type() == QEvent::LayoutRequest && haveGrown && words() != grownFor_) growSlowly();
  return false;
}

void TextGrowth::grow() {
  const qreal growth = growthOf(form_.size());
  for (const Text& text : texts_) {
    QFont font = text.widget->font();
    font.setPixelSize(qMin(qRound(text.pixels * growth), text.mostPixels));
    text.widget->setFont(font);
  }
  growSlowly();
}

/// The column after the rest, which it would else hold back.
void TextGrowth::growSlowly() {
  if (central_ == nullptr || column_ == nullptr) return;
  const int usual = pixelsOf(form_);
  const qreal growth = qMin(1 + (growthOf(form_.size()) - 1) * slowness, mostGrowth);
  const int wanted = qRound(usual * growth);
  const bool isUsual = wanted == usual && wanted_ <= usual;
  wanted_ = wanted;
  if (isUsual) return;
  grownFor_ = words();
  setPixels(inColumn_, usual, usual);
  for (const auto* widgets : {&beside_, &inColumn_}) {
    int pixels = wanted;
    do setPixels(*widgets, pixels, usual);
    while (!fits() && --pixels >= usual);
  }
}

bool TextGrowth::fits() const {
  // A box tells its layout's new size to the layout around it when it is activated; the inner ones
  // come last in the list.
  const auto boxes = central_->findChildren<QWidget*>();
  for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
    if ((*box)->layout() != nullptr) (*box)->layout()->activate();
  const auto* menus = form_.findChild<QMenuBar*>();
  const int menuHeight = menus == nullptr ? 0 : menus->sizeHint().height();
  const QSize needed = central_->layout()->totalMinimumSize();
  return column_->layout()->totalMinimumSize().width() <= column_->maximumWidth() &&
         needed.width() <= form_.width() && needed.height() + menuHeight <= form_.height();
}

/// Values change all the time: what shows them keeps its size.
QStringList TextGrowth::words() const {
  QStringList words;
  for (const auto* button : central_->findChildren<QAbstractButton*>()) words << button->text();
  for (const auto* box : central_->findChildren<QGroupBox*>()) words << box->title();
  return words;
}

void TextGrowth::limitColumn() {
  if (column_ != nullptr) column_->setMaximumWidth(columnWidth * pixelsOf(form_));
}

}  // namespace tracewell
