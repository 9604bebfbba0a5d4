// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <numbers>

#include "Bench.h"
#include "DesktopProgram.h"
#include "QtImages.h"
#include "QtValues.h"

namespace tracewell {

/// Pictures of the real graph, and documents as an independent reader sees them.
class PaperTest : public testing::Test {
 protected:
  std::string pdfText() {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished() && reader.exitCode() == 0);
    return fromQt(QString::fromUtf8(reader.readAllStandardOutput()));
  }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("page ü.pdf"));
  DesktopPrinter printer;
};

TEST_F(PaperTest, PageCarriesTitleTracesAndScales) {
  GraphPage page;
  page.title = "Tracewell  2026-03-15";
  page.captions = {"Volts/Div voie 1 500.0 mV", "SEC/Div 500.0 us"};
  GraphPage::Trace trace{1, "Chan1", {}, {}};
  for (int i = -250; i < 250; ++i) {
    trace.x.push_back(i);
    trace.y.push_back(100 * std::sin(i * std::numbers::pi / 50));
  }
  page.traces = {trace};
  printer.printToFile(path);
  printer.printPage(page);
  const std::string text = pdfText();
  for (const char* part :
       {"Tracewell 2026-03-15", "Volts/Div voie 1 500.0 mV", "500.0 us", "Chan1"})
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
}

TEST_F(PaperTest, TextAndPictureMakeDocumentsOfTheirOwn) {
  printer.printToFile(path);
  printer.printText("Baud rate ... [19200]\r\nTrigger ... [2]\r\n");
  EXPECT_NE(pdfText().find("Trigger ... [2]"), std::string::npos);
  printer.printImage({2, 1, std::string(6, '\x7F')});
  EXPECT_EQ(pdfText().find("Trigger"), std::string::npos);
}

TEST_F(PaperTest, PlaceThatCannotBeWrittenIsAnErrorThatNamesIt) {
  printer.printToFile(folder.filePath(QStringLiteral("no/such/folder.pdf")));
  try {
    printer.printPage({});
    ADD_FAILURE() << "printed";
  } catch (const Error& error) {
    EXPECT_NE(error.description().find("folder.pdf"), std::string::npos) << error.description();
  }
}

TEST_F(PaperTest, PictureOfTheGraphTakesNotesWhereItIsClicked) {
  const ProgramFolderCopy programFolder;
  DesktopProgram desktop(programFolder.path());
  const Graph& graph = desktop.program.main.graphDSO;
  EXPECT_THROW(desktop.pictures.graphImage(graph, ""), Error);
  ASSERT_TRUE(desktop.start());
  QApplication::processEvents();
  const Image plain = desktop.pictures.graphImage(graph, "CH1 500.0 mV");
  EXPECT_NE(plain, desktop.pictures.graphImage(graph, "CH1 2.000 V"));
  EXPECT_EQ(fromQt(toQt(plain)), plain);
  const Image noted = desktop.pictures.withText(plain, "hier", 100, 50);
  ASSERT_EQ(noted.pixels.size(), plain.pixels.size());
  int changed = 0;
  for (std::size_t i = 0; i < plain.pixels.size(); i += 3) {
    if (plain.pixels.compare(i, 3, noted.pixels, i, 3) == 0) continue;
    ++changed;
    const auto pixel = static_cast<int>(i / 3);
    EXPECT_TRUE(pixel % plain.width >= 98 && pixel % plain.width < 160) << pixel;
    EXPECT_TRUE(pixel / plain.width >= 48 && pixel / plain.width < 80) << pixel;
  }
  EXPECT_GT(changed, 50);
}

}  // namespace tracewell
