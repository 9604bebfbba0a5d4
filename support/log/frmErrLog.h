// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// The error log's window. The log lives in its text box; the file "dso.err" is read when the
/// window loads, its last part if it is long, and written only by Close: of a long one the newest
/// half of that. What could not be read is kept aside then.
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

 private:
  void Form_Load();
  void cmdClear_Click();
  void cmdClose_Click();

  frmDSO& main_;
  /// The file held more than the text box.
  bool isCut_ = false;
};

}  // namespace tracewell
