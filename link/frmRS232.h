// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// The RS-232 dialog: edits row 0 of the setup table and the port's settings.
class frmRS232 : public Window {
 public:
  explicit frmRS232(frmDSO& main);

  ControlArray<Label> lblRS232{
      *this, "lblRS232", {"Baud Rate :", "Data Bits :", "Stop Bits :", "Parity :", "Port :"}};
  /// Baud rate, data bits, stop bits, parity, port number, as in the setup table.
  ControlArray<ComboBox> cbRS232{*this, "cbRS232", 5};
  /// Which device the port number means, and what stands in its way.
  ValueLabel lblDevice{*this, "lblDevice", ""};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  void mnbRS232_Click();

 private:
  void listPorts();
  void showDevice(const std::string& typed);
  std::string deviceAndState(std::int16_t number) const;
  void cmdOK_Click();
  void cmdCancel_Click();

  frmDSO& main_;
};

}  // namespace tracewell
