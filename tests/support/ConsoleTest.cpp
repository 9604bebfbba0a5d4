// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "Bench.h"
#include "Files.h"

namespace tracewell {

using ConsoleTest = ProgramTest;

TEST_F(ConsoleTest, HundredEntriesAreTheLimit) {
  frmCmd& console = program.console;
  std::string list = "'";
  for (int i = 0; i < 100; ++i) list += "1,:N" + std::to_string(i) + ",h,d\r\n";
  for (const char* more : {"", "1,:X,h,d\r\n"}) {
    EXPECT_TRUE(logLines().empty());
    writeWholeFile(folder.path() / "dso.cmd", list + more);
    console.tvCmd.nodes = {};
    console.unload();
    main.cmdDSOcmd.press();
    EXPECT_EQ(console.tvCmd.nodes().size(), 100u);
  }
  EXPECT_EQ(logLines(), Lines{"Tracewell - cmdDSOcmd_Click : Subscript out of range"});
}

TEST_F(ConsoleTest, ShippedListIsReadWhole) {
  frmCmd& console = program.console;
  main.mnbDSOcmd.choose();
  EXPECT_TRUE(logLines().empty()) << "more than 100 entries";
  EXPECT_GT(console.tvCmd.nodes().size(), 80u);
  port.wire.clear();
  for (int number = 1; number <= std::ssize(console.tvCmd.nodes()); ++number) {
    const Tree::Node node = console.tvCmd.nodes()[static_cast<std::size_t>(number) - 1];
    EXPECT_EQ(node.text.starts_with(':'), node.parent != 0) << node.text;
    if (node.parent != 0) continue;
    const auto isBelow = [number](const Tree::Node& other) { return other.parent == number; };
    EXPECT_TRUE(std::ranges::any_of(console.tvCmd.nodes(), isBelow)) << node.text;
    console.tvCmd.choose(number);
    console.cmdRun.press();
  }
  EXPECT_EQ(port.wire, Lines()) << "a group was sent";
}

}  // namespace tracewell
