// SPDX-License-Identifier: GPL-3.0-or-later
#include "Files.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "Bench.h"

namespace tracewell {

namespace fs = std::filesystem;

class FilesTest : public testing::Test, protected Bench {
 protected:
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
      [&] { mkfifo(inTheWay.c_str(), 0600); },
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
  const std::string reason = errorOf([&] { writeWholeFile(folder.path() / "none" / "file", ""); });
  EXPECT_TRUE(reason.starts_with("75 Cannot write: ")) << reason;
}

TEST_F(FilesTest, NeighboursStayAndLongNamesFit) {
  const fs::path file = folder.path() / std::string(255, 'n');
  const fs::path neighbour = folder.path() / "default.dso.new";
  writeWholeFile(neighbour, "the user's");
  writeWholeFile(folder.path() / "default.dso", "text");
  EXPECT_EQ(contentOf(neighbour), "the user's");
  const std::size_t before = entries();
  for (const char* text : {"first", "second"}) writeWholeFile(file, text);
  EXPECT_EQ(contentOf(file), "second");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  const fs::perms mode = fs::status(file).permissions();
  writeWholeFile(file, "third");
  EXPECT_EQ(fs::status(file).permissions(), mode);
  EXPECT_EQ(entries(), before + 1);
}

/// The device whose first byte cannot be read.
TEST_F(FilesTest, ReadErrorIsAnError) {
  if (!fs::exists("/proc/self/mem")) GTEST_SKIP();
  EXPECT_NE(errorOf([] { contentOf("/proc/self/mem"); }), "");
  EXPECT_NE(errorOf([] { readFileEnd("/proc/self/mem", 10); }), "");
}

TEST_F(FilesTest, WhatADiskMayNotHoldIsSaidAndLeavesNothingBehind) {
  const fs::path file = folder.path() / "file";
  writeWholeFile(file, "old");
  const std::size_t before = entries();
  FailingDisk disk;
  disk.fault = disk.faultOfFolder = std::errc::io_error;
  const std::string place = ": " + pathText(file) + " (Input/output error)";
  EXPECT_EQ(errorOf([&] { writeWholeFile(file, "new"); }), "61 Cannot write" + place);
  EXPECT_EQ(contentOf(file), "old");
  EXPECT_EQ(entries(), before);
  disk.fault = std::errc();
  EXPECT_EQ(errorOf([&] { writeWholeFile(file, "new"); }),
            "61 Written, but perhaps not for good" + place);
  useDisk(nullptr);
  EXPECT_EQ(contentOf(file), "new");
  EXPECT_EQ(entries(), before);
  EXPECT_EQ(disk.owners, (std::vector{file, file}));
}

/// A folder takes the place of the last file of a set while that is on its way.
TEST_F(FilesTest, SetThatCannotBeWholeIsAsItWas) {
  const fs::path files[] = {folder.path() / "a", folder.path() / "b", folder.path() / "c"};
  writeWholeFile(files[0], "old");
  const std::size_t before = entries();
  class Intruder : public FailingDisk {
   public:
    explicit Intruder(const fs::path& place) : place_(place) {
      faultOfFolder = std::errc::io_error;
    }
    /// Of the last file, when all targets have been looked at.
    std::error_code flush(std::FILE&) override {
      if (++flushed_ == 3) fs::create_directory(place_);
      return {};
    }

   private:
    int flushed_ = 0;
    const fs::path& place_;
  } disk(files[2]);
  const std::string reason = errorOf([&] {
    writeWholeFiles({{files[0], "1"}, {files[1], "2"}, {files[2], "3"}});
  });
  useDisk(nullptr);
  EXPECT_NE(reason.find(pathText(files[2])), std::string::npos) << reason;
  EXPECT_EQ(contentOf(files[0]), "old");
  EXPECT_FALSE(fs::exists(files[1]));
  EXPECT_EQ(entries(), before + 1);
}

/// The last sizes are those of whole blocks of reading.
TEST_F(FilesTest, LimitIsExact) {
  const fs::path file = folder.path() / "file";
  for (const std::uintmax_t size : {1U, 100U, 65535U, 65536U, 65537U, 131072U}) {
    std::string text(size, 'a');
    text.back() = 'z';
    writeWholeFile(file, text);
    EXPECT_EQ(readWholeFile(file, size), text);
    EXPECT_NE(errorOf([&] { readWholeFile(file, size - 1); }), "");
    EXPECT_EQ(errorOf([&] { checkReadable(file, text, size); }), "");
    EXPECT_TRUE(readFileEnd(file, size).isWhole());
    EXPECT_EQ(readFileEnd(file, size - 1).bytes, text.substr(1));
    EXPECT_FALSE(readFileEnd(file, size - 1).isWhole());
  }
}

TEST_F(FilesTest, FileIsKeptOnceUnderANameOfItsOwn) {
  const fs::path file = folder.path() / "file";
  keepAside(file);
  EXPECT_FALSE(fs::exists(folder.path() / "file.bad"));
  writeWholeFile(folder.path() / "file.bad", "another's");
  writeWholeFile(file, "first");
  for (int i = 0; i < 2; ++i) keepAside(file);
  EXPECT_EQ(nameAside(file), folder.path() / "file.bad2");
  writeWholeFile(file, "second");
  keepAside(file);
  writeWholeFile(file, "third");
  Lines kept;
  for (const char* name : {"file", "file.bad", "file.bad2", "file.bad3"})
    kept.push_back(contentOf(folder.path() / name));
  EXPECT_EQ(kept, (Lines{"third", "another's", "first", "second"}));
  EXPECT_EQ(nameAside(file), folder.path() / "file.bad4");
}

/// Box and file agree, and no line of this run is lost, however long the run makes the log.
TEST_F(FilesTest, LongLogIsKeptOnceAndItsNewestHalfReadAndWritten) {
  const fs::path file = folder.path() / "dso.err";
  const auto lines = [](std::uintmax_t size) {
    std::string log;
    while (log.size() <= size) log += std::to_string(10'000'000 + log.size()) + " line.\r\n";
    return log;
  };
  const std::string log = lines(fileLimit::errorLog);
  writeWholeFile(file, log);
  program.start();
  TextBox& box = program.errLog.txtErrLog;
  main.mnbErrLog.choose();
  EXPECT_TRUE(log.ends_with("\n" + box.text()));
  EXPECT_GT(box.text().size(), fileLimit::errorLog / 2 - 20);
  EXPECT_LE(box.text().size(), fileLimit::errorLog / 2);
  EXPECT_TRUE(main.lblNotice.caption().ends_with("dso.err.bad"));
  for (const std::string& added : {std::string("A line so long\r\n"), lines(fileLimit::errorLog)}) {
    box.text = box.text() + added;
    program.errLog.cmdClose.press();
    main.mnbErrLog.choose();
    EXPECT_EQ(contentOf(file), box.text());
    EXPECT_EQ(main.lblNotice.caption(), "");
    EXPECT_EQ(main.lblStatus.caption(), "");
  }
  EXPECT_EQ(contentOf(folder.path() / "dso.err.bad"), log);
  EXPECT_FALSE(fs::exists(folder.path() / "dso.err.bad2"));
}

}  // namespace tracewell
