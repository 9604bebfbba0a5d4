// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmErrLog.h"

#include "Files.h"
#include "StatusLine.h"

namespace tracewell {
namespace {

constexpr const char* logFile = "dso.err";

}  // namespace

frmErrLog::frmErrLog(frmDSO& main)
    : Window("frmErrLog", "Error Log", main.services()), main_(main) {
  formLoad = [this] { Form_Load(); };
  cmdClear.click = [this] { cmdClear_Click(); };
  cmdClose.click = [this] { cmdClose_Click(); };
}

void frmErrLog::Form_Load() {
  const std::filesystem::path path = services().programFolder / logFile;
  try {
    FileEnd log = readFileEnd(path, fileLimit::errorLog);
    isFileToKeep_ = !log.isWhole;
    // From the beginning of a line on.
    if (!log.isWhole) log.bytes.erase(0, log.bytes.find('\n') + 1);
    txtErrLog.text = std::move(log.bytes);
  } catch (const Error& error) {
    // No log yet, or none that can be read: a new one begins.
    isFileToKeep_ = error.number() != fileNotFound;
    txtErrLog.text = "";
  }
  if (isFileToKeep_) sayKept(main_, path);
}

void frmErrLog::lblDSOCmd_DblClick() {
  showModal();
}

void frmErrLog::cmdClear_Click() {
  txtErrLog.text = "";
}

void frmErrLog::cmdClose_Click() {
  const std::filesystem::path path = services().programFolder / logFile;
  if (isFileToKeep_) keepAside(path);
  isFileToKeep_ = false;
  writeWholeFile(path, txtErrLog.text());
  hide();
  main_.refresh();
}

}  // namespace tracewell
