// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelMath.h"

namespace tracewell {

void ChannelMath::cbMath_Click() {
  const std::int16_t entry = main_.cbMath.listIndex();
  if (entry == ComboBox::noEntry) return;
  exchange_.SendDSOCmd(std::string(mathCommands.at(static_cast<unsigned>(entry))));
}

}  // namespace tracewell
