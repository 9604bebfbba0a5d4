// SPDX-License-Identifier: GPL-3.0-or-later
#include "ManualEntry.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <utility>

#include "DesktopWords.h"

namespace tracewell {

QString manualFile(const QString& executableFolder) {
  for (const char* place :
       {"../share/doc/tracewell/docs/manual.md", "docs/manual.md", "../../../docs/manual.md"}) {
    const QFileInfo file(executableFolder + QLatin1Char('/') + QLatin1String(place));
    if (file.isFile()) return file.canonicalFilePath();
  }
  return {};
}

ManualEntry::ManualEntry(QMenu& menu, std::function<void(const QString& file)> refused)
    : QAction(&menu) {
  setObjectName(QStringLiteral("manual"));
  menu.addAction(this);
  showState();
  connect(&menu, &QMenu::aboutToShow, this, &ManualEntry::showState);
  connect(this, &QAction::triggered, this, [refused = std::move(refused)] {
    const QString file = manualFile(QCoreApplication::applicationDirPath());
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file)) && refused) refused(file);
  });
}

void ManualEntry::showState() {
  setText(panelText("Manual and keys"));
  setEnabled(!manualFile(QCoreApplication::applicationDirPath()).isEmpty());
}

}  // namespace tracewell
