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

TEST(TrueUnits, ScaleIsReadOnlyInTheFormOfACaption) {
  EXPECT_DOUBLE_EQ(trueScale("2.000 mV", "V").value(), 0.002);
  EXPECT_DOUBLE_EQ(trueScale("500.0 us", "s").value(), 5e-4);
  EXPECT_DOUBLE_EQ(trueScale("5.000 s", "s").value(), 5);
  for (const std::string& caption :
       {std::string(400, '9') + " V", "Null"s, ""s, "V"s, "1.000 s"s, "0.000 V"s, "-1.00 V"s,
        "1e999 V"s, "1.0.0 V"s, "1~ V"s, "2.00 xV"s})
    EXPECT_EQ(trueScale(caption, "V"), std::nullopt) << caption;
}

TEST(TrueUnits, BadgesHaveTheDigitsThatTheScaleDeserves) {
  const std::tuple<double, double, double, Lines> times[] = {
      {2e-6, 0, 50, {"|Δt| = 2.00 us", "1/|Δt| = 500 kHz"}},
      {5e-4, -50, 50, {"|Δt| = 1.00 ms", "1/|Δt| = 1.00 kHz"}},
      {5e-4, 250, -250, {"|Δt| = 5.00 ms", "1/|Δt| = 200.0 Hz"}},
      {2e-9, 0, 1, {"|Δt| = 0.04 ns", "1/|Δt| = 25 GHz"}},
      {5, 0, 250, {"|Δt| = 25.0 s", "1/|Δt| = 40.0 mHz"}},
      {1e-3, 7, 7, {"|Δt| = 0.00 ms"}}};
  for (const auto& [scale, x1, x2, expected] : times)
    EXPECT_EQ(timeBadge(scale, x1, x2), expected) << scale;
  const std::tuple<double, std::optional<double>, double, double, Lines> volts[] = {
      {0.002, 0, 1, -3, {"P1 = 0.04 mV", "P2 = -0.12 mV", "ΔV = 0.16 mV"}},
      {0.005, 0, -100, -150, {"P1 = -10.0 mV", "P2 = -15.0 mV", "ΔV = 5.0 mV"}},
      {0.5, -100, 0, -100, {"P1 = 1.00 V", "P2 = 0 mV", "ΔV = 1.00 V"}},
      {5, 75, 200, 100, {"P1 = 12.5 V", "P2 = 2.5 V", "ΔV = 10.0 V"}},
      {1, std::nullopt, 50, 25, {"ΔV = 0.50 V"}}};
  for (const auto& [scale, zero, y1, y2, expected] : volts)
    EXPECT_EQ(voltageBadge(scale, zero, y1, y2), expected) << scale;
}

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
  EXPECT_EQ(graph.marks().names, (Texts{{4, "Load2"}}));
}

}  // namespace tracewell
