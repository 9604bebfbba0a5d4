// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "Dials.h"
#include "SettingsBurst.h"
#include "SettingsDialog.h"

namespace tracewell {

/// The display dialog: edits row 7 of the setup table. After OK both brightnesses are sent, each
/// once and read back; the waveform style stays a stored choice of the panel.
class frmDisplay : public SettingsDialog {
 public:
  frmDisplay(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog, Acquisition& acquisition,
             SettingsBurst& burst);

  Slide slideDataBrightness{*this, "slideDataBrightness", "Data Brightness : ", {0, 100, 1}};
  ValueLabel lblDataBright{*this, "lblDataBright", "0"};
  Slide slideGraticuleBrightness{
      *this, "slideGraticuleBrightness", "Graticule Brightness : ", {0, 100, 1}};
  ValueLabel lblGraticuleBright{*this, "lblGraticuleBright", "0"};
  Frame fmWaveForm{*this, "fmWaveForm", "WaveForm"};
  OptionButton obVector{*this, "obVector", "Vector", "style"};
  OptionButton obDot{*this, "obDot", "Dot", "style"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "cancel"};

  void cmdDisplay_Click();

 private:
  void readSettings();
  void readBrightness(Slide& slide, std::size_t setting);
  void sendBrightness();
  void cmdOK_Click();
  void cmdCancel_Click();

  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  SettingsBurst& burst_;
};

}  // namespace tracewell
