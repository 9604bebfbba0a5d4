// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelMath.h"

#include "KnownScales.h"

namespace tracewell {
void ChannelMath::cbMath_Click() {
  const std::int16_t entry = main_.cbMath.listIndex();
  if (entry == ComboBox::noEntry) return;
  exchange_.SendDSOCmd(std::string(mathCommands.at(static_cast<unsigned>(entry))));
  if (exchange_.wasSent()) main_.MathEntry = entry;
  main_.cbMath.isUnread = main_.MathEntry != entry;
  main_.graphDSO.notifyChanged();
}

}  // namespace tracewell
