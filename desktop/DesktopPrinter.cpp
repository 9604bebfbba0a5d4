// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPrinter.h"

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTextDocument>

#include "Error.h"
#include "Images.h"
#include "PaperGraph.h"
#include "Text.h"

namespace tracewell {
namespace {

/// Points; texts on paper.
constexpr qreal textSize = 9;

Error printError(const QString& reason) {
  return {deviceError, "Printer", fromQt(reason)};
}

}  // namespace

void DesktopPrinter::setUp() {
  QPrintDialog dialog(&printer_, QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) return;
  isSetUp_ = true;
  isPaperChosen_ = true;
}

void DesktopPrinter::printToFile(const QString& path) {
  printer_.setOutputFormat(QPrinter::PdfFormat);
  printer_.setOutputFileName(path);
  isSetUp_ = true;
}

bool DesktopPrinter::isReady() {
  if (!isSetUp_ && QPrinterInfo::defaultPrinter().isNull())
    setUp();
  else
    isSetUp_ = true;
  return isSetUp_;
}

/// Unless the user has chosen how the paper lies.
void DesktopPrinter::turnPaper(QPageLayout::Orientation orientation) {
  if (!isPaperChosen_) printer_.setPageOrientation(orientation);
}

template <class Paint>
void DesktopPrinter::paint(Paint paintPage) {
  if (!isReady()) return;
  QPainter painter;
  if (!painter.begin(&printer_))
    throw printError(QStringLiteral("Cannot print to %1")
                         .arg(printer_.outputFileName().isEmpty() ? printer_.printerName()
                                                                  : printer_.outputFileName()));
  paintPage(painter,
            QRectF(QPointF(0, 0), QSizeF(printer_.pageRect(QPrinter::DevicePixel).size())));
  if (!painter.end()) throw printError(QStringLiteral("Printing has failed"));
}

void DesktopPrinter::printImage(const Image& image) {
  turnPaper(QPageLayout::Landscape);
  paint([&](QPainter& painter, const QRectF& paper) {
    const QImage picture = toQt(image);
    QSizeF size = picture.size();
    size.scale(paper.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRectF(paper.topLeft(), size), picture);
  });
}

void DesktopPrinter::printText(const std::string& text) {
  if (!isReady()) return;
  turnPaper(QPageLayout::Portrait);
  QTextDocument document;
  QFont font(QStringLiteral("monospace"));
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(textSize);
  document.setDefaultFont(font);
  document.setPlainText(toQt(text).remove(QLatin1Char('\r')));
  document.print(&printer_);
  if (printer_.printerState() == QPrinter::Error)
    throw printError(QStringLiteral("Printing has failed"));
}

void DesktopPrinter::printPage(const GraphPage& page) {
  turnPaper(QPageLayout::Landscape);
  paint([&](QPainter& painter, const QRectF& paper) { paintOnPaper(page, painter, paper); });
}

}  // namespace tracewell
