// SPDX-License-Identifier: GPL-3.0-or-later
#include "Cursors.h"

#include <utility>

#include "Numbers.h"
#include "ScaleTables.h"
#include "TraceMarks.h"

namespace tracewell {
namespace {

constexpr double unitsPerDivision = Graph::unitsPerDivision;

/// Microseconds are labelled "msec" too.
std::string timeUnit(char prefix) {
  switch (prefix) {
    case 'm':
    case 'u':
      return "msec";
    case 'n':
      return "nsec";
    default:
      return "sec";
  }
}

}  // namespace

void Cursors::opOff_Click() {
  showCursors(false);
  CursorTimeMode = false;
  UpdateCursorReadout();
}

void Cursors::opTime_Click() {
  showCursors(true);
  Cursor& cur1 = main_.graphDSO.cursor("cur1");
  Cursor& cur2 = main_.graphDSO.cursor("cur2");
  cur1.style = CursorStyle::verticalLine;
  cur1.xPosition = 0;
  cur2.style = CursorStyle::verticalLine;
  cur2.xPosition = 50;
  CursorTimeMode = true;
  UpdateCursorReadout();
}

void Cursors::opVoltage_Click() {
  showCursors(true);
  Cursor& cur1 = main_.graphDSO.cursor("cur1");
  Cursor& cur2 = main_.graphDSO.cursor("cur2");
  cur1.style = CursorStyle::horizontalLine;
  cur1.yPosition = -100;
  cur2.style = CursorStyle::horizontalLine;
  cur2.yPosition = -150;
  CursorTimeMode = false;
  UpdateCursorReadout();
}

void Cursors::cbCurChan_Click() {
  UpdateCursorReadout();
}

void Cursors::graphDSO_CursorMoved() {
  UpdateCursorReadout();
}

void Cursors::cmdCursor_Click() {
  if (main_.opOff.value())
    main_.opTime.value = true;
  else if (main_.opTime.value())
    main_.opVoltage.value = true;
  else
    main_.opOff.value = true;
}

void Cursors::showCursors(bool areVisible) {
  main_.graphDSO.cursor("cur1").visible = areVisible;
  main_.graphDSO.cursor("cur2").visible = areVisible;
}

void Cursors::UpdateCursorReadout() {
  struct Shown {
    ScopeGraph& graph;
    Axis& axis;
    ~Shown() {
      graph.notifyChanged();
      axis.notifyChanged();
    }
  };
  Axis& axis = main_.graphDSO.axis("XAxis");
  // The badge, and whether it is pale, may change where its text does not or cannot be counted.
  const Shown shown{main_.graphDSO, axis};
  main_.readout = {};
  if (main_.opOff.value()) {
    axis.caption = nameOfTimeAxis;
    return;
  }
  const ValueLabel& scale = scaleOfReadout(main_);
  const std::string inForce = scale.caption();
  std::string text = CursorTimeMode ? timeReadout(inForce) : voltageReadout(inForce);
  main_.readout = {&scale, inForce};
  axis.caption = std::move(text);
}

std::string Cursors::voltageReadout(const std::string& scale) {
  Cur1Pos = main_.graphDSO.cursor("cur1").yPosition();
  Cur2Pos = main_.graphDSO.cursor("cur2").yPosition();
  const double voltsPerDivision = ParseScaleCaption(scale);
  const double p1 = checked(Cur1Pos * voltsPerDivision / unitsPerDivision);
  const double p2 = checked(Cur2Pos * voltsPerDivision / unitsPerDivision);
  return "P1 = " + formatTwoDecimals(p1) + "(V)  ,  " + "P2 = " + formatTwoDecimals(p2) +
         "(V)        " + "Diff V = " + formatTwoDecimals(checked(p1 - p2)) + "(V)";
}

std::string Cursors::timeReadout(const std::string& scale) {
  const std::string unit = timeUnit(captionPrefix(scale));
  Cur1Pos = main_.graphDSO.cursor("cur1").xPosition();
  Cur2Pos = main_.graphDSO.cursor("cur2").xPosition();
  const double timePerDivision = toDouble(captionNumber(scale));
  const double p1 = checked(timePerDivision * Cur1Pos / unitsPerDivision);
  const double p2 = checked(timePerDivision * Cur2Pos / unitsPerDivision);
  return "P1 = " + formatTwoDecimals(p1) + "(" + unit + ")," + "P2 = " + formatTwoDecimals(p2) +
         "(" + unit + ")   " + "Diff T = " + formatTwoDecimals(checked(p1 - p2)) + "(" + unit + ")";
}

}  // namespace tracewell
