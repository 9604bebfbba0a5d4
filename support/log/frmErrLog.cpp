// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmErrLog.h"

#include "Files.h"
#include "KeptFiles.h"

namespace tracewell {
namespace {

/// As much as leaves a log that was cut room to grow, so that the next run takes it whole.
std::string newestLines(const std::string& log) {
  constexpr std::size_t most = fileLimit::errorLog / 2;
  const std::size_t end = log.find('\n', log.size() - most);
  return end == std::string::npos ? "" : log.substr(end + 1);
}

}  // namespace

frmErrLog::frmErrLog(frmDSO& main)
    : Window("frmErrLog", "Error Log", main.services()), main_(main) {
  formLoad = [this] { Form_Load(); };
  cmdClear.click = [this] { cmdClear_Click(); };
  cmdClose.click = [this] { cmdClose_Click(); };
}

std::filesystem::path frmErrLog::path() const {
  return services().programFolder / errorLogFile;
}

void frmErrLog::Form_Load() {
  readLog();
  txtErrLog.text = known_;
}

void frmErrLog::readLog() {
  known_.clear();
  knownSize_ = 0;
  try {
    FileEnd log = readFileEnd(path(), fileLimit::errorLog);
    known_ = log.isWhole() ? std::move(log.bytes) : newestLines(log.bytes);
    knownSize_ = log.size;
    if (known_.size() < knownSize_) noteFileToKeep(main_, path());
  } catch (const Error& error) {
    // No log yet, or none that can be read: a new one begins.
    if (error.number() != fileNotFound) noteFileToKeep(main_, path());
  }
}

void frmErrLog::lblDSOCmd_DblClick() {
  showNewLines(0);
  const Words& words = services().words;
  caption = words.say("Error Log");
  cmdClear.caption = words.say("Clear");
  cmdClose.caption = words.say("Close");
  showModal();
}

void frmErrLog::showNewLines(int count) {
  newLogLines = count;
  const std::string number = std::to_string(count);
  main_.cmdNewErrors.caption = services().words.say("Error log: %1 new", {number});
  main_.cmdNewErrors.visible = count > 0;
}

void frmErrLog::cmdClear_Click() {
  txtErrLog.text = "";
  isCleared_ = true;
}

void frmErrLog::cmdClose_Click() {
  if (!isAsKnown()) joinWhatOthersWrote();
  write();
  hide();
  main_.refresh();
}

/// So it is, too, where there is no file any more.
bool frmErrLog::isAsKnown() const {
  try {
    const FileEnd log = readFileEnd(path(), known_.size());
    return log.size == knownSize_ && log.bytes == known_;
  } catch (const Error& error) {
    return error.number() == fileNotFound;
  }
}

/// Puts the lines of this run behind those that the file has now. A cleared log stays so: the user
/// meant the lines that it showed, and the file with the others is kept aside.
void frmErrLog::joinWhatOthersWrote() {
  const std::string text = txtErrLog.text();
  if (isCleared_ || !text.starts_with(known_)) {
    noteFileToKeep(main_, path());
    main_.status.tell(StatusLine::happened, changedMeanwhile(path(), nameAside(path())));
    return;
  }
  const std::string added = text.substr(known_.size());
  readLog();
  txtErrLog.text = known_ + added;
  if (known_.empty()) return;
  main_.status.tell(StatusLine::happened, [](const Words& words) {
    return words.say("%1 has lines of another program too; they are in the log now",
                     {errorLogFile});
  });
}

void frmErrLog::write() {
  keepNotedFile(main_, path());
  writeWholeFile(path(), txtErrLog.text());
  known_ = txtErrLog.text();
  knownSize_ = known_.size();
  isCleared_ = false;
}

}  // namespace tracewell
