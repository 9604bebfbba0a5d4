// SPDX-License-Identifier: GPL-3.0-or-later
#include "Channel.h"

#include "SettingsQueries.h"

namespace tracewell {

Channel Channel::of(frmDSO& main, int number) {
  if (number == 1)
    return {1,           main.cbCh1,  main.slideCH1, main.lblChan1,        main.knobChan1,
            main.mnbCh1, main.Ch1Raw, ChanQuery1,    SetupTable::channel1, ScaleKnob::Chan1};
  return {2,           main.cbCh2,  main.slideCH2, main.lblChan2,        main.knobChan2,
          main.mnbCh2, main.Ch2Raw, ChanQuery2,    SetupTable::channel2, ScaleKnob::Chan2};
}

}  // namespace tracewell
