// SPDX-License-Identifier: GPL-3.0-or-later
#include "CopyGestures.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPlainTextEdit>
#include <utility>

#include "DesktopWords.h"

namespace tracewell {
namespace {

bool isCopyKey(QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<QKeyEvent&>(event).matches(QKeySequence::Copy);
}

}  // namespace

CopyGestures::CopyGestures(QWidget& widget, std::function<void()> copy)
    : QObject(&widget), widget_(widget), copy_(std::move(copy)) {
  widget.setFocusPolicy(Qt::StrongFocus);
  widget.installEventFilter(this);
}

bool CopyGestures::eventFilter(QObject* watched, QEvent* event) {
  if (isCopyKey(*event)) {
    copy_();
    return true;
  }
  if (event->type() != QEvent::ContextMenu) return QObject::eventFilter(watched, event);
  auto* menu = new QMenu(&widget_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addAction(panelText("Copy"), QKeySequence::Copy, &widget_, copy_);
  menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
  return true;
}

bool WholeTextCopy::eventFilter(QObject* watched, QEvent* event) {
  auto* area = qobject_cast<QPlainTextEdit*>(watched);
  if (area == nullptr || !isCopyKey(*event) || area->textCursor().hasSelection())
    return QObject::eventFilter(watched, event);
  QGuiApplication::clipboard()->setText(area->toPlainText());
  return true;
}

}  // namespace tracewell
