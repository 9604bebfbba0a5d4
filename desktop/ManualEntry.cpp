// SPDX-License-Identifier: GPL-3.0-or-later
#include "ManualEntry.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace tracewell {

QString manualFile(const QString& executableFolder) {
  for (const char* place :
       {"../share/doc/tracewell/docs/manual.md", "docs/manual.md", "../../../docs/manual.md"}) {
    const QFileInfo file(executableFolder + QLatin1Char('/') + QLatin1String(place));
    if (file.isFile()) return file.canonicalFilePath();
  }
  return {};
}

ManualEntry::ManualEntry(QMenu& menu) : QAction(&menu) {
  setObjectName(QStringLiteral("manual"));
  menu.addAction(this);
  showState();
  connect(&menu, &QMenu::aboutToShow, this, &ManualEntry::showState);
  connect(this, &QAction::triggered, this, [] {
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(manualFile(QCoreApplication::applicationDirPath())));
  });
}

void ManualEntry::showState() {
  setText(QCoreApplication::translate("Panel", "Manual and keys"));
  setEnabled(!manualFile(QCoreApplication::applicationDirPath()).isEmpty());
}

}  // namespace tracewell
