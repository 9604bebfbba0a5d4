// SPDX-License-Identifier: GPL-3.0-or-later
#include "Printing.h"

namespace tracewell {

void printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print) {
  for (const auto topic : {StatusLine::happened, StatusLine::failed}) main.status.withdraw(topic);
  if (!print(main.services().printer)) return;
  main.status.tell(StatusLine::happened, [](const Words& words) { return words.say("Printed"); });
}

}  // namespace tracewell
