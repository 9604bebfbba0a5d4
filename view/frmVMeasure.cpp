// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmVMeasure.h"

#include <algorithm>

#include "MeasurementItems.h"

namespace tracewell {
namespace {

struct Cell {
  int row;
  int column;
};

Cell voltageCell(int box) {
  return {SetupTable::voltageRow(1 + box / voltageItems), SetupTable::columnOf(box % voltageItems)};
}

Cell timeCell(int box) {
  return {SetupTable::timeRow(1 + box / timeItems), SetupTable::columnOf(box % timeItems)};
}

void showFlag(const SetupTable& table, Cell cell, CheckBox& box) {
  box.value = table.text(cell.row, cell.column) == "1" ? 1 : 0;
}

void keepFlag(SetupTable& table, Cell cell, const CheckBox& box) {
  table.setText(cell.row, cell.column, std::to_string(box.value()));
}

}  // namespace

frmVMeasure::frmVMeasure(frmDSO& main, Captions& captions)
    : Window("frmVMeasure", "Voltage Measure", main.services()), main_(main), captions_(captions) {
  formActivate = [this] {
    outcome = Outcome::cancelled;
    showHint();
  };
  for (CheckBox& box : cbV) box.click = [this] { showHint(); };
  for (CheckBox& box : cbF) box.click = [this] { showHint(); };
  cmdSelectAll.click = [this] { setChannel(0, true); };
  cmdClearAll.click = [this] { setChannel(0, false); };
  cmdSelectAll2.click = [this] { setChannel(1, true); };
  cmdClearAll2.click = [this] { setChannel(1, false); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmVMeasure::showFlags() {
  for (CheckBox& box : cbV) showFlag(main_.gridMeasure, voltageCell(box.index()), box);
  for (CheckBox& box : cbF) showFlag(main_.gridMeasure, timeCell(box.index()), box);
}

int frmVMeasure::ticked() {
  const auto isTicked = [](const CheckBox& box) { return box.isChecked(); };
  return static_cast<int>(std::ranges::count_if(cbV, isTicked) +
                          std::ranges::count_if(cbF, isTicked));
}

void frmVMeasure::showHint() {
  const int cells = main_.lblMeasure.size();
  const int count = ticked();
  lblHint.caption =
      count <= cells ? ""
                     : services().words.say(
                           "%1 are chosen, and there is room for %2: the last cell shows the last.",
                           {std::to_string(count), std::to_string(cells)});
}

void frmVMeasure::setChannel(int channel, bool isChecked) {
  const std::int16_t value = isChecked ? 1 : 0;
  for (int i = 0; i < voltageItems; ++i) cbV(channel * voltageItems + i).value = value;
  for (int i = 0; i < timeItems; ++i) cbF(channel * timeItems + i).value = value;
}

void frmVMeasure::cmdOK_Click() {
  for (CheckBox& box : cbV) keepFlag(main_.gridMeasure, voltageCell(box.index()), box);
  for (CheckBox& box : cbF) keepFlag(main_.gridMeasure, timeCell(box.index()), box);
  outcome = Outcome::accepted;
  hide();
}

void frmVMeasure::cmdCancel_Click() {
  hide();
  captions_.DumpCaptions(*this);
}

}  // namespace tracewell
