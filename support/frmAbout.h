// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "Lists.h"
#include "frmDSO.h"

namespace tracewell {

/// The picture of the product and the version.
class frmAbout : public Window {
 public:
  explicit frmAbout(frmDSO& main);

  PictureBox pictureAbout{*this, "pictureAbout"};
  ValueLabel lblVersion{*this, "lblVersion", "Tracewell " TRACEWELL_VERSION};
  ValueLabel lblLicence{*this, "lblLicence", "GNU General Public License, version 3 or later"};
  Button cmdOK{*this, "cmdOK", "OK"};

  void mnbAbout_Click();

 private:
  void Form_Load();
};

}  // namespace tracewell
