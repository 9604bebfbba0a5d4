// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "Acquisition.h"
#include "InstrumentState.h"
#include "SettingsBurst.h"
#include "TriggerMarker.h"
#include "frmChDiv.h"
#include "frmChannel.h"

namespace tracewell {

/// What belongs to a channel: display box, position slide, channel dialog, volts/div picker. The
/// two channels are alike but for their positions, which channel 2 keeps in whole divisions.
class ChannelControls {
 public:
  ChannelControls(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                  InstrumentState& instrument, Acquisition& acquisition, SettingsBurst& burst,
                  frmChannel& channelDialog, frmChDiv& picker);

  void cbCh1_Click() { showChannel(channel1_); }
  void cbCh2_Click() { showChannel(channel2_); }

  /// While dragging only the caption follows; nothing is sent.
  void slideCH1_PointerValueChanged() { showPosition(channel1_); }
  void slideCH2_PointerValueChanged() { showPosition(channel2_); }
  /// Sends the offset, redraws the record that is held, and resumes the acquisition, whether it ran
  /// or not.
  void slideCH1_PointerValueCommitted() { commitPosition(channel1_); }
  void slideCH2_PointerValueCommitted() { commitPosition(channel2_); }

  /// Leaves the acquisition running meanwhile, and running afterwards in every case.
  void cmdCh1_Click() { editSettings(channel1_); }
  void cmdCh2_Click() { editSettings(channel2_); }

  void cmdChannel1_Click() { pickScale("1"); }
  void cmdChannel2_Click() { pickScale("2"); }

 private:
  struct Channel {
    int number;
    CheckBox& display;
    Slide& slide;
    ValueLabel& scale;
    Knob& knob;
    MenuEntry& menuEntry;
    std::string& record;
    const std::array<std::string_view, 5>& queries;
    std::int16_t setupRow;
    ScaleKnob kind;
  };

  void showChannel(const Channel& channel);
  void showPosition(const Channel& channel);
  void commitPosition(const Channel& channel);
  void keepPosition(const Channel& channel);
  void redraw(const Channel& channel, std::int16_t shift);
  void editSettings(const Channel& channel);
  void readSettings(const Channel& channel);
  void pickScale(const char* channelNumber);
  template <class Step>
  void logged(const std::string& tag, Step step);

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  InstrumentState& instrument_;
  Acquisition& acquisition_;
  SettingsBurst& burst_;
  frmChannel& channelDialog_;
  frmChDiv& picker_;
  Channel channel1_;
  Channel channel2_;
};

}  // namespace tracewell
