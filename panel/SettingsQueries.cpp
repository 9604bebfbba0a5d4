// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsQueries.h"

namespace tracewell {

const std::array<std::string_view, 5> ChanQuery1 = {":CHAN1:DISP", ":CHAN1:INV", ":CHAN1:BWL",
                                                    ":CHAN1:COUP", ":CHAN1:PROB"};
const std::array<std::string_view, 5> ChanQuery2 = {":CHAN2:DISP", ":CHAN2:INV", ":CHAN2:BWL",
                                                    ":CHAN2:COUP", ":CHAN2:PROB"};
const std::array<std::string_view, 5>& channelQueries(int channel) {
  return channel == 1 ? ChanQuery1 : ChanQuery2;
}
const std::array<std::string_view, 3> AcqQuery = {":ACQ:MOD", ":ACQ:AVER", ":ACQ:LEN"};
const std::array<std::string_view, 6> TrigQuery = {":TRIG:SOUR", ":TRIG:MOD", ":TRIG:SLOP",
                                                   ":TRIG:COUP", ":TRIG:REJ", ":TRIG:NREJ"};
const std::array<std::string_view, 5> TrigAdvQuery = {
    ":TRIG:ADV:MOD", ":TRIG:ADV:TYP", ":TRIG:ADV:EVEN", ":TRIG:ADV:LEV", ":TRIG:ADV:DEL"};
const std::array<std::string_view, 3> BrightQuery = {"DISP:BRIG:DATA", "DISP:BRIG:GRAT",
                                                     "DISP:BRIG:WAV"};

}  // namespace tracewell
