// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QPrintDialog>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "Bench.h"
#include "DesktopProgram.h"
#include "QtImages.h"
#include "QtValues.h"
#include "Regions.h"

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

TEST_F(PaperTest, TracesLieUprightOnTheGridOfAPageThatLiesAcross) {
  GraphPage page;
  page.title = "Tracewell  2026-03-15";
  page.captions = {"Volts/Div voie 1 500.0 mV", "SEC/Div 500.0 us"};
  const std::tuple<int, double, double, double> levels[] = {
      {1, -250, 250, 160}, {2, -250, 250, -60}, {3, 100, 200, 75}};
  for (const auto& [number, from, to, level] : levels)
    page.traces.push_back({number, "Chan" + std::to_string(number), {from, to}, {level, level}});
  printer.printToFile(path);
  printer.printPage(page);
  const std::string text = pdfText();
  for (const char* part :
       {"Tracewell 2026-03-15", "Volts/Div voie 1 500.0 mV", "500.0 us", "Chan1"})
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  const QString file = folder.filePath(QStringLiteral("page"));
  QProcess::execute(QStringLiteral("pdftoppm"), {"-singlefile", "-png", "-r", "100", path, file});
  const QImage picture(file + ".png");
  ASSERT_GT(picture.width(), picture.height());

  const Regions lines = {picture.convertToFormat(QImage::Format_RGB32), Qt::white};
  const auto frame = lines.runs(Qt::black, {picture.width() * 3 / 5, 0, 1, picture.height()}, 0.6);
  const int top = frame.first().first;
  const int bottom = frame.last().second;
  const auto sides = lines.runs(Qt::black, {0, (top + bottom) / 3, picture.width(), 1}, 0.6);
  const int left = sides.first().first;
  const int right = sides.last().second;
  const auto expectLines = [&lines](const QRect& across, int divisions) {
    const auto found = lines.runs(Qt::black, across, 0.02);
    ASSERT_EQ(found.size(), divisions + 1);
    for (int i = 0; i <= divisions; ++i)
      EXPECT_NEAR(found[i].first,
                  found[0].first + (found.last().first - found[0].first) * i / divisions, 2);
  };
  expectLines({left - 2, top + (bottom - top) * 9 / 20, right - left + 5, 1}, 10);
  expectLines({left + (right - left) * 11 / 20, top - 2, 1, bottom - top + 5}, 8);
  const QColor inks[] = {{0x9a, 0x5b, 0x00}, {0x00, 0x4f, 0x87}, {0x1d, 0x6b, 0x2a}};
  for (const auto& [number, from, to, level] : levels) {
    SCOPED_TRACE(number);
    const QColor ink = inks[number - 1];
    const int row = qRound(top + (bottom - top) * (200 - level) / 400);
    const QRect trace = lines.find(ink, {0, row - 1, picture.width(), 3});
    EXPECT_NEAR(trace.left(), left + (right - left) * (from + 250) / 500, 4);
    // The last dash may end before the trace.
    EXPECT_NEAR(trace.right(), left + (right - left) * (to + 250) / 500, number == 3 ? 20 : 4);
    // Below the grid each is explained, one after the other.
    const double unit = (right - left) / 280.0;
    const QRect key =
        lines.find(ink, {left, bottom + 3, right - left + 1, picture.height() - bottom});
    EXPECT_NEAR(key.left(), left + 40 * unit * (number - 1), 3);
    EXPECT_TRUE(key.right() > key.left() + 14 * unit && key.right() < key.left() + 38 * unit);
    EXPECT_LT(key.bottom(), bottom + 9 * unit);
  }
}

TEST_F(PaperTest, TextAndPictureMakeDocumentsOfTheirOwn) {
  printer.printToFile(path);
  printer.printText("Baud rate ... [19200]\r\nTrigger ... [2]\r\n");
  EXPECT_NE(pdfText().find("Trigger ... [2]"), std::string::npos);
  printer.printImage({2, 1, std::string(6, '\x7F')});
  EXPECT_EQ(pdfText().find("Trigger"), std::string::npos);
}

/// Whatever was printed before.
TEST_F(PaperTest, AUserWhoIsAskedFindsThePaperAsItFits) {
  QList<QPageLayout::Orientation> found;
  const auto accept = [&] {
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      found << dialog->printer()->pageLayout().orientation();
      dialog->printer()->setOutputFileName(folder.filePath(QString::number(found.size())));
      dialog->done(QDialog::Accepted);
    });
  };
  accept();
  EXPECT_TRUE(printer.printPage({}));
  accept();
  EXPECT_TRUE(printer.printText("Trigger ... [2]\r\n"));
  EXPECT_EQ(found, QList({QPageLayout::Landscape, QPageLayout::Portrait}));
}

TEST_F(PaperTest, PlaceThatCannotBeWrittenIsAnErrorThatNamesIt) {
  printer.printToFile(folder.filePath(QStringLiteral("no/such/folder.pdf")));
  EXPECT_NE(errorOf([this] { printer.printPage({}); }).find("folder.pdf"), std::string::npos);
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
  // On a screen of 6K it is made as large as can be loaded again.
  desktop.windows.widgetOf(graph)->resize(6016, 3384);
  const Image large = desktop.pictures.graphImage(graph, "CH1 500.0 mV");
  EXPECT_GT(large.width, 3000);
  EXPECT_NEAR(static_cast<double>(large.height) / large.width, 3384.0 / 6016, 0.02);
  EXPECT_FALSE(desktop.pictures.encode(large, Pictures::pcx).empty());
}

}  // namespace tracewell
