// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPrinter>

#include "Printer.h"

namespace tracewell {

/// Printing with Qt. A machine without a printer prints to a PDF file that the user names.
class DesktopPrinter : public Printer {
 public:
  void setUp() override;
  void printImage(const Image& image) override;
  void printText(const std::string& text) override;
  void printPage(const GraphPage& page) override;

  /// Prints to a PDF file from now on.
  void printToFile(const QString& path);

 private:
  /// False when there is no printer and the user has chosen none.
  bool isReady();
  void turnPaper(QPageLayout::Orientation orientation);
  template <class Paint>
  void paint(Paint paintPage);

  QPrinter printer_{QPrinter::HighResolution};
  bool isSetUp_ = false;
  bool isPaperChosen_ = false;
};

}  // namespace tracewell
