// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmGraph.h"

namespace tracewell {

frmGraph::frmGraph(frmDSO& main) : Window("frmGraph", "Graph Setup", main.services()), main_(main) {
  formActivate = [this] { Form_Activate(); };
  for (int row = 0; row < ScopeGraph::plotCount; ++row) {
    cmdLine(row).click = [this, row] { cmdLine_Click(row); };
    opDot(row).click = [this, row] { opDot_Click(row); };
    opSolid(row).click = [this, row] { opSolid_Click(row); };
  }
  cmdPlotArea.click = [this] { cmdPlotArea_Click(); };
  cmdPlotGrid.click = [this] { cmdPlotGrid_Click(); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmGraph::cmdGraph_Click() {
  showModal();
}

void frmGraph::Form_Activate() {
  for (int row = 0; row < ScopeGraph::plotCount; ++row) {
    const Plot& plot = main_.graphDSO.plot(row + 1);
    const bool isSolid = plot.lineStyle() == Plot::solidLine;
    lblPlot(row).caption = plot.name();
    linePlot(row).borderColour = plot.lineColour();
    cmdLine(row).backColour = plot.lineColour();
    (isSolid ? opSolid(row) : opDot(row)).value = 1;
    showStyle(row);
  }
  cmdPlotArea.backColour = main_.graphDSO.plotAreaColour();
  cmdPlotGrid.backColour = main_.graphDSO.axis("XAxis").gridColour();
}

void frmGraph::cmdLine_Click(int row) {
  pickColour(cmdLine(row));
  linePlot(row).borderColour = *cmdLine(row).backColour();
}

void frmGraph::cmdPlotArea_Click() {
  pickColour(cmdPlotArea);
}

void frmGraph::cmdPlotGrid_Click() {
  pickColour(cmdPlotGrid);
}

void frmGraph::pickColour(Button& button) {
  Dialogs& dialogGraph = services().dialogs;
  button.backColour = dialogGraph.pickColour(button.backColour().value_or(Colour()));
}

/// Each box writes the other one's style and then changes the other box, whose own handler writes
/// it anew. That ends in the wrong style where a box is cleared; the first one's handler, which
/// runs in either case, puts it right.
void frmGraph::opDot_Click(int row) {
  linePlot(row).borderStyle = Line::solid;
  opSolid(row).value = opDot(row).isChecked() ? 0 : 1;
  showStyle(row);
}

void frmGraph::opSolid_Click(int row) {
  linePlot(row).borderStyle = Line::dotted;
  opDot(row).value = opSolid(row).isChecked() ? 0 : 1;
}

void frmGraph::showStyle(int row) {
  linePlot(row).borderStyle = opSolid(row).isChecked() ? Line::solid : Line::dotted;
}

void frmGraph::cmdOK_Click() {
  for (int row = 0; row < ScopeGraph::plotCount; ++row) {
    Plot& plot = main_.graphDSO.plot(row + 1);
    plot.lineColour = linePlot(row).borderColour();
    plot.lineStyle = Plot::solidLine;
    plot.pointStyle = opSolid(row).isChecked() ? Plot::noPoints : Plot::dotPoints;
  }
  main_.graphDSO.plotAreaColour = *cmdPlotArea.backColour();
  for (const char* axis : {"XAxis", "YAxis-1"})
    main_.graphDSO.axis(axis).gridColour = *cmdPlotGrid.backColour();
  hide();
}

}  // namespace tracewell
