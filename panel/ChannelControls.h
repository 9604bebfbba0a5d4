// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"

namespace tracewell {

/// A channel's display box and position slide. The two channels are alike but for their positions,
/// which channel 2 keeps in whole divisions.
class ChannelControls {
 public:
  ChannelControls(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                  Acquisition& acquisition)
      : main_(main), exchange_(exchange), errorLog_(errorLog), acquisition_(acquisition) {}

  void cbCh1_Click() { showChannel(main_.channels[0]); }
  void cbCh2_Click() { showChannel(main_.channels[1]); }

  /// While dragging only the caption follows; nothing is sent.
  void slideCH1_PointerValueChanged();
  void slideCH2_PointerValueChanged();
  /// Sends the offset, redraws the record that is held, and resumes the acquisition, whether it ran
  /// or not.
  void slideCH1_PointerValueCommitted() { commitPosition(main_.channels[0]); }
  void slideCH2_PointerValueCommitted() { commitPosition(main_.channels[1]); }

 private:
  void showChannel(Channel& channel);
  void commitPosition(Channel& channel);
  void redraw(Channel& channel, std::int16_t shift);

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
};

}  // namespace tracewell
