// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelMath.h"

#include <array>

namespace tracewell {
namespace {

/// By list index. Unlike all other commands they begin without a colon.
constexpr std::array<const char*, 4> commands = {"CHAN1:MATH 1", "CHAN1:MATH 2", "CHAN2:MATH 2",
                                                 "CHAN1:MATH 0"};

}  // namespace

void ChannelMath::cbMath_Click() {
  const std::int16_t entry = main_.cbMath.listIndex();
  if (entry == ComboBox::noEntry) return;
  exchange_.SendDSOCmd(commands.at(static_cast<unsigned>(entry)));
  if (exchange_.wasSent()) main_.MathEntry = entry;
  main_.cbMath.isUnread = main_.MathEntry != entry;
  main_.graphDSO.notifyChanged();
}

}  // namespace tracewell
