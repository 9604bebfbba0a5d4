// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmErrLog.h"

#include "Files.h"

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
  try {
    txtErrLog.text = readWholeFile(services().programFolder / logFile);
  } catch (const Error&) {
    // No log yet, or none that can be read: a new one begins.
    txtErrLog.text = "";
  }
}

void frmErrLog::lblDSOCmd_DblClick() {
  showModal();
}

void frmErrLog::cmdClear_Click() {
  txtErrLog.text = "";
}

void frmErrLog::cmdClose_Click() {
  writeWholeFile(services().programFolder / logFile, txtErrLog.text());
  hide();
  main_.refresh();
}

}  // namespace tracewell
