// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmErrLog.h"

#include "Files.h"
#include "KeptFiles.h"

namespace tracewell {
namespace {

/// As much as leaves a log that was cut room to grow, so that the next run takes it whole.
std::string newestLines(const std::string& log) {
  constexpr std::size_t most = fileLimit::errorLog / 2;
  if (log.size() <= most) return log;
  const std::size_t end = log.find('\n', log.size() - most - 1);
  return end == std::string::npos ? "" : log.substr(end + 1);
}

}  // namespace

frmErrLog::frmErrLog(frmDSO& main)
    : Window("frmErrLog", "Error Log", main.services()), main_(main) {
  formLoad = [this] { Form_Load(); };
  cmdClear.click = [this] { cmdClear_Click(); };
  cmdClose.click = [this] { cmdClose_Click(); };
}

void frmErrLog::Form_Load() {
  const std::filesystem::path path = services().programFolder / errorLogFile;
  try {
    FileEnd log = readFileEnd(path, fileLimit::errorLog);
    isCut_ = !log.isWhole;
    // From the beginning of a line on.
    if (isCut_) log.bytes.erase(0, log.bytes.find('\n') + 1);
    txtErrLog.text = std::move(log.bytes);
    if (isCut_) noteFileToKeep(main_, path);
  } catch (const Error& error) {
    // No log yet, or none that can be read: a new one begins.
    txtErrLog.text = "";
    if (error.number() != fileNotFound) noteFileToKeep(main_, path);
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
  main_.NewLogLines = count;
  const std::string number = std::to_string(count);
  main_.cmdNewErrors.caption = services().words.say("Error log: %1 new", {number});
  main_.cmdNewErrors.visible = count > 0;
}

void frmErrLog::cmdClear_Click() {
  txtErrLog.text = "";
}

void frmErrLog::cmdClose_Click() {
  const std::filesystem::path path = services().programFolder / errorLogFile;
  keepNotedFile(main_, path);
  writeWholeFile(path, isCut_ ? newestLines(txtErrLog.text()) : txtErrLog.text());
  hide();
  main_.refresh();
}

}  // namespace tracewell
