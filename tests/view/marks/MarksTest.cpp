// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"
#include "TrueNumbers.h"
#include "TrueUnits.h"

namespace tracewell {

using namespace std::string_literals;

class MarksTest : public ProgramTest {
 protected:
  Graph& graph = main.graphDSO;
};

TEST_F(MarksTest, MarksTellWhatIsKnownOfDisplayedTraces) {
  using Side = GraphMarks::Side;
  using Texts = std::vector<GraphMarks::Text>;
  EXPECT_TRUE(graph.marks().sides.empty() && graph.marks().scales.empty());
  EXPECT_TRUE(graph.valuesAt(0, 0).empty());
  port.answerLikeAnInstrument();
  main.cmdStart.press();
  const std::array<double, 2> atTop = {250, 300};
  graph.plot(1).plotXvsY(main.XIndex, atTop);
  graph.plot(2).plotXvsY(main.XIndex, atTop);
  const Side zero = {1, Side::here, 75, "1"};
  EXPECT_EQ(graph.marks().sides, (std::vector<Side>{zero, {1, Side::above, 250, "1"}}));
  EXPECT_EQ(graph.marks().scales, (Texts{{1, "CH1 500.0 mV"}, {0, "500.0 us"}}));
  EXPECT_EQ(graph.valuesAt(25, 125), (Texts{{1, "500 mV"}, {0, "250 us"}}));
  main.known.sent(":CHAN1:OFFS -2.25");
  EXPECT_EQ(graph.marks().sides[0].direction, Side::below);

  main.opVoltage.select();
  EXPECT_EQ(graph.marks().badge.size(), 4u);
  main.known.typed(":CHAN1:OFFS 1");
  EXPECT_EQ(graph.marks().badge, (Texts{{1, "ΔV = 500 mV"}}));
  EXPECT_EQ(graph.marks().sides.size(), 1u);
  main.known.typed(":CHAN1:SCAL 1");
  EXPECT_TRUE(graph.marks().badge.empty());
  main.opTime.select();
  main.known.typed(":TIM:SCAL 1");
  EXPECT_TRUE(graph.marks().badge.empty() && graph.marks().scales.empty());

  graph.plot(4).plotXvsY(main.XIndex, atTop);
  graph.plot(4).visible = true;
  EXPECT_EQ(graph.marks().names, (Texts{{4, "Load2: scale not known"}}));
}

}  // namespace tracewell
