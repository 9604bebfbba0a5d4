// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmChannel.h"

#include <algorithm>

#include "Inquiry.h"
#include "Numbers.h"
#include "SettingsQueries.h"
#include "WaitingNotice.h"

namespace tracewell {
namespace {

/// Places in the row and in the queries. The first three are boxes; the first one is not sent,
/// since the box in the main window sends it.
enum ChannelValue : int { displayOn, invertOn, bandwidthLimitOn, coupling, probe };

int rowOf(const Channel& channel) {
  return SetupTable::channelRow(channel.number);
}

}  // namespace

frmChannel::frmChannel(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                       Acquisition& acquisition, SettingsBurst& burst, InstrumentState& instrument)
    : SettingsDialog("frmChannel", "Channel", main, acquisition),
      exchange_(exchange),
      errorLog_(errorLog),
      burst_(burst),
      instrument_(instrument) {
  formActivate = [this] { outcome = Outcome::cancelled; };
  for (CheckBox& box : cbCh) unanswered_.watch(box);
  for (auto& [group, options] : {std::pair(&fmCoupling, &obCoupling), {&fmProbe, &obProbe}}) {
    unanswered_.watch(*group);
    for (OptionButton& option : *options)
      option.chosen = [this, group = group] { unanswered_.settle(*group); };
  }
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmChannel::editSettings(Channel& channel) {
  try {
    if (burst_.isSending(rowOf(channel), channel.menuEntry.caption)) return;
    // While its settings are sent the dialog may be opened for the other channel.
    edit(
        Fetching::goesOn, [&] { readSettings(channel); }, [&] { sendSettings(channel); });
    instrument_.readScale(channel.stem() + "SCAL?", channel.kind, channel.scale, channel.knob);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdCh" + std::to_string(channel.number) + "_Click : ");
  }
}

void frmChannel::sendSettings(const Channel& channel) {
  burst_.writeAndVerify(channel.menuEntry.caption, channelQueries(channel.number), rowOf(channel),
                        invertOn);
}

void frmChannel::readSettings(const Channel& channel) {
  const WaitingNotice notice(main_);
  Inquiry inquiry(exchange_.inquiries(), channel.menuEntry.caption, Inquiry::Of::questions, 5);
  setupRow_ = rowOf(channel);
  caption = channel.menuEntry.caption();
  int place = 0;
  for (const std::string_view query : channelQueries(channel.number)) {
    inquiry.next();
    show(place++, exchange_.SendDSOCmd(std::string(query) + "?"));
  }
}

void frmChannel::show(int place, const std::string& reply) {
  if (place == coupling) {
    showOption(fmCoupling, obCoupling, reply, place);
  } else if (place == probe) {
    showOption(fmProbe, obProbe, reply, place);
  } else {
    if (isNumeric(reply)) cbCh(place).value = toInt16(reply);
    const bool isState = isWholeNumber(reply) && (toInt16(reply) == 0 || toInt16(reply) == 1);
    unanswered_.note(cbCh(place), isState);
  }
}

/// Selects the option that the reply names, or marks the group. Where none is selected yet it is
/// the one of the setup, which OK would send.
void frmChannel::showOption(Frame& group, ControlArray<OptionButton>& options,
                            const std::string& reply, int place) {
  const auto isSelected = [](const OptionButton& option) { return option.value(); };
  if (isNumeric(reply))
    options(toInt16(reply)).value = true;
  else if (std::ranges::none_of(options, isSelected))
    selectKept(options, SetupTable::columnOf(place));
  unanswered_.note(group, isWholeNumber(reply));
}

void frmChannel::selectKept(ControlArray<OptionButton>& options, int column) {
  for (OptionButton& option : options)
    if (std::to_string(option.index()) == main_.gridMeasure.text(setupRow_, column))
      option.value = true;
}

void frmChannel::cmdOK_Click() {
  for (int i = 0; i < cbCh.size(); ++i)
    main_.gridMeasure.setText(setupRow_, SetupTable::columnOf(i), cbCh(i).isChecked() ? "1" : "0");
  keepSelected(obCoupling, SetupTable::columnOf(coupling));
  keepSelected(obProbe, SetupTable::columnOf(probe));
  outcome = Outcome::accepted;
  hide();
}

void frmChannel::keepSelected(ControlArray<OptionButton>& options, int column) {
  for (const OptionButton& option : options)
    if (option.value())
      main_.gridMeasure.setText(setupRow_, column, std::to_string(option.index()));
}

void frmChannel::cmdCancel_Click() {
  hide();
}

}  // namespace tracewell
