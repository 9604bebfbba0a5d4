// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmTrig.h"

#include <array>

#include "Inquiry.h"
#include "Numbers.h"
#include "SettingsQueries.h"
#include "ShownReplies.h"
#include "WaitingNotice.h"

namespace tracewell {
namespace {

/// In the order of the boxes.
constexpr std::array advancedSettings = {Setting::advancedMode, Setting::advancedType,
                                         Setting::advancedEvent, Setting::advancedLevel,
                                         Setting::advancedDelay};

}  // namespace

frmTrig::frmTrig(frmDSO& main, CommandExchange& exchange, Acquisition& acquisition,
                 SettingsBurst& burst)
    : SettingsDialog("frmTrig", "Trigger", main, acquisition), exchange_(exchange), burst_(burst) {
  cbTrig(0).items = {"1", "2", "EXT", "Line"};
  cbTrig(1).items = {"Auto Level", "Auto", "Normal", "Single"};
  cbTrig(2).items = {"+", "-"};
  cbTrig(3).items = {"AC", "DC"};
  cbTrig(4).items = {"Off", "LF", "HF"};
  cbTrig(5).items = {"Off", "On"};
  cbTrigAdv(0).items = {"TTL", "ECL", "USR"};
  cbTrigAdv(1).items = {"Time", "Event "};
  fmAdv.enabled = false;
  formActivate = [this] { Form_Activate(); };
  for (ComboBox& box : cbTrig) unanswered_.watch(box);
  for (ComboBox& box : cbTrigAdv) unanswered_.watch(box);
  for (TextBox& box : txtTrigAdv) unanswered_.watch(box);
  for (ComboBox& box : cbTrig) box.click = [this, &box] { cbTrig_Click(box.index()); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmTrig::cmdTrig_Click() {
  if (burst_.isSending(SetupTable::trigger, caption) ||
      burst_.isSending(SetupTable::advancedTrigger, caption))
    return;
  edit(
      Fetching::stops, [this] { fill(); }, [this] { sendSettings(); });
}

void frmTrig::fill() {
  const WaitingNotice notice(main_);
  readSettings();
  if (isAdvanced())
    readAdvancedSettings();
  else
    showStoredAdvancedSettings();
}

void frmTrig::sendSettings() {
  burst_.writeAndVerify(caption, TrigQuery, SetupTable::trigger, 0);
  if (sendsAdvanced_)
    burst_.writeAndVerify(fmAdv.caption, TrigAdvQuery, SetupTable::advancedTrigger, 0);
}

/// Setting a box runs its click, so the instrument's values go into the table too.
void frmTrig::readSettings() {
  Inquiry inquiry(exchange_.inquiries(), caption, Inquiry::Of::questions, cbTrig.size());
  for (int i = 0; i < cbTrig.size(); ++i) {
    inquiry.next();
    const std::string query(TrigQuery[static_cast<std::size_t>(i)]);
    const std::string reply = exchange_.SendDSOCmd(query + "?");
    echoReply(main_, reply);
    cbTrig(i).listIndex = indexOf(reply, SetupTable::trigger, i);
    unanswered_.note(cbTrig(i), isWholeNumber(reply));
  }
}

void frmTrig::readAdvancedSettings() {
  Inquiry inquiry(exchange_.inquiries(), fmAdv.caption, Inquiry::Of::questions,
                  static_cast<int>(TrigAdvQuery.size()));
  auto query = TrigAdvQuery.begin();
  const auto askNext = [&] {
    inquiry.next();
    return exchange_.SendDSOCmd(std::string(*query++) + "?");
  };
  for (ComboBox& box : cbTrigAdv) {
    const std::string reply = askNext();
    box.listIndex = indexOf(reply, SetupTable::advancedTrigger, box.index());
    unanswered_.note(box, isWholeNumber(reply));
  }
  for (TextBox& box : txtTrigAdv) {
    box.text = askNext();
    unanswered_.note(box, !box.text().empty());
  }
}

/// The instrument is not asked. Where they cannot be chosen they say nothing of it.
void frmTrig::showStoredAdvancedSettings() {
  int column = SetupTable::firstValue;
  auto setting = advancedSettings.begin();
  for (ComboBox& box : cbTrigAdv) {
    box.listIndex = main_.gridMeasure.number(SetupTable::advancedTrigger, column++);
    unanswered_.note(box, [this, &box, its = *setting++] {
      return !fmAdv.enabled() || main_.known.number(its) == box.listIndex();
    });
  }
  for (TextBox& box : txtTrigAdv) {
    box.text = main_.gridMeasure.text(SetupTable::advancedTrigger, column++);
    unanswered_.note(box, [this, &box, its = *setting++] {
      const std::optional<double> typed = finiteNumber(box.text());
      return !fmAdv.enabled() || (typed && main_.known.number(its) == typed);
    });
  }
}

/// The instrument's number, or the stored one if it gave none.
std::int16_t frmTrig::indexOf(const std::string& reply, int row, int value) const {
  return isNumeric(reply) ? toInt16(reply)
                          : main_.gridMeasure.number(row, SetupTable::columnOf(value));
}

void frmTrig::Form_Activate() {
  for (int i = 0; i < cbTrig.size(); ++i)
    cbTrig(i).listIndex = main_.gridMeasure.number(SetupTable::trigger, SetupTable::columnOf(i));
  outcome = Outcome::cancelled;
}

void frmTrig::cbTrig_Click(int box) {
  sendsAdvanced_ = box == modeBox && isAdvanced();
  if (box == modeBox) {
    fmAdv.enabled = isAdvanced();
    showMarks();
  }
  main_.gridMeasure.setText(SetupTable::trigger, SetupTable::columnOf(box),
                            std::to_string(cbTrig(box).listIndex()));
}

void frmTrig::cmdOK_Click() {
  outcome = Outcome::accepted;
  hide();
  main_.refresh();
}

}  // namespace tracewell
