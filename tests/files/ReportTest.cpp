// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

/// Status report and printing.
class ReportTest : public ProgramTest {
 protected:
  /// A template, and a table that has these values and no others.
  void use(const std::string& text, const Lines& values) {
    writeWholeFile(folder.path() / "default.sit", text);
    program.report.unload();
    for (int number = 0; number < 13; ++number) main.gridMeasure.setText(number, 1, "0");
    setRow(0, values);
    main.gridMeasure.setText(0, 1, std::to_string(values.size()));
  }

  TextBox& text = program.report.txtSetup;
};

TEST_F(ReportTest, ShippedTemplateHasAPlaceForEveryValue) {
  Lines values;
  for (int number = 0; number < main.gridMeasure.fileRows(); ++number)
    for (int i = 0; i < main.gridMeasure.valueCount(number); ++i) {
      values.push_back(std::to_string(number) + "." + std::to_string(i));
      main.gridMeasure.setText(number, SetupTable::firstValue + i, values.back());
    }
  main.mnbConf.choose();
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  EXPECT_EQ(text.text().find("[]"), std::string::npos);
  std::size_t position = 0;
  for (const std::string& value : values) {
    position = text.text().find("[" + value + "]", position);
    ASSERT_NE(position, std::string::npos) << value;
  }
}

TEST_F(ReportTest, ValuesAccumulateAtEachShowing) {
  use("[no] (RS) a [] b [old]", {"x]", "8"});
  main.mnbConf.choose();
  EXPECT_EQ(text.text(), "[no] (RS) a [x]] b [8old]");
  main.mnbConf.choose();
  EXPECT_EQ(text.text(), "[no] (RS) a [x]x]] b [88old]");
}

TEST_F(ReportTest, TemplatesThatDoNotFit) {
  const std::tuple<const char*, const char*, Lines, const char*, bool> cases[] = {
      {"no value", "[no] (RS) []", {}, "[no] (RS) []", false},
      {"no marker", "a [] []", {"1", "2"}, "a [] []", true},
      {"no bracket left", "(RS) [] ]", {"1", "2"}, "2(RS) [1] ]", false},
      {"no bracket at all", "(RS)", {"1"}, "1(RS)", false},
      {"an empty value without a bracket", "(RS) []", {"1", ""}, "(RS) []", true}};
  for (const auto& [what, pattern, values, shown, fails] : cases) {
    use(pattern, values);
    dialogs.runTimeErrors.clear();
    main.mnbConf.choose();
    EXPECT_EQ(text.text(), shown) << what;
    EXPECT_EQ(!dialogs.runTimeErrors.empty(), fails) << what;
  }
  std::filesystem::remove(folder.path() / "default.sit");
  program.report.unload();
  windows.shown.clear();
  main.mnbConf.choose();
  EXPECT_TRUE(windows.shown.empty());
}

TEST_F(ReportTest, SavedByteForByteAndPrinted) {
  dialogs.pickedFile = folder.path() / "mine.sir";
  main.mnbConf.choose();
  program.report.cmdSave.press();
  program.report.cmdPrint.press();
  EXPECT_EQ(contentOf(dialogs.pickedFile), text.text());
  EXPECT_EQ(printer.printed, Lines{text.text()});
  EXPECT_EQ(dialogs.fileDialogs.back().title, "Save Setup Report file");
  EXPECT_EQ(dialogs.fileDialogs.back().fileName, "default.sir");
}

TEST_F(ReportTest, PageShowsTheVisibleTracesWithTheirScales) {
  port.answerLikeAnInstrument();
  main.cmdStart.press();
  port.tag = "1";
  port.deliver(makeRecord([](int i) { return i; }));
  for (const int number : {3, 6}) {
    main.graphDSO.plot(number).plotXvsY(main.XIndex, main.XIndex);
    main.graphDSO.plot(number).visible = true;
  }
  main.cbCh2.toggle();
  main.opTime.select();
  main.cmdPrint.press();
  ASSERT_EQ(printer.pages.size(), 1u);
  const GraphPage& page = printer.pages[0];
  ASSERT_EQ(page.traces.size(), 2u);
  EXPECT_EQ(page.traces[0].name, "Chan1");
  EXPECT_EQ(page.traces[1].name, "Load1");
  EXPECT_EQ(page.captions,
            (Lines{"Volts/Div channel 1 500.0 mV channel 2 1.000 V", "SEC/Div time base 500.0 us",
                   main.graphDSO.axis("XAxis").caption()}));
  EXPECT_FALSE(main.tmDSO.enabled());
  main.mnbPrintSetup.choose();
  EXPECT_EQ(printer.printed, Lines{"set up"});
  printer.isOutOfPaper = true;
  main.mnbPrint.choose();
  EXPECT_EQ(logLines(), Lines{"Printer - cmdPrint_Click : Out of paper"});
}

TEST_F(ReportTest, AboutBoxNeedsNoPicture) {
  frmAbout& about = program.about;
  windows.user["frmAbout"] = [&] { about.cmdOK.press(); };
  for (const bool hasPicture : {true, false}) {
    main.mnbAbout.choose();
    EXPECT_EQ(about.pictureAbout.image().isEmpty(), !hasPicture);
    EXPECT_EQ(about.lblVersion.caption(), "Tracewell " TRACEWELL_VERSION);
    about.pictureAbout.image = Image();
    about.unload();
    std::filesystem::remove(folder.path() / "about.jpg");
  }
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

}  // namespace tracewell
