// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmChannel.h"

#include "Numbers.h"

namespace tracewell {
namespace {

constexpr int boxCount = 3;

/// Selects the option that the reply names, or marks the group, of which none may be selected yet.
void showOption(Frame& group, ControlArray<OptionButton>& options, const std::string& reply) {
  if (isNumeric(reply)) options(toInt16(reply)).value = true;
  group.isUnread = !isNumeric(reply);
}

}  // namespace

frmChannel::frmChannel(frmDSO& main)
    : Window("frmChannel", "Channel", main.services()), main_(main) {
  formActivate = [this] { tag = "0"; };
  for (OptionButton& option : obCoupling) option.click = [this] { fmCoupling.isUnread = false; };
  for (OptionButton& option : obProbe) option.click = [this] { fmProbe.isUnread = false; };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmChannel::show(int place, const std::string& reply) {
  if (place == boxCount) {
    showOption(fmCoupling, obCoupling, reply);
  } else if (place > boxCount) {
    showOption(fmProbe, obProbe, reply);
  } else {
    if (isNumeric(reply)) cbCh(place).value = toInt16(reply);
    cbCh(place).isUnread = !isNumeric(reply);
  }
}

void frmChannel::cmdOK_Click() {
  for (int i = 0; i < cbCh.size(); ++i)
    main_.gridMeasure.setText(setupRow, 2 + i, cbCh(i).isChecked() ? "1" : "0");
  keepSelected(obCoupling, 5);
  keepSelected(obProbe, 6);
  tag = "1";
  hide();
}

void frmChannel::keepSelected(ControlArray<OptionButton>& options, int column) {
  for (const OptionButton& option : options)
    if (option.value()) main_.gridMeasure.setText(setupRow, column, std::to_string(option.index()));
}

void frmChannel::cmdCancel_Click() {
  tag = "0";
  hide();
}

}  // namespace tracewell
