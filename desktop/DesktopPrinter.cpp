// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPrinter.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTextDocument>

#include "Error.h"
#include "PaperGraph.h"
#include "QtImages.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// Points; texts on paper.
constexpr qreal textSize = 9;

Error printError(const QString& reason) {
  return {deviceError, "Printer", fromQt(reason)};
}

}  // namespace

QPrinter& DesktopPrinter::printer() {
  if (!printer_) printer_.emplace(QPrinter::HighResolution);
  return *printer_;
}

void DesktopPrinter::setUp() {
  QPrintDialog dialog(&printer(), QApplication::activeWindow());
  const auto before = printer().pageLayout().orientation();
  if (dialog.exec() != QDialog::Accepted) return;
  isSetUp_ = true;
  if (printer().pageLayout().orientation() != before) isPaperTurned_ = true;
}

void DesktopPrinter::printToFile(const QString& path) {
  printer().setOutputFormat(QPrinter::PdfFormat);
  printer().setOutputFileName(path);
  isSetUp_ = true;
  isFileFixed_ = true;
}

/// The paper lies as it fits before the user is asked, who may turn it.
bool DesktopPrinter::isReady(QPageLayout::Orientation orientation) {
  if (!isPaperTurned_) printer().setPageOrientation(orientation);
  const bool isForFile = !printer().outputFileName().isEmpty();
  if (!isSetUp_ && (isForFile || QPrinterInfo::defaultPrinter().isNull()))
    setUp();
  else
    isSetUp_ = true;
  return isSetUp_;
}

/// A file that the user has named takes one print.
void DesktopPrinter::finished() {
  if (isFileFixed_ || printer().outputFileName().isEmpty()) return;
  isSetUp_ = false;
  isPaperTurned_ = false;
}

template <class Paint>
bool DesktopPrinter::paintAcross(Paint paintPage) {
  if (!isReady(QPageLayout::Landscape)) return false;
  QPainter painter;
  if (!painter.begin(&printer()))
    throw printError(QStringLiteral("Cannot print to %1")
                         .arg(printer().outputFileName().isEmpty() ? printer().printerName()
                                                                   : printer().outputFileName()));
  paintPage(painter,
            QRectF(QPointF(0, 0), QSizeF(printer().pageRect(QPrinter::DevicePixel).size())));
  if (!painter.end()) throw printError(QStringLiteral("Printing has failed"));
  finished();
  return true;
}

std::string DesktopPrinter::file() const {
  const QString name = printer_ ? printer_->outputFileName() : QString();
  return name.isEmpty() ? "" : fromQt(QFileInfo(name).absoluteFilePath());
}

bool DesktopPrinter::printImage(const Image& image) {
  return paintAcross([&](QPainter& painter, const QRectF& paper) {
    const QImage picture = toQt(image);
    QSizeF size = picture.size();
    size.scale(paper.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRectF(paper.topLeft(), size), picture);
  });
}

bool DesktopPrinter::printText(const std::string& text) {
  if (!isReady(QPageLayout::Portrait)) return false;
  QTextDocument document;
  QFont font(QStringLiteral("monospace"));
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(textSize);
  document.setDefaultFont(font);
  document.setPlainText(shownText(text, roomOfPage));
  document.print(&printer());
  if (printer().printerState() == QPrinter::Error)
    throw printError(QStringLiteral("Printing has failed"));
  finished();
  return true;
}

bool DesktopPrinter::printPage(const GraphPage& page) {
  return paintAcross(
      [&](QPainter& painter, const QRectF& paper) { paintOnPaper(page, painter, paper); });
}

}  // namespace tracewell
