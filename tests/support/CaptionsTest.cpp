// SPDX-License-Identifier: GPL-3.0-or-later
#include "Captions.h"

#include <gtest/gtest.h>

#include <sstream>

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

/// Windows, controls and caption lines agree, in their order, in all five languages; the first two
/// fields are the program's own names and design captions.
TEST_F(CaptionsTest, ShippedFilesNameEveryWindowAndControlInOrder) {
  const std::vector<std::string> order = {"frmDSO",   "frmAcq",     "frmChannel",  "frmChDiv",
                                          "frmCmd",   "frmDisplay", "frmFMeasure", "frmGraph",
                                          "frmLoad",  "frmMsg",     "frmRS232",    "frmSave",
                                          "frmSetup", "frmTimeDiv", "frmTrig",     "frmVMeasure"};
  std::vector<Window*> windows = bench.program.captionedWindows();
  windows.insert(windows.begin(), &bench.main);
  std::vector<std::string> expected;
  for (std::size_t i = 0; i < order.size(); ++i) {
    EXPECT_EQ(windows.at(i)->name(), order[i]);
    expected.push_back("//" + order[i].substr(3) + "," + windows[i]->caption() + ",");
    for (Control* control : windows[i]->controls())
      if (const auto* captioned = dynamic_cast<CaptionedControl*>(control))
        expected.push_back(control->name() + "," + captioned->caption() + ",");
  }
  for (const char* number : {"1", "2", "3", "4", "5"}) {
    bench.main.gridMeasure.setText(12, 2, number);
    std::istringstream file(readWholeFile(languageFile(bench.main, ".cap")));
    std::string line;
    for (const std::string& start : expected) {
      ASSERT_TRUE(std::getline(file, line)) << number << " ends before " << start;
      ASSERT_TRUE(line.starts_with(start) && line.ends_with('\r')) << number << ": " << line;
      const std::string word = line.substr(start.size(), line.size() - start.size() - 1);
      const bool isDesign = start.starts_with("opFiletype") || *number == '1';
      EXPECT_TRUE(!isDesign || start.ends_with("," + word + ",")) << number << ": " << line;
      EXPECT_EQ(word.empty(), start.ends_with(",,")) << number << ": " << line;
      // The value is written behind the first ":".
      EXPECT_TRUE(!start.starts_with("slide") || word.find(" :") != std::string::npos) << line;
    }
    EXPECT_FALSE(std::getline(file, line)) << number << ": " << line;
  }
}

TEST_F(CaptionsTest, LanguageChangesEveryWindowAndKeepsWhatIsShown) {
  start();
  bench.port.answerLikeAnInstrument();
  bench.main.cmdStart.press();
  bench.main.cmdRunStop.press();
  bench.main.slideCH1.drag(-1.5);
  bench.main.mnbLA3.choose();
  EXPECT_EQ(bench.main.gridMeasure.text(12, 2), "3");
  EXPECT_TRUE(bench.main.mnbLA3.isChecked());
  EXPECT_FALSE(bench.main.mnbLA1.isChecked());
  EXPECT_EQ(bench.program.trigger.cmdCancel.caption(), "Annuler");
  EXPECT_EQ(bench.main.mnbFile.caption(), "Fichier");
  EXPECT_EQ(bench.main.lblConnect.caption(), bench.main.Msg[7]);
  EXPECT_EQ(bench.main.cmdStart.caption(), "Arrêter");
  EXPECT_EQ(bench.main.slideCH1.caption(), "Position voie 1 : -1.50 Div");
  // Through languages whose words for two states are alike.
  for (MenuEntry* language : {&bench.main.mnbLA4, &bench.main.mnbLA2, &bench.main.mnbLA1})
    language->choose();
  EXPECT_EQ(bench.main.slideCH2.caption(), "Channel Two Position : -2.00 Div");
  EXPECT_EQ(bench.main.slideTime.caption(), "Time Position : 0.00 Div");
  bench.port.wire.clear();
  bench.main.cmdRunStop.press();
  EXPECT_EQ(bench.port.wire, std::vector<std::string>{":Run"});
}

TEST_F(CaptionsTest, LanguageWhoseFilesAreBadIsNotTaken) {
  start();
  for (const char* file : {"dso_la2.cap", "dso_la2.msg"}) {
    const std::string whole = readWholeFile(bench.folder.path() / file);
    writeWholeFile(bench.folder.path() / file, whole.substr(0, 60));
    bench.main.mnbLA2.choose();
    ASSERT_EQ(bench.dialogs.runTimeErrors.size(), 1u);
    EXPECT_NE(bench.dialogs.runTimeErrors[0].find(file), std::string::npos);
    EXPECT_EQ(bench.main.gridMeasure.text(12, 2), "1");
    EXPECT_TRUE(bench.main.mnbLA1.isChecked());
    EXPECT_EQ(bench.main.mnbFile.caption(), "File");
    EXPECT_EQ(bench.main.lblConnect.caption(), bench.main.Msg[1]);
    writeWholeFile(bench.folder.path() / file, whole);
    bench.dialogs.runTimeErrors.clear();
  }
}

/// Cut after any byte, the file gives captions or an error, and neither loops nor crashes.
TEST_F(CaptionsTest, FileCutAnywhereEndsInOneErrorOrNone) {
  const std::string whole = readWholeFile(bench.folder.path() / "dso_la1.cap");
  int complete = 0;
  for (std::size_t length = 0; length <= whole.size(); length += length < 300 ? 1 : 97) {
    writeCaptions(whole.substr(0, length));
    try {
      bench.program.captions.LoadCaptions();
      ++complete;
    } catch (const Error& error) {
      EXPECT_NE(error.description().find("dso_la1.cap"), std::string::npos);
    }
  }
  EXPECT_GT(complete, 0);
  writeCaptions("//DSO," + std::string(10'000'000, 'x') + "\r\n");
  EXPECT_THROW(bench.program.captions.LoadCaptions(), Error);
}

TEST_F(CaptionsTest, DumpedSectionIsACaptionFileOfItsWindow) {
  start();
  bench.main.mnbLA4.choose();
  bench.program.rs232.cmdOK.caption = "A, b";
  bench.program.captions.DumpCaptions(bench.program.rs232);
  const std::string before = bench.program.rs232.lblRS232(0).caption();
  bench.program.rs232.lblRS232(0).caption = "x";
  bench.program.captions.ApplyCaptions(bench.program.rs232);
  EXPECT_EQ(bench.program.rs232.lblRS232(0).caption(), before);
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
    // A setup that is no good does not keep the program from starting.
    EXPECT_NO_THROW(LoadMessages(bench.main));
    EXPECT_NO_THROW(bench.program.captions.LoadCaptions());
  }
  bench.main.gridMeasure.setText(12, 2, "5");
  EXPECT_EQ(languageFile(bench.main, ".msg").filename(), "dso_la5.msg");
}

}  // namespace
}  // namespace tracewell
