// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmFMeasure.h"

namespace tracewell {

frmFMeasure::frmFMeasure(frmDSO& main)
    : Window("frmFMeasure", "Frequence Measure", main.services()), main_(main) {
  formActivate = [this] { Form_Activate(); };
  cmdSelectAll.click = [this] {
    for (CheckBox& box : cbF) box.value = 1;
  };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmFMeasure::Form_Activate() {
  outcome = Outcome::cancelled;
  cbChan.text = std::to_string(FMeasChan);
  for (CheckBox& box : cbF) {
    const int column = SetupTable::columnOf(box.index());
    box.value = main_.gridMeasure.text(SetupTable::voltageChannel1, column) == "1" ? 1 : 0;
  }
}

void frmFMeasure::cmdOK_Click() {
  for (const CheckBox& box : cbF) {
    const int column = SetupTable::columnOf(box.index());
    const std::string flag = std::to_string(box.value());
    main_.gridMeasure.setText(SetupTable::quickMeasurement, column, flag);
    main_.gridMeasure.setText(SetupTable::voltageChannel1, column, flag);
  }
  FMeasChan = cbChan.text() == "2" ? 2 : 1;
  outcome = Outcome::accepted;
  hide();
}

}  // namespace tracewell
