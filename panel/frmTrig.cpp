// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmTrig.h"

#include <optional>

#include "Inquiry.h"
#include "Numbers.h"
#include "SettingsQueries.h"
#include "WaitingNotice.h"

namespace tracewell {

frmTrig::frmTrig(frmDSO& main, CommandExchange& exchange, Acquisition& acquisition,
                 SettingsBurst& burst)
    : Window("frmTrig", "Trigger", main.services()),
      main_(main),
      exchange_(exchange),
      acquisition_(acquisition),
      burst_(burst) {
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
  cmdCancel.click = [this] {
    tag = "0";
    hide();
  };
}

void frmTrig::cmdTrig_Click() {
  if (burst_.isSending(SetupTable::trigger, caption) ||
      burst_.isSending(SetupTable::advancedTrigger, caption))
    return;
  acquisition_.StopAcq();
  {
    const WaitingNotice notice(main_);
    readSettings();
    readAdvancedSettings();
  }
  showModal();
  if (tag != "0") burst_.writeAndVerify(caption, TrigQuery, SetupTable::trigger, 0);
  if (tag == "2")
    burst_.writeAndVerify(fmAdv.caption, TrigAdvQuery, SetupTable::advancedTrigger, 0);
  acquisition_.runAcquisition();
}

/// Setting a box runs its click, so the instrument's values go into the table, too.
void frmTrig::readSettings() {
  Inquiry inquiry(exchange_.inquiries(), caption, Inquiry::Of::questions, cbTrig.size());
  for (int i = 0; i < cbTrig.size(); ++i) {
    inquiry.next();
    const std::string query(TrigQuery[static_cast<std::size_t>(i)]);
    const std::string reply = exchange_.SendDSOCmd(query + "?");
    echoLine(main_, reply);
    cbTrig(i).listIndex = indexOf(reply, SetupTable::trigger, 2 + i);
    unanswered_.note(cbTrig(i), isNumeric(reply));
  }
}

void frmTrig::readAdvancedSettings() {
  std::optional<Inquiry> inquiry;
  if (isAdvanced())
    inquiry.emplace(exchange_.inquiries(), fmAdv.caption, Inquiry::Of::questions, 5);
  for (int i = 0; i < 5; ++i) {
    if (inquiry) inquiry->next();
    const std::string query(TrigAdvQuery[static_cast<std::size_t>(i)]);
    const std::string reply = inquiry ? exchange_.SendDSOCmd(query + "?") : "";
    if (i < 2) {
      cbTrigAdv(i).listIndex = indexOf(reply, SetupTable::advancedTrigger, 2 + i);
      unanswered_.note(cbTrigAdv(i), !inquiry || isNumeric(reply));
    } else {
      TextBox& box = txtTrigAdv(i - 2);
      box.text = inquiry ? reply : main_.gridMeasure.text(SetupTable::advancedTrigger, 2 + i);
      unanswered_.note(box, !inquiry || !reply.empty());
    }
  }
}

/// The instrument's number, or the stored one where it gave none.
std::int16_t frmTrig::indexOf(const std::string& reply, int row, int column) const {
  return isNumeric(reply) ? toInt16(reply) : main_.gridMeasure.number(row, column);
}

void frmTrig::Form_Activate() {
  for (int i = 0; i < cbTrig.size(); ++i)
    cbTrig(i).listIndex = main_.gridMeasure.number(SetupTable::trigger, 2 + i);
  tag = "0";
}

void frmTrig::cbTrig_Click(int box) {
  outcome_ = box == 1 && isAdvanced() ? 2 : 1;
  if (box == 1) fmAdv.enabled = isAdvanced();
  main_.gridMeasure.setText(SetupTable::trigger, 2 + box, std::to_string(cbTrig(box).listIndex()));
}

void frmTrig::cmdOK_Click() {
  tag = std::to_string(outcome_);
  hide();
  main_.refresh();
}

}  // namespace tracewell
