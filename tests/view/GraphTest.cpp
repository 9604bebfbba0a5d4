// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"

namespace tracewell {

class GraphTest : public ProgramTest {
 protected:
  Graph& graph = main.graphDSO;
  frmGraph& dialog = program.graphStyle;
};

TEST_F(GraphTest, ReadoutFollowsChannelScaleModeAndDrag) {
  const std::string& readout = graph.axis("XAxis").caption();
  main.opTime.select();
  EXPECT_EQ(dialogs.runTimeErrors, Lines{"13 Type mismatch"}) << "there is no scale yet";
  main.knobTime.turn(9);
  EXPECT_EQ(readout, "P1 = 0.00(msec),P2 = 2.00(msec)   Diff T = -2.00(msec)");
  main.knobTime.turn(28);
  EXPECT_EQ(readout, "P1 = 0.00(sec),P2 = 5.00(sec)   Diff T = -5.00(sec)");
  main.knobTime.turn(3);
  EXPECT_EQ(readout, "P1 = 0.00(nsec),P2 = 20.00(nsec)   Diff T = -20.00(nsec)");
  graph.dragCursor(graph.cursor("cur1"), 400, 10);
  EXPECT_EQ(readout, "P1 = 100.00(nsec),P2 = 20.00(nsec)   Diff T = 80.00(nsec)");
  main.knobChan1.turn(5);
  main.cmdCursor.press();
  EXPECT_EQ(readout, "P1 = -0.20(V)  ,  P2 = -0.30(V)        Diff V = 0.10(V)");
  main.knobChan2.turn(10);
  main.cbCurChan.choose(1);
  EXPECT_EQ(readout, "P1 = -10.00(V)  ,  P2 = -15.00(V)        Diff V = 5.00(V)");
  main.cbCurChan.type("");
  EXPECT_EQ(readout, "P1 = -10.00(V)  ,  P2 = -15.00(V)        Diff V = 5.00(V)");
  main.cmdCursor.press();
  EXPECT_EQ(readout, "Time");
  graph.dragCursor(graph.cursor("cur1"), 0, 0);
  EXPECT_EQ(graph.cursor("cur1").yPosition(), -100);
  EXPECT_EQ(takeWire(), (Lines{":TIM:SCAL 2E-6", ":TIM:SCAL 5", ":TIM:SCAL 2E-8",
                               ":CHAN1:SCAL 1E-1", ":CHAN2:SCAL 5"}));
}

TEST_F(GraphTest, BoxesOfARowAreExclusiveAndThePreviewFollows) {
  dialog.showModal();
  CheckBox& dot = dialog.opDot(2);
  CheckBox& solid = dialog.opSolid(2);
  for (CheckBox* box : {&dot, &solid, &solid, &dot, &dot}) {
    box->toggle();
    EXPECT_NE(dot.value(), solid.value());
    EXPECT_EQ(dialog.linePlot(2).borderStyle(), solid.isChecked() ? Line::solid : Line::dotted);
  }
}

TEST_F(GraphTest, DotTravelsInThePointStyleAndReopensAsSolid) {
  dialogs.colour = {1, 2, 3};
  windows.user["frmGraph"] = [&] {
    dialog.opDot(0).toggle();
    dialog.cmdLine(5).press();
    dialog.cmdPlotArea.press();
    dialog.cmdPlotGrid.press();
    dialog.cmdOK.press();
  };
  main.cmdGraph.press();
  const Colour picked = dialogs.colour;
  EXPECT_EQ(graph.plot(1).lineStyle(), Plot::solidLine);
  EXPECT_EQ(graph.plot(1).pointStyle(), Plot::dotPoints);
  EXPECT_EQ(graph.plot(2).pointStyle(), Plot::noPoints);
  EXPECT_EQ(graph.plot(6).lineColour(), picked);
  EXPECT_EQ(graph.plotAreaColour(), picked);
  EXPECT_EQ(graph.axis("XAxis").gridColour(), picked);
  EXPECT_EQ(graph.axis("YAxis-1").gridColour(), picked);
  EXPECT_NE(graph.axis("YAxis-2").gridColour(), picked);

  dialogs.colour = {9, 9, 9};
  windows.user["frmGraph"] = [&] {
    EXPECT_TRUE(dialog.opSolid(0).isChecked());
    EXPECT_EQ(dialog.lblPlot(5).caption(), "Load4");
    dialog.cmdLine(0).press();
    dialog.cmdCancel.press();
  };
  main.mnbGraph.choose();
  EXPECT_NE(graph.plot(1).lineColour(), dialogs.colour);
}

TEST_F(GraphTest, EnlargingHidesThePanelsAndRestoresThem) {
  graph.toggleEnlarged();
  EXPECT_FALSE(main.fmCh1.visible());
  EXPECT_TRUE(main.cmdSave.visible());
  graph.toggleEnlarged();
  EXPECT_TRUE(main.fmCh1.visible());
}

}  // namespace tracewell
