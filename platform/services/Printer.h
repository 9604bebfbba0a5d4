// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Image.h"

namespace tracewell {

/// The graph for paper: lines in graph units, and the texts around it.
struct GraphPage {
  struct Trace {
    /// Number of the plot, from 1; a trace keeps its look whatever else is on the page.
    int number = 1;
    std::string name;
    /// Graph units.
    std::vector<double> x;
    std::vector<double> y;
  };
  std::string title;
  /// One line each, below the graph.
  std::vector<std::string> captions;
  std::vector<Trace> traces;
};

/// The printer in use: the desktop's default until set up otherwise, or a PDF file. Implemented by
/// desktop/DesktopPrinter, and by tests/RecordingPrinter.
///
/// Each print is a document of its own. A user who has no printer is asked to choose one; declining
/// prints nothing, and is told by false. Raises an error with the reason when printing fails.
class Printer {
 public:
  virtual ~Printer() = default;

  /// Lets the user choose printer and paper.
  virtual void setUp() = 0;
  virtual bool printImage(const Image& image) = 0;
  virtual bool printText(const std::string& text) = 0;
  virtual bool printPage(const GraphPage& page) = 0;
  /// The PDF file of the last print; empty if it went to a printer.
  virtual std::string file() const = 0;
};

}  // namespace tracewell
