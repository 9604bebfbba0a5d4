// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/stat.h>

#include "Bench.h"
#include "Messages.h"
#include "PictureFormats.h"
#include "ProgramFolder.h"
#include "WaveformSetReader.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

std::string repeated(const std::string& start, const std::string& unit, std::uintmax_t size) {
  std::string bytes = start;
  while (bytes.size() < size) bytes += unit;
  bytes.resize(size);
  return bytes;
}

/// Of as many pixels and bytes as a picture may have.
std::string bitmap(std::uintmax_t size) {
  constexpr std::string_view header(
      "BM\0\0\0\2\0\0\0\0\x36\0\0\0\x28\0\0\0\x80\x0C\0\0\x35\x0C\0\0\1\0\x18\0\0\0\0\0", 34);
  return repeated(std::string(header) + std::string(20, '\0'), "\x10\x80\xF0", size);
}

struct Reader {
  const char* name;
  std::uintmax_t limit;
  std::string (*content)(std::uintmax_t size);
  void (*read)(Bench&, const fs::path&);
  const char* complaint = "Larger than";
};

/// Each with the content that takes most of what was tried.
const Reader readers[] = {
    {"default.dso", 64 << 10, [](auto size) { return repeated("R", "\r\n", size); },
     [](Bench& bench, const fs::path&) { bench.main.mnbLoadSetup.choose(); }},
    {"dso_la1.cap", 512 << 10, [](auto size) { return repeated("", "//x,,y\r\n", size); },
     [](Bench& bench, const fs::path&) { bench.main.mnbLA1.choose(); }},
    {"dso_la1.msg", 64 << 10, [](auto size) { return repeated("", ",\r\n", size); },
     [](Bench& bench, const fs::path&) { LoadMessages(bench.main); }},
    {"default.sit", 256 << 10, [](auto size) { return repeated("(RS)", "[]", size); },
     [](Bench& bench, const fs::path&) { bench.main.mnbConf.choose(); }},
    {"dso.cmd", 256 << 10, [](auto size) { return repeated("'", "\r\n", size); },
     [](Bench& bench, const fs::path&) { bench.main.mnbDSOcmd.choose(); }},
    {"x.csv", 1 << 20, [](auto size) { return repeated("", "1,", size); },
     [](Bench& bench, const fs::path&) { bench.main.mnbLoadCSV.choose(); }},
    {"x.inf", 256 << 10, [](auto size) { return repeated("", "\r\n", size); },
     [](Bench&, const fs::path& path) { readDescription(path); }},
    {"x.png", 32 << 20, bitmap,
     [](Bench&, const fs::path& path) { EXPECT_EQ(loadPicture(path).width, 3200); }},
    {"dso.err", 1 << 20, [](auto size) { return repeated("", "x\r\n", size); },
     [](Bench& bench, const fs::path&) {
       bench.main.mnbErrLog.choose();
       bench.program.errLog.cmdClose.press();
     },
     "could not be read whole"}};

/// What the program says, in whatever way, of a file that `place` has put there.
std::string said(const Reader& reader, const std::function<void(const fs::path&)>& place) {
  Bench bench;
  const fs::path path = bench.folder.path() / reader.name;
  bench.program.start();
  fs::remove(path);
  place(path);
  const fs::file_type type = fs::symlink_status(path).type();
  bench.dialogs.pickedFile = path;
  std::string text;
  bench.main.lblNotice.changed = [&] { text += bench.main.lblNotice.caption(); };
  expectCheap([&] { text += errorOf([&] { reader.read(bench, path); }); });
  EXPECT_EQ(fs::symlink_status(path).type(), type);
  for (const std::string& error : bench.dialogs.runTimeErrors) text += error;
  return text + bench.program.errLog.txtErrLog.text();
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// To the byte; what is no file is neither waited for nor replaced.
TEST(FileLimits, LargestFileIsReadAtOnceAndALargerOneRefused) {
  for (const Reader& reader : readers) {
    SCOPED_TRACE(reader.name);
    const auto saidOf = [&](std::uintmax_t size) {
      const std::string bytes = reader.content(size);
      return said(reader, [&](const fs::path& path) { writeWholeFile(path, bytes); });
    };
    EXPECT_FALSE(contains(saidOf(reader.limit), reader.complaint));
    const std::string refusal = saidOf(reader.limit + 1);
    EXPECT_TRUE(contains(refusal, reader.complaint) && contains(refusal, reader.name)) << refusal;
    for (void (*place)(const fs::path&) :
         {+[](const fs::path& path) { fs::create_directory(path); },
          +[](const fs::path& path) { mkfifo(path.c_str(), 0600); },
          +[](const fs::path& path) { fs::create_symlink("no", path); }})
      EXPECT_PRED2(contains, said(reader, place), reader.name);
  }
}

/// A record of what was shipped that is too long is none.
TEST(FileLimits, RecordOfAnySizeCostsNothing) {
  const ProgramFolderCopy shipped;
  const ProgramFolderCopy users;
  const fs::path record = users.path() / "shipped-files";
  writeWholeFile(record, "");
  fs::resize_file(record, std::uintmax_t(1) << 30);
  expectCheap([&] { filledFolder(shipped.path(), users.path()); });
  EXPECT_LT(fs::file_size(record), 2000u);
}

}  // namespace
}  // namespace tracewell
