// SPDX-License-Identifier: GPL-3.0-or-later
#include "Captions.h"

#include <gtest/gtest.h>

#include "Doubles.h"
#include "Files.h"
#include "Messages.h"

namespace tracewell {
namespace {

class CaptionsTest : public testing::Test {
 protected:
  void writeCaptions(const std::string& bytes) {
    writeWholeFile(bench.folder.path() / "dso_la1.cap", bytes);
  }
  /// Number of the error that starting ends with.
  int start() {
    try {
      bench.program.start();
    } catch (const Error& error) {
      description = error.description();
      return error.number();
    }
    return 0;
  }

  Bench bench;
  std::string description;
};

/// Controls, caption lines and their order agree in every window.
TEST_F(CaptionsTest, ShippedFileNamesEveryControlInOrder) {
  const std::string text = readWholeFile(bench.folder.path() / "dso_la1.cap");
  std::vector<Window*> windows = {&bench.main};
  for (Window* window : bench.program.captionedWindows()) windows.push_back(window);
  std::string expected;
  for (Window* window : windows) {
    expected += "//" + window->name().substr(3) + "," + window->caption() + "," +
                window->caption() + "\r\n";
    for (Control* control : window->controls())
      if (const auto* captioned = dynamic_cast<CaptionedControl*>(control))
        expected +=
            control->name() + "," + captioned->caption() + "," + captioned->caption() + "\r\n";
  }
  EXPECT_EQ(text, expected);
}

TEST_F(CaptionsTest, CaptionsGoToTheirWindowInOnePass) {
  writeCaptions(
      "//RS232,,Serielle \r\ncmdOK,OK, Gut, ja \r\ncmdCancel,Cancel,Weg\r\n"
      "// DSO ,,Haupt\r\nmnbFile,,Datei\r\nno comma\r\nmnbRS232,,Leitung\r\nnowhere,,X\r\n"
      "cmdStart,,nie\r\n");
  Captions captions(bench.main);
  captions.setWindows({&bench.program.rs232});
  captions.LoadCaptions();
  EXPECT_EQ(bench.main.caption(), "Haupt");
  EXPECT_EQ(bench.main.mnbFile.caption(), "Datei");
  EXPECT_EQ(bench.main.mnbRS232.caption(), "RS-232");  // The line without a comma stopped at File.
  EXPECT_EQ(bench.main.cmdStart.caption(), "Connect");
  EXPECT_EQ(bench.program.rs232.caption(), "Serielle");
  EXPECT_EQ(bench.program.rs232.cmdOK.caption(), " Gut, ja");
  EXPECT_EQ(bench.program.rs232.cmdCancel.caption(), "Weg");
  EXPECT_TRUE(bench.main.mnbLA1.isChecked());
  EXPECT_FALSE(bench.main.mnbLA2.isChecked());
}

TEST_F(CaptionsTest, FilesThatCannotBeUsedEndTheStartAndAreNamed) {
  for (const char* bytes : {"", "//", "//DSO", "//DSO,a,b", "//DSO,a,b\r\n", "//RS232,a,b\r\n",
                            "//DSO,a,b\n//RS232,c,d\n"}) {
    writeCaptions(bytes);
    EXPECT_NE(start(), 0) << bytes;
    EXPECT_NE(description.find("dso_la1.cap"), std::string::npos) << description;
    bench.main.unload();
  }
}

TEST_F(CaptionsTest, MessagesKeepTheirCommasAndNeedThirteenLines) {
  std::string lines;
  for (int i = 0; i < 13; ++i) lines += "key,text, " + std::to_string(i) + " \r\n";
  const auto file = bench.folder.path() / "dso_la1.msg";
  writeWholeFile(file, lines + "more,ignored\r\n");
  LoadMessages(bench.main);
  EXPECT_EQ(bench.main.Msg[0], "text, 0 ");
  EXPECT_EQ(bench.main.Msg[12], "text, 12 ");
  EXPECT_EQ(bench.main.Msg[13], "");
  const std::string before = bench.main.Msg[1];
  writeWholeFile(file, lines.substr(0, lines.size() - 2));
  EXPECT_THROW(LoadMessages(bench.main), Error);
  EXPECT_EQ(bench.main.Msg[1], before);
  std::filesystem::remove(file);
  EXPECT_NE(start(), 0);
  EXPECT_NE(description.find("dso_la1.msg"), std::string::npos);
}

TEST_F(CaptionsTest, UnknownLanguageNumberReadsTheFilesWithoutACode) {
  for (const char* number : {"0", "6", "12", "x", ""}) {
    bench.main.gridMeasure.setText(12, 2, number);
    EXPECT_EQ(languageFile(bench.main, ".cap").filename(), "dso_.cap");
  }
  bench.main.gridMeasure.setText(12, 2, "5");
  EXPECT_EQ(languageFile(bench.main, ".msg").filename(), "dso_la5.msg");
}

}  // namespace
}  // namespace tracewell
