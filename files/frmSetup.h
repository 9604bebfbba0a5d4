// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// The status report: the template "default.sit" with the values of the setup table filled in. The
/// template is read once, so each further opening inserts the values again, before the old ones.
class frmSetup : public Window {
 public:
  explicit frmSetup(frmDSO& main);

  TextBox txtSetup{*this, "txtSetup"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdSave{*this, "cmdSave", "Save"};
  Button cmdPrint{*this, "cmdPrint", "Print"};

  void mnbConf_Click();

 private:
  void Form_Load();
  void Form_Activate();
  void tellOfBrackets();
  void cmdSave_Click();

  frmDSO& main_;
};

}  // namespace tracewell
