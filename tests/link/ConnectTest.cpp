// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using ConnectTest = ProgramTest;

/// Line settings, language and choices hold from the start on; nothing is opened or sent.
TEST_F(ConnectTest, SetupOfTheProgramHoldsFromItsStartOn) {
  setRow(SetupTable::link, {"4800", "7", "2", "Odd", "33"});
  setRow(SetupTable::language, {"3"});
  program.setupFiles.WriteSetupFile(folder.path() / "default.dso");
  Tracewell restarted(services);
  restarted.start();
  EXPECT_EQ(port.settings, (LineSettings{33, 4800, 7, 2, 3}));
  EXPECT_EQ(restarted.main.lblPort.caption(), "(3) port 33 - ttyUSB0");
  EXPECT_EQ(restarted.main.mnbFile.caption(), "Fichier");
  EXPECT_NE(restarted.main.state.Msg[1], main.state.Msg[1]);
  EXPECT_EQ(restarted.main.lblConnect.caption(), restarted.main.state.Msg[1]);
  EXPECT_EQ(restarted.main.state.BaudRate, 19200);
  const Graph& graph = restarted.main.graphDSO;
  EXPECT_EQ(graph.axis("YAxis-2").minimum(), graph.axis("YAxis-1").minimum());
  EXPECT_EQ(graph.axis("YAxis-2").maximum(), graph.axis("YAxis-1").maximum());
  EXPECT_FALSE(graph.axis("YAxis-2").visible());
  EXPECT_TRUE(port.wire.empty());
  EXPECT_TRUE(port.prepared.empty());
}

}  // namespace tracewell
