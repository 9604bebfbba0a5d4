// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "Bench.h"
#include "DesktopProgram.h"
#include "Drawn.h"
#include "FullDisk.h"
#include "PaperGraph.h"
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

  QImage pagePicture(const QString& document) const {
    const QString file = folder.filePath(QStringLiteral("page"));
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {"-singlefile", "-png", "-r", "100", document, file});
    return QImage(file + ".png").convertToFormat(QImage::Format_RGB32);
  }

  static void expectShown(const QPixmap& picture, const char* section, QColor ground) {
    QLabel shown;
    shown.setPixmap(picture);
    shown.resize(picture.size());
    expectDrawn(shown, section, {}, ground);
  }

  QTemporaryDir folder;
  QString path = folder.filePath(QStringLiteral("page ü.pdf"));
  DesktopPrinter printer;
};

TEST_F(PaperTest, TracesLieUprightOnTheGridOfAPageThatLiesAcross) {
  GraphPage page;
  page.title = "Tracewell  2026-03-15";
  page.captions = {"Volts/Div voie 1 500.0 mV", "SEC/Div 500.0 us"};
  for (int number = 1; number <= 5; ++number)
    page.traces.push_back({number,
                           "Chan" + std::to_string(number),
                           {-250, 250},
                           {200.0 - 30 * number, 200.0 - 30 * number}});
  page.traces[0].y[1] = -260;
  printer.printToFile(path);
  printer.printPage(page);
  const std::string text = pdfText();
  for (const char* part :
       {"Tracewell 2026-03-15", "Volts/Div voie 1 500.0 mV", "500.0 us", "Chan1"})
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  const Regions printed = {pagePicture(path), Qt::white};
  ASSERT_GT(printed.picture.width(), printed.picture.height());
  EXPECT_GT(printed.find(QColor(0x00, 0x4f, 0x87)).width(), printed.picture.width() * 4 / 5);
  // Two pixels a unit.
  QPixmap paper(580, 420);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  QFont font(QStringLiteral("DejaVu Sans"));
  painter.setFont(font);
  paintOnPaper(page, painter, {10, 10, 560, 400});
  painter.end();
  expectShown(paper, "paper", Qt::white);
}

TEST_F(PaperTest, TextAndPictureMakeDocumentsOfTheirOwn) {
  printer.printToFile(path);
  printer.printText("Baud rate ... [19200]\r\nTrigger ... [2]\r\n");
  EXPECT_NE(pdfText().find("Trigger ... [2]"), std::string::npos);
  printer.printImage({2, 1, std::string(6, '\x7F')});
  EXPECT_EQ(pdfText().find("Trigger"), std::string::npos);
}

/// Whatever was printed before.
TEST_F(PaperTest, AUserWhoIsAskedFindsThePaperAsItFitsOrAsItWasTurned) {
  std::string found;
  const auto accept = [&](bool isTurned = false) {
    QTimer::singleShot(0, [&, isTurned] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      found += dialog->printer()->pageLayout().orientation() == QPageLayout::Portrait ? "P" : "L";
      if (isTurned) dialog->printer()->setPageOrientation(QPageLayout::Portrait);
      dialog->printer()->setColorMode(QPrinter::GrayScale);
      dialog->printer()->setOutputFileName(folder.filePath(QString::number(found.size())));
      dialog->done(QDialog::Accepted);
    });
  };
  accept();
  EXPECT_TRUE(printer.printPage({{}, {}, {{2, "Chan2", {-250, 250}, {0, 0}}}}));
  EXPECT_TRUE(pagePicture(folder.filePath(QStringLiteral("1"))).allGray());
  accept();
  EXPECT_TRUE(printer.printImage({2, 1,
                                  "\xFF"
                                  "00000"}));
  EXPECT_TRUE(pagePicture(folder.filePath(QStringLiteral("2"))).allGray());
  accept();
  EXPECT_TRUE(printer.printText("Trigger ... [2]\r\n"));
  EXPECT_EQ(printer.file(), fromQt(folder.filePath(QStringLiteral("3"))));
  printer.printToFile(path);
  for (const bool isTurned : {false, true, false}) {
    EXPECT_TRUE(printer.printPage({}));
    accept(isTurned);
    printer.setUp();
    EXPECT_TRUE(printer.printText("Trigger ... [2]\r\n"));
    accept();
    printer.setUp();
  }
  EXPECT_EQ(found, "LLPLPLPPP");
}

TEST_F(PaperTest, PlaceThatCannotBeWrittenIsAnErrorThatNamesIt) {
  printer.printToFile(folder.filePath(QStringLiteral("no/such/folder.pdf")));
  EXPECT_NE(errorOf([this] { printer.printPage({}); }).find("folder.pdf"), std::string::npos);
}

TEST_F(PaperTest, FileThatCannotBeWrittenIsAskedForAgain) {
  int asked = 0;
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      dialog->printer()->setOutputFileName(folder.filePath(QStringLiteral("no/such/folder.pdf")));
      dialog->done(QDialog::Accepted);
      ++asked;
    });
    EXPECT_FALSE(errorOf([this] { printer.printPage({}); }).empty());
  }
  EXPECT_EQ(asked, 2);
}

TEST_F(PaperTest, FullDiskLeavesTheDocumentOfBefore) {
  printer.printToFile(path);
  printer.printText("Trigger ... [2]\r\n");
  std::optional<FullDisk> disk(100);
  const std::string error = errorOf([this] { printer.printPage({}); });
  disk.reset();
  EXPECT_NE(error.find(fromQt(path)), std::string::npos) << error;
  EXPECT_NE(pdfText().find("Trigger ... [2]"), std::string::npos);
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
  const Image doubted = desktop.pictures.graphImage(graph, "CH1 500.0 mV\nCH1: scale not known");
  const int lineHeight = (doubted.height - plain.height);
  EXPECT_EQ(toQt(doubted).copy(0, 0, plain.width, plain.height), toQt(plain));
  EXPECT_NE(toQt(doubted).copy(0, plain.height, plain.width, lineHeight),
            toQt(plain).copy(0, 0, plain.width, lineHeight));
  EXPECT_EQ(fromQt(toQt(plain)), plain);
  const Image noted =
      desktop.pictures.withText({640, 400, std::string(768000, '\0')}, "hier", 100, 50);
  expectShown(QPixmap::fromImage(toQt(noted)), "picture with a note", Qt::black);
  const QWidget& view = *desktop.windows.widgetOf(graph);
  expectShown(QPixmap::fromImage(toQt(plain)), "picture of the graph",
              view.palette().color(QPalette::Window));
  // On a screen of 6K it is made as large as can be loaded again.
  desktop.windows.widgetOf(graph)->resize(6016, 3384);
  const Image large = desktop.pictures.graphImage(graph, "CH1 500.0 mV");
  EXPECT_GT(large.width, 3000);
  EXPECT_NEAR(static_cast<double>(large.height) / large.width, 3384.0 / 6016, 0.02);
  EXPECT_FALSE(desktop.pictures.encode(large, Pictures::pcx).empty());
}

}  // namespace tracewell
