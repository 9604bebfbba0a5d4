// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdio>
#include <fstream>
#include <list>
#include <memory>
#include <random>
#include <utility>

#include "Disk.h"
#include "FileError.h"
#include "Files.h"
#include "SystemFiles.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

Disk* usedDisk = nullptr;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

std::error_code renamed(const fs::path& from, const fs::path& to) {
  std::error_code failed;
  if (usedDisk != nullptr) return usedDisk->rename(from, to);
  fs::rename(from, to, failed);
  return failed;
}

/// The file that `path` means, which is a regular one, or a place where nothing is.
fs::path replaceableTarget(const fs::path& path) {
  std::error_code failed;
  const fs::file_status itself = fs::symlink_status(path, failed);
  if (itself.type() == fs::file_type::not_found) return path;
  fs::path target = fs::canonical(path, failed);
  if (failed) throw cannotWrite(path, failed);
  const fs::file_status status = fs::status(target, failed);
  if (failed) throw cannotWrite(path, failed);
  if (!fs::is_regular_file(status)) throw notAFile(path);
  return target;
}

/// A new file, or none with the reason in errno.
OpenFile createExclusively(const fs::path& path) {
  return OpenFile(openNewFile(path));
}

/// A second name, not a link by a name, which would lead to whatever is written there next.
bool isSecondName(const fs::path& aside, const fs::path& target) {
  std::error_code ignored;
  return fs::is_regular_file(fs::symlink_status(aside, ignored)) &&
         fs::equivalent(aside, target, ignored);
}

/// Takes the name first, with an empty file, so that nobody else's is ever replaced.
std::error_code renameToNew(const fs::path& target, const fs::path& aside) {
  if (createExclusively(aside) == nullptr) return lastFailure();
  std::error_code failed;
  fs::rename(target, aside, failed);
  std::error_code ignored;
  if (failed) fs::remove(aside, ignored);
  return failed;
}

/// A second name for the same file needs no right to read it, and takes nobody's place. File
/// systems without second names say so in many ways, so that any other reason leads to the first
/// name.
std::error_code keepAs(const fs::path& aside, const fs::path& target) {
  if (isSecondName(aside, target)) return {};
  std::error_code failed;
  fs::create_hard_link(target, aside, failed);
  const bool isAnswer = !failed || failed == std::errc::no_such_file_or_directory;
  return isAnswer ? failed : renameToNew(target, aside);
}

/// A file on its way to take the name of another, and until the whole set has its names with a way
/// back. Whatever ends it before, it leaves nothing.
class Replacement {
 public:
  /// `target` is the file to be replaced, `path` the name that the user knows for it.
  Replacement(fs::path target, const fs::path& path) : target_(std::move(target)), path_(path) {
    create();
  }
  ~Replacement() {
    file_.reset();
    std::error_code ignored;
    if (!isDone_) fs::remove(beside_, ignored);
    if (!old_.empty()) fs::remove(old_, ignored);
  }

  void write(std::string_view bytes) {
    takeOwnerAndMode();
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size() ||
        std::fflush(file_.get()) != 0)
      throw cannotWrite(path_, lastFailure(), diskFull);
    if (usedDisk != nullptr) check(usedDisk->flush(*file_), diskFull);
    if (std::fclose(file_.release()) != 0) throw cannotWrite(path_, lastFailure(), diskFull);
  }

  void takeName() {
    check(renamed(beside_, target_));
    isDone_ = true;
  }

  /// Gives the old file a name of its own, by which it can come back.
  void keepOld() {
    old_ = nameBeside(".old");
    const std::error_code failed = keepAs(old_, target_);
    if (failed) old_.clear();
    // Where no file was there is nothing to keep.
    if (failed != std::errc::no_such_file_or_directory) check(failed);
  }

  /// As it was before, or the name under which the old file is.
  std::string goBack() {
    std::error_code failed;
    if (!old_.empty())
      failed = renamed(old_, target_);
    else if (isDone_)
      fs::remove(target_, failed);
    if (!failed) return "";
    return "; " + pathText(path_.filename()) + " was " + pathText(std::exchange(old_, {}));
  }

  void keepName() const {
    if (usedDisk == nullptr) return;
    if (const std::error_code failed = usedDisk->flushFolder(folder()))
      throw fileError(diskFull, "Written, but perhaps not for good", path_, failed);
  }

 private:
  void check(const std::error_code& failed, int number = pathAccess) const {
    if (failed) throw cannotWrite(path_, failed, number);
  }

  fs::path folder() const { return target_.has_parent_path() ? target_.parent_path() : "."; }

  /// A short name, since that of the target may already be as long as the system allows. Chance
  /// makes it one that nobody has.
  fs::path nameBeside(const char* extension) const {
    std::random_device random;
    return folder() / (".tracewell-" + std::to_string(random()) + extension);
  }

  void create() {
    beside_ = nameBeside(".new");
    file_ = createExclusively(beside_);
    if (file_ == nullptr) throw cannotWrite(path_);
  }

  /// Before there is any content, so that nobody reads it who could not read the old one.
  void takeOwnerAndMode() const {
    std::error_code failed;
    const fs::file_status old = fs::status(target_, failed);
    const bool isNew = old.type() == fs::file_type::not_found;
    if (usedDisk != nullptr) usedDisk->takeOwner(*file_, isNew ? folder() : target_);
    if (isNew) return;
    check(failed);
    const fs::file_status own = fs::status(beside_, failed);
    if (!failed && old.permissions() != own.permissions())
      fs::permissions(beside_, old.permissions(), failed);
    check(failed);
  }

  fs::path target_;
  const fs::path& path_;
  fs::path beside_;
  /// Where the old file is, as long as it may have to come back.
  fs::path old_;
  OpenFile file_;
  bool isDone_ = false;
};

bool canBeRead(const fs::path& path) {
  return std::ifstream(path, std::ios::binary).is_open();
}

/// All or none. The last one needs no way back.
void takeNames(std::list<Replacement>& replacements) {
  try {
    for (Replacement& replacement : replacements) {
      if (&replacement != &replacements.back()) replacement.keepOld();
      replacement.takeName();
    }
  } catch (const Error& error) {
    std::string lost;
    for (Replacement& replacement : replacements) lost += replacement.goBack();
    throw Error(error.number(), error.source(), error.description() + lost);
  }
}

fs::path asideOf(fs::path target, int number) {
  return target += number == 1 ? ".bad" : ".bad" + std::to_string(number);
}

}  // namespace

void useDisk(Disk* disk) {
  usedDisk = disk;
}

Disk* diskInUse() {
  return usedDisk;
}

void writeWholeFile(const fs::path& path, std::string_view bytes) {
  writeWholeFiles({{path, bytes}});
}

/// A full disk, a folder in the way and the like are met before the first file takes its name.
void writeWholeFiles(std::initializer_list<WholeFile> files) {
  std::list<Replacement> replacements;
  for (const WholeFile& file : files)
    replacements.emplace_back(replaceableTarget(file.path), file.path).write(file.bytes);
  takeNames(replacements);
  for (const Replacement& replacement : replacements) replacement.keepName();
}

fs::path nameAside(const fs::path& path) {
  const fs::path target = replaceableTarget(path);
  const auto isTaken = [&target](const fs::path& aside) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(aside, ignored)) && !isSecondName(aside, target);
  };
  int number = 1;
  while (isTaken(asideOf(target, number))) ++number;
  return asideOf(target, number);
}

void keepAside(const fs::path& path) {
  const fs::path target = replaceableTarget(path);
  std::error_code failed;
  int number = 0;
  do {
    failed = keepAs(asideOf(target, ++number), target);
  } while (failed == std::errc::file_exists);
  if (failed == std::errc::no_such_file_or_directory) return;
  // Its mode, which the new file would take over, would keep that from being read, too.
  if (!failed && fs::exists(target, failed) && !canBeRead(target)) fs::remove(target, failed);
  if (failed) throw fileError(pathAccess, "Cannot keep", path, failed);
  // A link that leads nowhere would not be followed.
  if (fs::is_symlink(path, failed) && !fs::exists(target, failed)) createExclusively(target);
}

}  // namespace tracewell
