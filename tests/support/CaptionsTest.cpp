// SPDX-License-Identifier: GPL-3.0-or-later
#include "Captions.h"

#include <sstream>

#include "Bench.h"
#include "Files.h"
#include "Messages.h"

namespace tracewell {

class CaptionsTest : public testing::Test, protected Bench {
 protected:
  void writeCaptions(const std::string& bytes) {
    writeWholeFile(folder.path() / "dso_la1.cap", bytes);
  }
};

/// Windows, controls and caption lines agree, in their order, in all five languages; the first two
/// fields are the program's own names and design captions.
TEST_F(CaptionsTest, ShippedFilesNameEveryWindowAndControlInOrder) {
  std::vector<Window*> windows = program.captionedWindows();
  windows.insert(windows.begin(), &main);
  Lines expected;
  for (Window* window : windows) {
    expected.push_back("//" + window->name().substr(3) + "," + window->caption() + ",");
    for (Control* control : window->controls())
      if (const auto* captioned = dynamic_cast<CaptionedControl*>(control))
        expected.push_back(control->name() + "," + captioned->caption() + ",");
  }
  for (const char* number : {"1", "2", "3", "4", "5"}) {
    main.gridMeasure.setText(12, 2, number);
    std::istringstream file(contentOf(languageFile(main, ".cap")));
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

TEST_F(CaptionsTest, DumpedSectionIsACaptionFileOfItsWindow) {
  program.start();
  program.rs232.lblRS232(0).caption = "A, b";
  program.captions.DumpCaptions(program.rs232);
  program.rs232.lblRS232(0).caption = "x";
  // The first section of the name counts.
  writeCaptions("//DSO,,\r\n");
  EXPECT_ANY_THROW(program.captions.LoadCaptions());
  program.captions.DumpCaptions(program.rs232);
  program.rs232.lblRS232(0).caption = "y";
  program.captions.ApplyCaptions(program.rs232);
  EXPECT_EQ(program.rs232.lblRS232(0).caption(), "x");
}

/// Neither loops nor crashes, and is named. Cut after any byte, the shipped file is one of these or
/// gives captions.
TEST_F(CaptionsTest, FileThatCannotBeUsedIsOneErrorThatNamesIt) {
  const std::string whole = contentOf(folder.path() / "dso_la1.cap");
  std::string sections;
  while (sections.size() < fileLimit::captions - 10) sections += "//x,,y\r\n";
  Lines files = {sections, "//RS232,a,b\r\n", "//DSO,a,b\n//RS232,c,d\n"};
  for (std::size_t length = 0; length <= whole.size(); length += length < 300 ? 1 : 97)
    files.push_back(whole.substr(0, length));
  int refused = 0;
  for (const std::string& bytes : files) {
    writeCaptions(bytes);
    const std::string error = errorOf([this] { program.captions.LoadCaptions(); });
    if (error.empty()) continue;
    ++refused;
    EXPECT_NE(error.find("dso_la1.cap"), std::string::npos);
  }
  EXPECT_GE(refused, 300);
  EXPECT_LT(refused, std::ssize(files));
  writeCaptions("//");
  EXPECT_NE(errorOf([this] { program.start(); }), "");
}

TEST_F(CaptionsTest, MessagesKeepTheirCommasAndNeedThirteenLines) {
  std::string lines;
  for (int i = 0; i < 13; ++i)
    lines += (i == 0 ? ",text, " : "key,text, ") + std::to_string(i) + " \r\n";
  // An unknown number stands for the files without a code: it does not keep the program from
  // starting.
  for (const std::string& number : Lines{"0", "12", "x", "", "6", "1", "5"}) {
    const std::string code = number == "1" || number == "5" ? "la" + number : "";
    main.gridMeasure.setText(12, 2, number);
    EXPECT_NO_THROW(program.captions.LoadCaptions()) << number;
    const auto file = languageFile(main, ".msg");
    EXPECT_EQ(file.filename(), "dso_" + code + ".msg");
    main.state.Msg = {};
    writeWholeFile(file, lines.substr(0, lines.size() - 2));
    EXPECT_THROW(LoadMessages(main), Error);
    EXPECT_EQ(main.state.Msg[1], "");
    writeWholeFile(file, lines + "more,ignored\r\n");
    LoadMessages(main);
    EXPECT_EQ((Lines{main.state.Msg[0], main.state.Msg[12], main.state.Msg[13]}),
              (Lines{"text, 0 ", "text, 12 ", ""}));
  }
  std::filesystem::remove(folder.path() / "dso_la1.msg");
  EXPECT_TRUE(errorOf([this] { program.start(); }).ends_with("dso_la1.msg"));
}

}  // namespace tracewell
