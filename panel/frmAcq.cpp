// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmAcq.h"

#include <array>

#include "SettingsQueries.h"
#include "ShownReplies.h"
#include "Waiting.h"

namespace tracewell {
namespace {

/// In the order of the boxes.
constexpr std::array acquireSettings = {Setting::acquireMode, Setting::acquireAverage,
                                        Setting::acquireLength};

}  // namespace

frmAcq::frmAcq(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
               Acquisition& acquisition, Captions& captions)
    : SettingsDialog("frmAcq", "Acquisition", main, acquisition),
      exchange_(exchange),
      errorLog_(errorLog),
      captions_(captions) {
  for (ComboBox* box : boxes()) unanswered_.watch(*box);
  // Set at loading only: a Cancel after an OK sends the row again.
  formLoad = [this] { outcome = Outcome::cancelled; };
  cbMode.click = [this] { cbMode_Click(); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmAcq::cmdAcq_Click() {
  try {
    edit(
        Fetching::stops, [this] { showSettings(); }, [this] { sendSettings(); });
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdAcq_Click : ");
  }
}

/// The instrument is not asked.
void frmAcq::showSettings() {
  int column = SetupTable::firstValue;
  auto setting = acquireSettings.begin();
  for (ComboBox* box : boxes()) {
    box->listIndex = main_.gridMeasure.number(SetupTable::acquire, column++);
    unanswered_.note(*box, [this, box, its = *setting++] {
      return box->listIndex() >= 0 && main_.known.number(its) == box->listIndex();
    });
  }
}

void frmAcq::sendSettings() {
  const ShortTimeOut shortTimeOut(main_.state, exchange_);
  main_.txtMsg.text = "";
  for (std::size_t i = 0; i < AcqQuery.size(); ++i) {
    const int column = SetupTable::columnOf(static_cast<int>(i));
    const std::string command =
        std::string(AcqQuery[i]) + " " + main_.gridMeasure.text(SetupTable::acquire, column);
    exchange_.SendDSOCmd(command);
    echoLine(main_, command);
  }
}

void frmAcq::cbMode_Click() {
  const bool isAveraging = cbMode.text() == "Average";
  cbAverage.visible = isAveraging;
  lblAverage.visible = isAveraging;
}

void frmAcq::cmdOK_Click() {
  int column = SetupTable::firstValue;
  for (const ComboBox* box : boxes())
    main_.gridMeasure.setText(SetupTable::acquire, column++, std::to_string(box->listIndex()));
  outcome = Outcome::accepted;
  hide();
  main_.refresh();
}

void frmAcq::cmdCancel_Click() {
  captions_.DumpCaptions(*this);
  hide();
  main_.refresh();
}

}  // namespace tracewell
