// SPDX-License-Identifier: GPL-3.0-or-later
#include "UnreadMark.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "DesktopWords.h"
#include "KnobWidget.h"

namespace tracewell {
namespace {

constexpr int side = 13;

int endOfText(const QLabel& label) {
  const int length = label.fontMetrics().horizontalAdvance(label.text());
  const QRect room = label.contentsRect();
  const bool isCentred = label.alignment() & Qt::AlignHCenter;
  return isCentred ? room.center().x() + length / 2 : room.left() + length;
}

QString meaning() {
  return QCoreApplication::translate("Panel", "The instrument has not told this value");
}

}  // namespace

void UnreadMark::show(QWidget& marked, bool isUnread) {
  auto* mark = marked.findChild<UnreadMark*>(QString(), Qt::FindDirectChildrenOnly);
  if (mark == nullptr && !isUnread) return;
  marked.setAccessibleDescription(isUnread ? meaning() : QString());
  if (mark == nullptr) mark = new UnreadMark(marked);
  // Beside the text, and in the same place when it is there again.
  if (qobject_cast<QCheckBox*>(&marked) != nullptr)
    marked.setMinimumWidth(marked.sizeHint().width() + room);
  mark->setVisible(isUnread);
  mark->toPlace();
}

UnreadMark::UnreadMark(QWidget& marked) : QWidget(&marked) {
  resize(side, side);
  setToolTip(QStringLiteral("The instrument has not told this value"));
  setAccessibleName(QStringLiteral("not answered"));
  keepEnglish(*this);
  sayInLanguage(*this);
  marked.installEventFilter(this);
  toPlace();
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

bool UnreadMark::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Resize) toPlace();
  return false;
}

void UnreadMark::toPlace() {
  const QWidget& marked = *parentWidget();
  const int middle = (marked.height() - height()) / 2;
  const int right = marked.width() - width();
  constexpr int arrow = 22;
  if (const auto* knob = qobject_cast<const KnobWidget*>(&marked))
    move(knob->gap().toPoint() - rect().center());
  else if (qobject_cast<const QComboBox*>(&marked) != nullptr)
    move(right - arrow, middle);
  else if (qobject_cast<const QAbstractButton*>(&marked) != nullptr)
    move(std::min(right, marked.sizeHint().width() + 2), middle);
  else if (const auto* label = qobject_cast<const QLabel*>(&marked))
    move(std::min(right, endOfText(*label) + UnreadMark::room - side), middle);
  else
    move(right, 0);
}

}  // namespace tracewell
