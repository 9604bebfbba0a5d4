// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetupFiles.h"

#include "Bench.h"
#include "Files.h"
#include "ShownTexts.h"

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

/// What a later version keeps besides: a value in a row, and a row.
TEST_F(SetupFilesTest, FilesOfEarlierVersionsAreTakenWholeAndGetWhatWasAdded) {
  auto first = SetupTable::shippedDesign();
  first.resize(SetupTable::firstRows);
  for (DesignRow& row : first) row.added.clear();
  auto design = first;
  design[SetupTable::display].added = {"new", "newer"};
  design.push_back({"Added", {}, {"7"}});
  const fs::path setup = folder.path() / "default.dso";
  table = SetupTable(first);
  program.setupFiles.WriteSetupFile(file);
  const std::string old = contentOf(file);
  const auto replaced = [](std::string text, const std::string& from, const std::string& to) {
    return text.replace(text.find(from), from.size(), to);
  };
  const std::string now = replaced(old, "3,50,50,0", "5,50,50,0,new,newer") + "Added,1,7\r\n";
  const std::tuple<std::string, std::string, bool> cases[] = {
      {old, now, true},
      {replaced(old, "3,50,50,0", "4,50,50,0,mine"), replaced(now, "new,", "mine,"), true},
      {now, now, true},
      {replaced(now, "1,7", "1,8"), replaced(now, "1,7", "1,8"), true},
      // A count of the user's own.
      {replaced(old, "3,50,50,0", "2,50,50"), replaced(now, "5,50,50,0,new,newer", "2,50,50"),
       true},
      {old + "Added,1,7\r\nMore,0\r\n", now, false},
      {old.substr(0, old.size() - 13), now, false}};
  for (const auto& [before, after, isWhole] : cases) {
    SCOPED_TRACE(before);
    table = SetupTable(design);
    writeWholeFile(setup, before);
    program.setupFiles.ReadSetupFile(setup);
    EXPECT_EQ(main.lblNotice.caption().empty(), isWhole);
    program.setupFiles.WriteSetupFile(setup);
    EXPECT_EQ(contentOf(setup), after);
    EXPECT_EQ(fs::remove(folder.path() / "default.dso.bad"), !isWhole);
  }
}

TEST_F(SetupFilesTest, EveryPrefixOfAFileIsReadWithoutHarm) {
  const std::string whole = contentOf(folder.path() / "default.dso");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    table = SetupTable();
    read(whole.substr(0, length));
    EXPECT_EQ(table.valueCount(12), 1) << length;
  }
}

TEST_F(SetupFilesTest, WhatCouldNotBeTakenWholeIsKept) {
  const fs::path setup = folder.path() / "default.dso";
  const std::string whole = contentOf(setup);
  std::string lf = whole;
  std::erase(lf, '\r');
  std::string wide = "\xFF\xFE";
  for (const char c : whole) wide += {c, '\0'};
  const Lines damaged = {lf,
                         wide,
                         "\r\n" + whole,
                         whole + "more,0\r\n",
                         whole.substr(0, whole.size() - 1),
                         "RRS232,5" + std::string(40, ',') + "\r\n" + whole};
  dialogs.pickedFile = setup;
  std::string name = "default.dso.bad";
  for (std::size_t i = 0; i < damaged.size(); ++i) {
    SCOPED_TRACE(i);
    writeWholeFile(setup, damaged[i]);
    table = SetupTable();
    // At the start, and when the user loads it.
    i % 2 == 0 ? program.setupFiles.ReadSetupFile(setup) : main.mnbLoadSetup.choose();
    EXPECT_EQ(textOf(main.lblNotice),
              "! default.dso could not be read whole and will be kept as " + name);
    main.mnbSaveSetup.choose();
    EXPECT_FALSE(main.lblNotice.visible());
    EXPECT_EQ(contentOf(folder.path() / name), damaged[i]);
    EXPECT_TRUE(contentOf(setup).starts_with("R"));
    name = "default.dso.bad" + std::to_string(i + 2);
  }
  // Blanks at the end of a line are what the user has typed behind a value; they are not taken.
  table = SetupTable();
  table.setText(SetupTable::link, 2, "7 ");
  table.setText(12, 2, "1  ");
  for (int i = 0; i < 2; ++i) {
    program.setupFiles.WriteSetupFile(setup);
    program.setupFiles.ReadSetupFile(setup);
    EXPECT_EQ(main.lblNotice.caption(), "");
  }
  EXPECT_FALSE(fs::exists(folder.path() / name));
  // What another program has put there since is too long to be read.
  writeWholeFile(setup, std::string(fileLimit::setup + 1, 'x'));
  EXPECT_TRUE(program.setupFiles.WriteSetupFile(setup));
  EXPECT_TRUE(contentOf(folder.path() / name).starts_with("x"));
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(SetupFilesTest, NoCellLiesOutsideTheTable) {
  for (const auto& [row, column] : {std::pair(32, 0), {0, 32}, {-1, 0}, {0, -1}})
    EXPECT_THROW(table.text(row, column), Error) << row << "," << column;
}

/// As long as 32767 characters fit into a box.
TEST_F(SetupFilesTest, SetupThatCouldNotBeReadAgainIsNotWritten) {
  const std::string before = contentOf(folder.path() / "default.dso");
  for (const int column : {2, 3}) table.setText(SetupTable::link, column, std::string(32767, 'x'));
  dialogs.pickedFile = folder.path() / "default.dso";
  main.mnbSaveSetup.choose();
  EXPECT_EQ(dialogs.fileDialogs.back().initialFolder, folder.path());
  ASSERT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_EQ(dialogs.runTimeErrors[0],
            "75 Not written, since " + std::to_string(before.size() + 65528) +
                " bytes are more than the 65536 that could be read again: " +
                pathText(dialogs.pickedFile));
  EXPECT_EQ(contentOf(dialogs.pickedFile), before);
}

}  // namespace tracewell
