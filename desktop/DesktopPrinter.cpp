// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPrinter.h"

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTextDocument>

#include "Error.h"
#include "Files.h"
#include "PaperGraph.h"
#include "QtImages.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// Points; texts on paper.
constexpr qreal textSize = 9;

Error printError(const QString& printerName) {
  return {deviceError, "Printer", "Printing has failed: " + fromQt(printerName)};
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

/// A printer, too, may have the name of a file, which its driver asks for.
bool DesktopPrinter::isForFile() {
  return printer().outputFormat() == QPrinter::PdfFormat && !printer().outputFileName().isEmpty();
}

bool DesktopPrinter::isGrey() {
  return printer().colorMode() == QPrinter::GrayScale;
}

/// The paper lies as it fits before the user is asked, who may turn it.
bool DesktopPrinter::isReady(QPageLayout::Orientation orientation) {
  if (!isPaperTurned_) printer().setPageOrientation(orientation);
  if (!isSetUp_ && (isForFile() || QPrinterInfo::defaultPrinter().isNull()))
    setUp();
  else
    isSetUp_ = true;
  return isSetUp_;
}

/// A file that the user has named takes one print, whatever comes of it.
void DesktopPrinter::askAgain() {
  if (isFileFixed_ || !isForFile()) return;
  isSetUp_ = false;
  isPaperTurned_ = false;
}

/// A PDF file is made in memory first: what the disk does not take must not cost the file before.
template <class Paint>
bool DesktopPrinter::print(QPageLayout::Orientation orientation, Paint paint) {
  if (!isReady(orientation)) return false;
  askAgain();
  if (!isForFile()) {
    paint(printer());
    if (printer().printerState() == QPrinter::Error) throw printError(printer().printerName());
  } else {
    QByteArray document;
    QBuffer buffer(&document);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(printer().pageLayout());
    writer.setPageRanges(printer().pageRanges());
    writer.setResolution(printer().resolution());
    paint(writer);
    writeWholeFile(toPath(printer().outputFileName()), document.toStdString());
  }
  return true;
}

template <class Paint>
bool DesktopPrinter::printAcross(Paint paintPage) {
  return print(QPageLayout::Landscape, [&](QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) throw printError(printer().printerName());
    const QRect page = device.pageLayout().paintRectPixels(device.logicalDpiX());
    paintPage(painter, QRectF(QPointF(0, 0), QSizeF(page.size())));
    if (!painter.end()) throw printError(printer().printerName());
  });
}

std::string DesktopPrinter::file() const {
  const QString name = printer_ ? printer_->outputFileName() : QString();
  return name.isEmpty() ? "" : fromQt(QFileInfo(name).absoluteFilePath());
}

bool DesktopPrinter::printImage(const Image& image) {
  return printAcross([&](QPainter& painter, const QRectF& paper) {
    QImage picture = toQt(image);
    if (isGrey()) picture.convertTo(QImage::Format_Grayscale8);
    QSizeF size = picture.size();
    size.scale(paper.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRectF(paper.topLeft(), size), picture);
  });
}

bool DesktopPrinter::printText(const std::string& text) {
  return print(QPageLayout::Portrait, [&](QPagedPaintDevice& device) {
    QTextDocument document;
    QFont font(QStringLiteral("monospace"));
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(textSize);
    document.setDefaultFont(font);
    document.setPlainText(shownText(text, roomOfPage));
    document.print(&device);
  });
}

bool DesktopPrinter::printPage(const GraphPage& page) {
  return printAcross([&](QPainter& painter, const QRectF& paper) {
    paintOnPaper(page, painter, paper, isGrey() ? PaperInk::grey : PaperInk::coloured);
  });
}

}  // namespace tracewell
