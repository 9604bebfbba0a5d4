// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopRecorder.h"

#include <QApplication>
#include <QMenu>

#include "DesktopWords.h"
#include "RecorderWindow.h"

namespace tracewell {

DesktopRecorder::DesktopRecorder(frmDSO& main) : recorder_(main) {
  recorder_.ring = [] { QApplication::beep(); };
  recorder_.kept = [this](RecordStore::Number) {
    if (window_) window_->recordKept();
  };
  connect(&everySecond_, &QTimer::timeout, this, [this] { recorder_.tick(); });
}

DesktopRecorder::~DesktopRecorder() = default;

void DesktopRecorder::addTo(QWidget& form) {
  auto* const menu = form.findChild<QMenu*>(QStringLiteral("mnbView"));
  auto* const entry = new QAction(menu);
  entry->setObjectName(QStringLiteral("recorder"));
  entry->setShortcut(Qt::Key_F9);
  menu->addAction(entry);
  const auto sayInLanguage = [entry] { entry->setText(panelText("Recorder")); };
  sayInLanguage();
  connect(menu, &QMenu::aboutToShow, entry, sayInLanguage);
  connect(entry, &QAction::triggered, this, [this] { open(); });
}

RecorderWindow& DesktopRecorder::open() {
  if (!window_) window_ = std::make_unique<RecorderWindow>(recorder_);
  if (!everySecond_.isActive()) everySecond_.start(1000);
  window_->show();
  window_->raise();
  window_->activateWindow();
  return *window_;
}

}  // namespace tracewell
