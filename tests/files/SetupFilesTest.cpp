// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetupFiles.h"

#include <fstream>

#include "Doubles.h"
#include "Files.h"

namespace tracewell {

namespace fs = std::filesystem;

class SetupFilesTest : public testing::Test, protected Bench {
 protected:
  void read(const std::string& bytes) {
    writeWholeFile(file, bytes);
    program.setupFiles.ReadSetupFile(file);
  }

  fs::path file = folder.path() / "try.dso";
  SetupTable& table = main.gridMeasure;
};

TEST_F(SetupFilesTest, WhatIsWrittenComesBack) {
  program.setupFiles.WriteSetupFile(file);
  EXPECT_EQ(readWholeFile(file), readWholeFile(folder.path() / "default.dso"));
  for (int row = 0; row < 13; ++row) {
    table.setText(row, 0, "Row " + std::to_string(row));
    table.setText(row, 1, std::to_string(row));
    for (int i = 0; i < row; ++i) table.setText(row, 2 + i, std::to_string(row * 100 + i));
  }
  program.setupFiles.WriteSetupFile(file);
  const std::string bytes = readWholeFile(file);
  EXPECT_TRUE(bytes.starts_with("RRow 0,0\r\nRow 1,1,100\r\n"));
  table = SetupTable();
  program.setupFiles.ReadSetupFile(file);
  EXPECT_EQ((Lines{cell(0, 0), cell(12, 13), cell(5, 6)}), (Lines{"Row 0", "1211", "504"}));
}

TEST_F(SetupFilesTest, ReadingOfOddFiles) {
  read("RA,2,x\r\n B,1, y ,z\r\nno comma\r\ncut,1,q");
  // Right of the last field nothing changes, and the last line has no end.
  EXPECT_EQ((Lines{cell(0, 0), cell(0, 2), cell(0, 3)}), (Lines{"A", "x", "8"}));
  EXPECT_EQ((Lines{cell(1, 0), cell(1, 2), cell(1, 3)}), (Lines{"B", " y ", "z"}));
  EXPECT_EQ((Lines{cell(2, 0), cell(3, 0)}), (Lines{"no comma", "Channel 2 voltage"}));

  table = SetupTable();
  read("RA,1,x\nB,1,y\n");
  EXPECT_EQ(cell(0, 0), "RS232");
  read("abel,1,x\r\n");
  EXPECT_EQ(cell(0, 0), "bel");
  read("\r\nB,1,y\r\n");
  EXPECT_EQ(cell(1, 0), "Quick measurement");

  std::string wide = "RA,1,x\r\nB,40";
  for (int i = 0; i < 40; ++i) wide += ",v";
  read(wide + "\r\nC,1,z\r\n");
  EXPECT_EQ((Lines{cell(0, 0), cell(1, 5), cell(2, 0)}), (Lines{"A", "v", "Channel 1 voltage"}));

  std::string tall = "R";
  for (int i = 0; i < 100; ++i) tall += "row,0\r\n";
  read(tall);
  EXPECT_EQ(cell(SetupTable::rowCount - 1, 0), "row");
}

TEST_F(SetupFilesTest, EveryPrefixOfAFileIsReadWithoutHarm) {
  const std::string whole = readWholeFile(folder.path() / "default.dso");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    table = SetupTable();
    read(whole.substr(0, length));
    EXPECT_EQ(table.valueCount(12), 1) << length;
  }
}

TEST_F(SetupFilesTest, CountThatIsNoNumberFailsBeforeAnythingIsWritten) {
  writeWholeFile(file, "old");
  table.setText(7, 1, "many");
  dialogs.pickedFile = file;
  main.mnbSaveSetup.choose();
  EXPECT_EQ(dialogs.runTimeErrors, Lines{"13 Type mismatch"});
  EXPECT_EQ(readWholeFile(file), "old");
}

TEST_F(SetupFilesTest, MenuAsksInItsOwnWordsAndCancelMeansTheCurrentFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  table.setText(0, 0, "kept");
  main.mnbSaveSetup.choose();
  table = SetupTable();
  main.mnbLoadSetup.choose();
  fs::current_path(before);
  EXPECT_EQ(cell(0, 0), "kept");
  ASSERT_EQ(dialogs.fileDialogs.size(), 2u);
  for (const FileDialog& dialog : dialogs.fileDialogs) {
    EXPECT_EQ(dialog.title, "Load DSO Setup file");
    EXPECT_EQ(dialog.fileName, "default.dso");
    EXPECT_EQ(dialog.filter, "*.dso|*.dso");
    EXPECT_EQ(dialog.initialFolder, folder.path());
  }
  dialogs.pickedFile = folder.path() / "none.dso";
  main.mnbLoadSetup.choose();
  ASSERT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_TRUE(dialogs.runTimeErrors[0].starts_with("53 File not found: "));
}

/// A folder in which no file can be made stands for a full disk and for one that is read-only:
/// the unfinished file is what fails.
TEST_F(SetupFilesTest, SetupThatCannotBeWrittenIsReportedAndStaysWhole) {
  program.start();
  const fs::path setup = folder.path() / "default.dso";
  const std::string old = readWholeFile(setup);
  main.gridMeasure.setText(0, 0, "new");
  fs::create_directory(folder.path() / "default.dso.new");
  const std::ofstream inTheWay(folder.path() / "default.dso.new" / "file");
  main.close();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_NE(dialogs.messages[0].find(pathText(setup)), std::string::npos);
  EXPECT_EQ(readWholeFile(setup), old);
  EXPECT_FALSE(main.isLoaded());
}

/// The device that is always full, and a file whose first byte cannot be read.
TEST(Files, FullDiskAndReadErrorAreErrors) {
  if (!fs::exists("/dev/full")) GTEST_SKIP();
  EXPECT_THROW(readWholeFile("/proc/self/mem"), Error);
  const fs::path link = fs::temp_directory_path() / "tracewell-full.new";
  fs::remove(link);
  fs::create_symlink("/dev/full", link);
  const fs::path file = fs::temp_directory_path() / "tracewell-full";
  EXPECT_THROW(writeWholeFile(file, "text"), Error);
  EXPECT_FALSE(fs::exists(file));
  EXPECT_FALSE(fs::exists(fs::symlink_status(link)));
}

}  // namespace tracewell
