// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPrinter>
#include <optional>

#include "Printer.h"

namespace tracewell {

/// Printing with Qt. Without a printer it prints to a PDF file that the user names anew each time,
/// so that no print replaces another.
class DesktopPrinter : public Printer {
 public:
  void setUp() override;
  bool printImage(const Image& image) override;
  bool printText(const std::string& text) override;
  bool printPage(const GraphPage& page) override;
  std::string file() const override;

  /// Prints everything to this PDF file from now on; each print replaces the one before.
  void printToFile(const QString& path);

 private:
  /// Created when first needed: it asks the print system for the default printer.
  QPrinter& printer();
  /// What is printed goes to a PDF file that has a name.
  bool isForFile();
  bool isGrey();
  /// False if there is no printer and the user has chosen none.
  bool isReady(QPageLayout::Orientation orientation);
  void askAgain();
  template <class Paint>
  bool print(QPageLayout::Orientation orientation, Paint paint);
  template <class Paint>
  bool printAcross(Paint paintPage);

  std::optional<QPrinter> printer_;
  bool isSetUp_ = false;
  /// By the user: then it stays so.
  bool isPaperTurned_ = false;
  bool isFileFixed_ = false;
};

}  // namespace tracewell
