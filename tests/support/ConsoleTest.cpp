// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandFile.h"

#include <algorithm>

#include "Doubles.h"

namespace tracewell {

class ConsoleTest : public ProgramTest {
 protected:
  /// Opens the console on a command list.
  void open(const std::string& list, const std::function<void()>& user) {
    writeWholeFile(folder.path() / "dso.cmd", list);
    console.unload();
    windows.user["frmCmd"] = user;
    main.cmdDSOcmd.press();
  }

  frmCmd& console = program.console;
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
    const std::tuple<int, const char*, const char*, const char*> cases[] = {
        {2, ":A", "hint a", "says a\r"},
        {3, ":B", "", "only hint\r"},
        // Behind the line without a node each shows the entry before its own.
        {4, ":C", "", ""},
        {5, "Second", "hint c", "says c\r"}};
    for (const auto& [node, command, hint, description] : cases) {
      console.tvCmd.choose(node);
      EXPECT_EQ(console.txtCmd.text(), command);
      EXPECT_EQ(console.lblCmdHint.caption(), hint);
      EXPECT_EQ(console.lblDescription.caption(), description);
    }
  });
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(ConsoleTest, GroupIsNoCommand) {
  open(
      "'1,:AUT,h,d\r\n2,Channel 1,h,d\r\n3,:CHAN1:INV 1,h,d\r\n4,Acquisition,h,d\r\n5,*RST,h,d\r\n",
      [this] {
        takeWire();
        for (int node = 1; node <= 5; ++node) {
          console.tvCmd.choose(node);
          console.cmdRun.press();
        }
        EXPECT_EQ(takeWire(), (Lines{":AUT", ":CHAN1:INV 1", "*RST"}));
        EXPECT_EQ(dialogs.messages, (Lines{"Out of range", "Out of range"}));
      });
}

TEST_F(ConsoleTest, FirstCharacterBelongsToNoLine) {
  for (const char* list : {"''c\r\n1,G,h,d\r\n", "'1,G,h,d\r\n", "\r\n"})
    EXPECT_EQ(readCommandEntries(list).size(), 1u) << list;
  for (const char* list : {"x1,G,h,d\n", ""}) EXPECT_TRUE(readCommandEntries(list).empty());
}

TEST_F(ConsoleTest, HundredEntriesAreTheLimit) {
  std::string list = "'";
  for (int i = 0; i < 100; ++i) list += "1,:N" + std::to_string(i) + ",h,d\r\n";
  open(list, [this] { EXPECT_EQ(console.tvCmd.nodes().size(), 100u); });
  EXPECT_TRUE(logLines().empty());
  console.tvCmd.nodes = {};
  open(list + "1,:X,h,d\r\n", [this] { EXPECT_EQ(console.tvCmd.nodes().size(), 100u); });
  EXPECT_EQ(logLines(), Lines{"Tracewell - cmdDSOcmd_Click : Subscript out of range"});
}

TEST_F(ConsoleTest, ShippedListIsReadWholeAndAMissingOneLogged) {
  main.mnbDSOcmd.choose();
  EXPECT_TRUE(logLines().empty());
  // With room for the user's own.
  EXPECT_GT(console.tvCmd.nodes().size(), 80u);
  EXPECT_LE(console.tvCmd.nodes().size(), 90u);
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
  console.unload();
  std::filesystem::remove(folder.path() / "dso.cmd");
  main.mnbDSOcmd.choose();
  EXPECT_EQ(windows.shown, (Lines{"frmCmd", "frmCmd"}));
  ASSERT_EQ(logLines().size(), 1u);
  EXPECT_NE(logLines()[0].find("cmdDSOcmd_Click : File not found"), std::string::npos);
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
               {":AUT\n:CHAN1:INV 1", nullptr, ":AUT\n:CHAN1:INV"},
               {":AUT\r?", nullptr, ":AUT\r?"},
               {" 1", " 1", nullptr},
               {"", nullptr, ""}};
  for (const auto& c : cases) {
    port.wire.clear();
    dialogs.messages.clear();
    console.txtCmd.type(c.command);
    console.txtCmd.pressKey(TextBox::enterKey);
    if (c.sent != nullptr) {
      EXPECT_EQ(port.wire, Lines{c.sent});
      EXPECT_TRUE(dialogs.messages.empty()) << c.command;
    } else {
      EXPECT_TRUE(port.wire.empty()) << c.command;
      EXPECT_EQ(console.txtCmd.text(), c.left);
      EXPECT_EQ(dialogs.messages.empty(), *c.command == 0) << c.command;
    }
  }
  port.answer("*IDN?", {"KRM-410\n"});
  console.txtCmd.type("*IDN?");
  console.cmdRun.press();
  EXPECT_EQ(main.txtMsg.text(), "KRM-410");
}

}  // namespace tracewell
