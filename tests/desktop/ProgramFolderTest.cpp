// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramFolder.h"

#include <optional>

#include "Bench.h"
#include "FullDisk.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

constexpr const char* first = "1";
constexpr const char* second = "2";
constexpr const char* own = "own";
constexpr const char* none = "";

std::string contentOrNone(const fs::path& path) {
  return fs::exists(path) ? contentOf(path) : none;
}

/// A file that is `first` in the one version and perhaps `second` in the next, what the user does
/// with it in between, and what he has after the new version, beside it, and back in the old one.
const struct {
  const char* name;
  const char* shippedNext;
  const char* users;
  const char* after;
  const char* beside;
  const char* back;
} cases[] = {
    {"dso.cmd", second, first, second, none, first},
    {"default.sit", second, own, own, second, own},
    {"about.jpg", first, own, own, none, own},
    {"dso_la1.cap", second, first, second, none, first},
    {"dso_la2.cap", second, own, own, second, own},
    {"dso_la3.msg", second, none, second, none, first},
    {"dso_la4.msg", second, second, second, none, first},
    {"default.dso", second, first, first, none, first},
    {"other.dso", second, own, own, none, own},
};

TEST(ProgramFolder, FilesFollowTheVersionUnlessTheUserHasChangedThem) {
  const ProgramFolderCopy older, newer, parent;
  const fs::path users = parent.path() / "user" / "tracewell";
  for (const auto& file : cases) {
    writeWholeFile(older.path() / file.name, first);
    writeWholeFile(newer.path() / file.name, file.shippedNext);
  }
  EXPECT_EQ(filledFolder(older.path(), users).offered, Lines());
  for (const auto& file : cases) {
    EXPECT_EQ(contentOrNone(users / file.name), first) << file.name;
    fs::remove(users / file.name);
    if (file.users != none) writeWholeFile(users / file.name, file.users);
  }
  const auto expect = [&](const char* when, auto content) {
    for (const auto& file : cases) {
      EXPECT_EQ(contentOrNone(users / file.name), content(file)) << file.name << when;
      EXPECT_EQ(contentOrNone(users / (std::string(file.name) + ".new")), file.beside)
          << file.name << when;
    }
  };
  const auto after = [](const auto& file) { return file.after; };
  EXPECT_EQ(filledFolder(newer.path(), users).offered,
            (Lines{"default.sit.new", "dso_la2.cap.new"}));
  expect(" after", after);
  EXPECT_EQ(filledFolder(newer.path(), users).offered, Lines());
  expect(" at the next start", after);
  EXPECT_EQ(filledFolder(older.path(), users).offered, Lines());
  expect(" back", [](const auto& file) { return file.back; });
  EXPECT_EQ(filledFolder(newer.path(), users).offered, Lines());
  expect(" again", after);
}

/// Of versions that kept no record of what they copied.
TEST(ProgramFolder, FilesOfUnknownOriginAreKept) {
  const ProgramFolderCopy shipped, users;
  for (const char* name : {"dso_la1.cap", "dso.cmd", "default.dso"})
    writeWholeFile(users.path() / name, own);
  writeWholeFile(users.path() / "shipped-version", "0.9");
  EXPECT_EQ(filledFolder(shipped.path(), users.path()).offered, Lines{"dso.cmd.new"});
  for (const char* name : {"dso_la1.cap.bad", "dso.cmd", "default.dso"})
    EXPECT_EQ(contentOf(users.path() / name), own) << name;
  EXPECT_EQ(contentOf(users.path() / "dso_la1.cap"), contentOf(shipped.path() / "dso_la1.cap"));
  EXPECT_FALSE(fs::exists(users.path() / "shipped-version"));
}

TEST(ProgramFolder, SaysWhyTheUsersOneCannotBeUsed) {
  const ProgramFolderCopy shipped, parent;
  fs::remove(parent.path() / "about.jpg");
  const auto failureIn = [&](const fs::path& users) {
    const ProgramFolder folder = filledFolder(shipped.path(), users);
    EXPECT_EQ(folder.path, shipped.path());
    return folder.failure;
  };
  const fs::path underAFile = parent.path() / "dso.cmd" / "tracewell";
  EXPECT_EQ(failureIn(underAFile), "Cannot use " + underAFile.string() + " (Not a directory)");
  std::optional<FullDisk> disk(0);
  const std::string failure = failureIn(parent.path() / "new");
  const fs::path used = filledFolder(shipped.path(), parent.path()).path;
  disk.reset();
  EXPECT_TRUE(failure.ends_with("(File too large)")) << failure;
  EXPECT_EQ(used, parent.path()) << "has all but one file";
}

}  // namespace
}  // namespace tracewell
