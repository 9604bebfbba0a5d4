// SPDX-License-Identifier: GPL-3.0-or-later
#include "Files.h"

#include <chrono>
#include <fstream>

#include "Doubles.h"
#include "Messages.h"

namespace tracewell {

namespace fs = std::filesystem;

class FilesTest : public testing::Test, protected Bench {
 protected:
  static void makeLarge(const fs::path& path) {
    std::ofstream(path, std::ios::app).close();
    fs::resize_file(path, 100 << 20);
  }
  static std::string errorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const Error& error) {
      return error.description();
    }
    return "";
  }
  std::size_t entries() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.path()), {}));
  }
};

TEST_F(FilesTest, OnlyARegularFileOrNothingIsReplaced) {
  const fs::path inTheWay = folder.path() / "in the way";
  const auto makers = std::to_array<std::function<void()>>({
      [&] { fs::create_directory(inTheWay); },
#ifndef _WIN32  // Where making links is a privilege.
      [&] { fs::create_symlink("nowhere", inTheWay); },
      [&] { fs::create_symlink(inTheWay.filename(), inTheWay); },
      [&] { fs::create_symlink("/dev/null", inTheWay); },
#endif
  });
  for (const auto& make : makers) {
    make();
    const fs::file_type type = fs::symlink_status(inTheWay).type();
    const std::size_t before = entries();
    const std::string reason = errorOf([&] { writeWholeFile(inTheWay, "text"); });
    EXPECT_NE(reason.find("in the way"), std::string::npos) << reason;
    EXPECT_NE(errorOf([&] { keepAside(inTheWay); }), "");
    EXPECT_EQ(fs::symlink_status(inTheWay).type(), type);
    EXPECT_EQ(entries(), before);
    fs::remove(inTheWay);
  }
  EXPECT_NE(errorOf([&] { writeWholeFile(folder.path() / "none" / "file", "text"); }), "");
}

TEST_F(FilesTest, NeighboursStayAndLongNamesFit) {
  const fs::path file = folder.path() / std::string(255, 'n');
  const fs::path neighbour = folder.path() / "default.dso.new";
  writeWholeFile(neighbour, "the user's");
  writeWholeFile(folder.path() / "default.dso", "text");
  EXPECT_EQ(readWholeFile(neighbour), "the user's");
  const std::size_t before = entries();
  for (const char* text : {"first", "second"}) writeWholeFile(file, text);
  EXPECT_EQ(readWholeFile(file), "second");
  EXPECT_EQ(entries(), before + 1);
}

TEST_F(FilesTest, LimitsHoldToTheByte) {
  const fs::path file = folder.path() / "file";
  writeWholeFile(file, "a\nbcd");
  EXPECT_EQ(readWholeFile(file, 5), "a\nbcd");
  EXPECT_NE(errorOf([&] { readWholeFile(file, 4); }).find("file"), std::string::npos);
  const std::tuple<std::uintmax_t, const char*, bool> ends[] = {
      {5, "a\nbcd", true}, {6, "a\nbcd", true}, {4, "\nbcd", false}};
  for (const auto& [limit, bytes, isWhole] : ends) {
    const FileEnd end = readFileEnd(file, limit);
    EXPECT_EQ(end.bytes, bytes);
    EXPECT_EQ(end.isWhole, isWhole);
  }
}

/// The device whose first byte cannot be read.
TEST_F(FilesTest, ReadErrorIsAnError) {
  if (!fs::exists("/proc/self/mem")) GTEST_SKIP();
  EXPECT_NE(errorOf([] { readWholeFile("/proc/self/mem"); }), "");
  EXPECT_NE(errorOf([] { readFileEnd("/proc/self/mem", 10); }), "");
}

TEST_F(FilesTest, HugeFilesAreRefusedAtOnce) {
  program.start();
  for (const char* name :
       {"default.dso", "dso_la1.cap", "dso_la1.msg", "default.sit", "dso.cmd", "x.csv"})
    makeLarge(folder.path() / name);
  dialogs.pickedFile = folder.path() / "x.csv";
  const std::pair<const char*, std::function<void()>> readers[] = {
      {"default.dso", [&] { program.setupFiles.ReadSetupFile(folder.path() / "default.dso"); }},
      {"dso_la1.cap", [&] { main.mnbLA1.choose(); }},
      {"default.sit", [&] { main.mnbConf.choose(); }},
      {"dso.cmd", [&] { main.mnbDSOcmd.choose(); }},
      {"x.csv", [&] { main.mnbLoadCSV.choose(); }},
      {"dso_la1.msg", [&] { LoadMessages(main); }}};
  for (const auto& [name, read] : readers) {
    dialogs.runTimeErrors.clear();
    main.lblStatus.caption = "";
    const auto start = std::chrono::steady_clock::now();
    std::string said = errorOf(read);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500)) << name;
    said += main.lblStatus.caption() + program.errLog.txtErrLog.text();
    for (const std::string& error : dialogs.runTimeErrors) said += error;
    EXPECT_NE(said.find(name), std::string::npos) << name << ": " << said;
  }
}

TEST_F(FilesTest, LastPartOfALongLogIsReadAndTheWholeKept) {
  const fs::path file = folder.path() / "dso.err";
  std::string log;
  while (log.size() <= fileLimit::errorLog) log += std::to_string(log.size()) + " line\r\n";
  writeWholeFile(file, log);
  program.start();
  main.mnbErrLog.choose();
  const std::string shown = program.errLog.txtErrLog.text();
  EXPECT_TRUE(log.ends_with(shown));
  EXPECT_EQ(log[log.size() - shown.size() - 1], '\n');
  EXPECT_GT(shown.size(), fileLimit::errorLog - 100);
  EXPECT_NE(main.lblStatus.caption().find("dso.err.bad"), std::string::npos);
  for (int i = 0; i < 2; ++i) program.errLog.cmdClose.press();
  EXPECT_EQ(readWholeFile(file), shown);
  EXPECT_EQ(readWholeFile(folder.path() / "dso.err.bad"), log);
  EXPECT_FALSE(fs::exists(folder.path() / "dso.err.bad2"));
}

}  // namespace tracewell
