// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// Colours and styles of the plots; row k (counted from 0) is plot k + 1. OK always draws solid
/// lines and carries Dot in the point style only, so a Dot plot reads Solid at the next opening.
class frmGraph : public Window {
 public:
  explicit frmGraph(frmDSO& main);

  Frame fmPlots{*this, "fmPlots", "Plots"};
  ControlArray<ValueLabel> lblPlot{*this, "lblPlot", ScopeGraph::plotCount};
  ControlArray<Line> linePlot{*this, "linePlot", ScopeGraph::plotCount};
  ControlArray<Button> cmdLine{*this, "cmdLine", {"", "", "", "", "", ""}};
  ControlArray<CheckBox> opDot{*this, "opDot", {"Dot", "Dot", "Dot", "Dot", "Dot", "Dot"}};
  ControlArray<CheckBox> opSolid{
      *this, "opSolid", {"Solid", "Solid", "Solid", "Solid", "Solid", "Solid"}};
  Label lblPlotArea{*this, "lblPlotArea", "Plot Area Color :"};
  Button cmdPlotArea{*this, "cmdPlotArea", ""};
  Label lblPlotGrid{*this, "lblPlotGrid", "Plot Grid Color :"};
  Button cmdPlotGrid{*this, "cmdPlotGrid", ""};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  void cmdGraph_Click();

 private:
  void Form_Activate();
  void cmdLine_Click(int row);
  void opDot_Click(int row);
  void opSolid_Click(int row);
  void showStyle(int row);
  void cmdPlotArea_Click();
  void cmdPlotGrid_Click();
  void pickColour(Button& button);
  void cmdOK_Click();

  frmDSO& main_;
};

}  // namespace tracewell
