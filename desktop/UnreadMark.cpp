// SPDX-License-Identifier: GPL-3.0-or-later
#include "UnreadMark.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "DesktopWords.h"
#include "ElidedLabel.h"
#include "KnobWidget.h"
#include "SlideWidget.h"

namespace tracewell {
namespace {

constexpr int side = 13;
/// Between words and mark.
constexpr int gap = 3;
/// As pale as text can be and still be read; on a button less so than on a panel.
constexpr qreal paleOpacity = 0.7;
constexpr qreal paleButtonOpacity = 0.9;

/// Its letters stand closer where there is no room for the mark behind them: a window that fits the
/// screen has it without.
void makeRoom(QLabel& label, bool isMarked) {
  QFont font = label.font();
  font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
  const int natural = QFontMetrics(font).horizontalAdvance(label.text());
  const int missing = natural + UnreadMark::room - label.contentsRect().width();
  if (isMarked && missing > 0 && !label.text().isEmpty())
    font.setLetterSpacing(QFont::AbsoluteSpacing,
                          -static_cast<qreal>(missing) / static_cast<qreal>(label.text().size()));
  // It must not become narrower, and closer, for it.
  label.setMinimumWidth(isMarked ? natural : 0);
  if (font.letterSpacing() != label.font().letterSpacing()) label.setFont(font);
}

/// Between the mark and the end of a button, which may be round.
int edgeOf(const QPushButton& button) {
  return button.property("kind").toString() == QLatin1String("lock") ? 4 : 3;
}

/// Beside the text, and in the same place when it is there again.
void makeRoom(QWidget& marked, bool isMarked) {
  if (auto* line = qobject_cast<QLineEdit*>(&marked))
    line->setTextMargins(0, 0, isMarked ? UnreadMark::room : 0, 0);
  else if (auto* button = qobject_cast<QPushButton*>(&marked)) {
    // Its words stay in the middle.
    constexpr int padding = 7;
    const int behind = side + edgeOf(*button) + gap;
    button->setMinimumWidth(button->sizeHint().width() + 2 * (behind - padding));
  } else if (qobject_cast<QAbstractButton*>(&marked) != nullptr ||
             qobject_cast<QComboBox*>(&marked) != nullptr)
    marked.setMinimumWidth(marked.sizeHint().width() + UnreadMark::room);
}

int endOfText(const QLabel& label) {
  const int length = label.fontMetrics().horizontalAdvance(label.text());
  const QRect room = label.contentsRect();
  const bool isCentred = label.alignment() & Qt::AlignHCenter;
  return isCentred ? room.center().x() + length / 2 : room.left() + length;
}

QString meaning() {
  return QCoreApplication::translate("Panel", "The instrument may have another value");
}

/// Of the widget that is described; the mark may stand on another one.
constexpr const char* unreadProperty = "isUnread";

/// A reader says the tip of a widget that has no description. So the description repeats it.
void describe(QWidget& described) {
  const QString own = described.toolTip();
  const QString mean = own.isEmpty() ? meaning() : own + QStringLiteral(". ") + meaning();
  const bool isPale = described.graphicsEffect() != nullptr;
  const bool isUnread = described.property(unreadProperty).toBool();
  const QString description = isUnread || isPale ? mean : QString();
  if (description != described.accessibleDescription())
    described.setAccessibleDescription(description);
}

/// Its description changes with the language, once the tip has.
class PaleEffect : public QGraphicsOpacityEffect {
 public:
  explicit PaleEffect(QWidget& pale) : QGraphicsOpacityEffect(&pale) {
    pale.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* pale, QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) describe(*static_cast<QWidget*>(pale));
    return false;
  }
};

}  // namespace

/// Without an effect where nothing is pale: an effect costs a picture of its own at each painting.
void showPale(QWidget& widget, bool isPale) {
  if (auto* knob = qobject_cast<KnobWidget*>(&widget)) knob->setPale(isPale);
  if (auto* slide = qobject_cast<SlideWidget*>(&widget)) slide->setPale(isPale);
  if (isPale == (widget.graphicsEffect() != nullptr)) return;
  if (!isPale) {
    widget.setGraphicsEffect(nullptr);
    return describe(widget);
  }
  auto* effect = new PaleEffect(widget);
  const bool isButton = qobject_cast<QAbstractButton*>(&widget) != nullptr ||
                        qobject_cast<QComboBox*>(&widget) != nullptr;
  effect->setOpacity(isButton ? paleButtonOpacity : paleOpacity);
  widget.setGraphicsEffect(effect);
  describe(widget);
}

void UnreadMark::show(QWidget& marked, bool isUnread, QWidget* described) {
  auto* mark = marked.findChild<UnreadMark*>(QString(), Qt::FindDirectChildrenOnly);
  if (mark == nullptr && !isUnread) return;
  if (mark == nullptr) mark = new UnreadMark(marked, described != nullptr ? *described : marked);
  mark->setVisible(isUnread);
  mark->describe();
  makeRoom(marked, isUnread);
  mark->toPlace();
}

UnreadMark::UnreadMark(QWidget& marked, QWidget& described)
    : QWidget(&marked), described_(described) {
  resize(side, side);
  setToolTip(QStringLiteral("The instrument may have another value"));
  setAccessibleName(QStringLiteral("not certain"));
  keepEnglish(*this);
  sayInLanguage(*this);
  marked.installEventFilter(this);
  toPlace();
}

void UnreadMark::describe() {
  described_.setProperty(unreadProperty, isVisibleTo(parentWidget()));
  tracewell::describe(described_);
}

/// The tip has been translated before.
void UnreadMark::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) describe();
}

void UnreadMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xa3, 0x5f, 0x00));
  painter.drawEllipse(rect());
  QFont bold = font();
  bold.setBold(true);
  bold.setPixelSize(side - 3);
  painter.setFont(bold);
  painter.setPen(Qt::white);
  painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("?"));
}

/// A theme gives its labels new fonts, in which the letters do not stand closer yet. It is not done
/// with them at that moment.
bool UnreadMark::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Resize) toPlace();
  if (event->type() == QEvent::FontChange)
    QMetaObject::invokeMethod(this, &UnreadMark::toPlace, Qt::QueuedConnection);
  return false;
}

void UnreadMark::toPlace() {
  QWidget& marked = *parentWidget();
  const int middle = (marked.height() - height()) / 2;
  const int right = marked.width() - width();
  constexpr int arrow = 22;
  constexpr int frame = 3;
  if (const auto* knob = qobject_cast<const KnobWidget*>(&marked))
    move(knob->gap().toPoint() - rect().center());
  else if (qobject_cast<const QComboBox*>(&marked) != nullptr)
    move(right - arrow, middle);
  else if (const auto* button = qobject_cast<const QPushButton*>(&marked))
    move(right - edgeOf(*button), middle);
  else if (qobject_cast<const QAbstractButton*>(&marked) != nullptr)
    move(std::min(right, marked.sizeHint().width() + 2), middle);
  else if (auto* label = qobject_cast<QLabel*>(&marked)) {
    if (qobject_cast<ElidedLabel*>(label) == nullptr) makeRoom(*label, isVisibleTo(&marked));
    move(std::min(right, endOfText(*label) + UnreadMark::room - side), middle);
  } else
    move(right - frame, qobject_cast<const QLineEdit*>(&marked) != nullptr ? middle : frame);
}

}  // namespace tracewell
