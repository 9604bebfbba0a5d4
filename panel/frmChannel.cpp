// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmChannel.h"

#include "Inquiry.h"
#include "Numbers.h"
#include "WaitingNotice.h"

namespace tracewell {
namespace {

constexpr int boxCount = 3;

/// Selects the option that the reply names, or marks the group, of which none may be selected yet.
void showOption(Frame& group, ControlArray<OptionButton>& options, const std::string& reply) {
  if (isNumeric(reply)) options(toInt16(reply)).value = true;
  group.isUnread = !isNumeric(reply);
}

}  // namespace

frmChannel::frmChannel(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                       Acquisition& acquisition, SettingsBurst& burst, InstrumentState& instrument)
    : Window("frmChannel", "Channel", main.services()),
      main_(main),
      exchange_(exchange),
      errorLog_(errorLog),
      acquisition_(acquisition),
      burst_(burst),
      instrument_(instrument) {
  formActivate = [this] { tag = "0"; };
  for (OptionButton& option : obCoupling) option.click = [this] { fmCoupling.isUnread = false; };
  for (OptionButton& option : obProbe) option.click = [this] { fmProbe.isUnread = false; };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmChannel::editSettings(const Channel& channel) {
  try {
    readSettings(channel);
    showModal();
    if (tag == "1")
      burst_.writeAndVerify(channel.menuEntry.caption, channel.queries, channel.setupRow, 1);
    acquisition_.RunAcq();
    instrument_.readScale(channel.stem() + "SCAL?", channel.kind, channel.scale, channel.knob);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdCh" + std::to_string(channel.number) + "_Click : ");
  }
}

void frmChannel::readSettings(const Channel& channel) {
  const WaitingNotice notice(main_);
  Inquiry inquiry(exchange_.inquiries(), channel.menuEntry.caption, Inquiry::Of::questions, 5);
  setupRow_ = channel.setupRow;
  int place = 0;
  for (const std::string_view query : channel.queries) {
    inquiry.next();
    show(place++, exchange_.SendDSOCmd(std::string(query) + "?"));
  }
  caption = channel.menuEntry.caption();
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
    main_.gridMeasure.setText(setupRow_, 2 + i, cbCh(i).isChecked() ? "1" : "0");
  keepSelected(obCoupling, 5);
  keepSelected(obProbe, 6);
  tag = "1";
  hide();
}

void frmChannel::keepSelected(ControlArray<OptionButton>& options, int column) {
  for (const OptionButton& option : options)
    if (option.value())
      main_.gridMeasure.setText(setupRow_, column, std::to_string(option.index()));
}

void frmChannel::cmdCancel_Click() {
  tag = "0";
  hide();
}

}  // namespace tracewell
