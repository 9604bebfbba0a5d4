// SPDX-License-Identifier: GPL-3.0-or-later
#include "Printing.h"

namespace tracewell {

void printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print) {
  main.status.withdraw(StatusLine::happened);
  if (!print(main.services().printer)) return;
  main.status.tell(StatusLine::happened, [](const Words& words) { return words.say("Printed"); });
}

}  // namespace tracewell
