// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// The error log's window. The log lives in its text box; the file "dso.err" is read when the
/// window loads, and the whole text written only by Close. Of a long file the newest part is read,
/// and the file kept aside. Lines that another program has written meanwhile are taken over.
class frmErrLog : public Window {
 public:
  explicit frmErrLog(frmDSO& main);

  TextBox txtErrLog{*this, "txtErrLog"};
  Button cmdClear{*this, "cmdClear", "Clear"};
  Button cmdClose{*this, "cmdClose", "Close"};

  /// Also opened from the menu entry of its name.
  void lblDSOCmd_DblClick();
  /// Says in the main window how many lines nobody has seen yet.
  void showNewLines(int count);
  /// Lines that the log has got since it was last open.
  int newLogLines = 0;

 private:
  void Form_Load();
  void cmdClear_Click();
  void cmdClose_Click();
  std::filesystem::path path() const;
  void readLog();
  bool isAsKnown() const;
  void joinWhatOthersWrote();
  void write();

  frmDSO& main_;
  /// What the box had of the file when that was last read or written, and the file's size then.
  std::string known_;
  std::uintmax_t knownSize_ = 0;
  /// The user has cleared the log since the file was last read or written.
  bool isCleared_ = false;
};

}  // namespace tracewell
