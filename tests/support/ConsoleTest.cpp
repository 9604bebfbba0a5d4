// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "CommandFile.h"
#include "Doubles.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class ConsoleTest : public testing::Test {
 protected:
  ConsoleTest() { bench.program.start(); }
  /// Opens the console on a command list.
  void open(const std::string& list, const std::function<void()>& user) {
    writeWholeFile(bench.folder.path() / "dso.cmd", list);
    console.unload();
    bench.windows.user["frmCmd"] = user;
    bench.main.cmdDSOcmd.press();
  }

  Bench bench;
  frmCmd& console = bench.program.console;
};

TEST_F(ConsoleTest, EntriesAndTheirPlaces) {
  const std::string list =
      "'1,Group,first character skipped,Kept\r\n"
      "' a comment, with, commas\r\n"
      "2,:A,hint a,says a\r\n"
      "3,:B,only hint\r\n"
      "no node\r\n"
      "4,:C,hint c,more,says c\r\n"
      "5,Second,h,d\r\n"
      "6,:D,hint d,says d\r\n"
      "7,:E,never read,no line end";
  open(list, [this] {
    const std::vector<Tree::Node> expected = {{"Group", 0}, {":A", 1},     {":B", 1},
                                              {":C", 1},    {"Second", 0}, {":D", 5}};
    EXPECT_EQ(console.tvCmd.nodes(), expected);
    const struct {
      int node;
      const char* command;
      const char* hint;
      const char* description;
    } cases[] = {{2, ":A", "hint a", "says a\r"},
                 {3, ":B", "", "only hint\r"},
                 // Behind the line without a node each shows the entry before its own.
                 {4, ":C", "", ""},
                 {5, "Second", "hint c", "says c\r"}};
    for (const auto& c : cases) {
      console.tvCmd.choose(c.node);
      EXPECT_EQ(console.txtCmd.text(), c.command);
      EXPECT_EQ(console.lblCmdHint.caption(), c.hint);
      EXPECT_EQ(console.lblDescription.caption(), c.description);
    }
  });
  EXPECT_TRUE(bench.main.tmDSO.enabled());
}

TEST_F(ConsoleTest, FirstCharacterBelongsToNoLine) {
  EXPECT_EQ(readCommandEntries("''c\r\n1,G,h,d\r\n").size(), 1u);
  EXPECT_EQ(readCommandEntries("'1,G,h,d\r\n").size(), 1u);
  EXPECT_EQ(readCommandEntries("x1,G,h,d\n").size(), 0u);
  EXPECT_EQ(readCommandEntries("").size(), 0u);
  EXPECT_EQ(readCommandEntries("\r\n").size(), 1u);
}

TEST_F(ConsoleTest, HundredEntriesAreTheLimit) {
  std::string list = "'";
  for (int i = 0; i < 100; ++i) list += "1,:N" + std::to_string(i) + ",h,d\r\n";
  open(list, [this] { EXPECT_EQ(console.tvCmd.nodes().size(), 100u); });
  EXPECT_TRUE(bench.logLines().empty());
  console.tvCmd.nodes = {};
  open(list + "1,:X,h,d\r\n", [this] { EXPECT_EQ(console.tvCmd.nodes().size(), 100u); });
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - cmdDSOcmd_Click : Subscript out of range"});
}

TEST_F(ConsoleTest, MissingListIsLoggedAndTheConsoleOpens) {
  std::filesystem::remove(bench.folder.path() / "dso.cmd");
  bench.main.mnbDSOcmd.choose();
  EXPECT_EQ(bench.windows.shown, Lines{"frmCmd"});
  ASSERT_EQ(bench.logLines().size(), 1u);
  EXPECT_NE(bench.logLines()[0].find("cmdDSOcmd_Click : File not found"), std::string::npos);
}

TEST_F(ConsoleTest, ShippedListIsReadWhole) {
  bench.main.mnbDSOcmd.choose();
  EXPECT_TRUE(bench.logLines().empty());
  EXPECT_GT(console.tvCmd.nodes().size(), 80u);
  for (const Tree::Node& node : console.tvCmd.nodes())
    EXPECT_EQ(node.text.starts_with(':'), node.parent != 0) << node.text;
}

TEST_F(ConsoleTest, ParametersThatPassAndThatDoNot) {
  const struct {
    const char* command;
    const char* sent;  // nullptr for "Out of range"
    const char* left;
  } cases[] = {{":CHAN1:INV 1", ":CHAN1:INV 1", nullptr},
               {":CHAN1:SCAL 5E3", ":CHAN1:SCAL 5E3", nullptr},
               {":CHAN1:SCAL 500E-3", ":CHAN1:SCAL 500E-3", nullptr},
               {":AUT", ":AUT", nullptr},
               {"x y?", "x y?", nullptr},
               {":CHAN1:OFFS 0.5", nullptr, ":CHAN1:OFFS"},
               {":CHAN1:OFFS -1", nullptr, ":CHAN1:OFFS"},
               {":CHAN1:INV ", nullptr, ":CHAN1:INV"},
               {":CHAN1:INV on", nullptr, ":CHAN1:INV"},
               {":CHAN1:INV 1 2", nullptr, ":CHAN1:INV"},
               {" 1", " 1", nullptr},
               {"", nullptr, ""}};
  for (const auto& c : cases) {
    bench.port.wire.clear();
    bench.dialogs.messages.clear();
    console.txtCmd.type(c.command);
    console.txtCmd.pressKey(TextBox::enterKey);
    if (c.sent != nullptr) {
      EXPECT_EQ(bench.port.wire, Lines{c.sent});
      EXPECT_TRUE(bench.dialogs.messages.empty()) << c.command;
    } else {
      EXPECT_TRUE(bench.port.wire.empty()) << c.command;
      EXPECT_EQ(console.txtCmd.text(), c.left);
      EXPECT_EQ(bench.dialogs.messages.empty(), *c.command == 0) << c.command;
    }
  }
  bench.port.answer("*IDN?", {"KRM-410\n"});
  console.txtCmd.type("*IDN?");
  console.cmdRun.press();
  EXPECT_EQ(bench.main.txtMsg.text(), "KRM-410");
}

}  // namespace
}  // namespace tracewell
