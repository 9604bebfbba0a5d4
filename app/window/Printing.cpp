// SPDX-License-Identifier: GPL-3.0-or-later
#include "Printing.h"

namespace tracewell {

bool printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print) {
  main.status.withdraw(StatusLine::happened);
  if (!print(main.services().printer)) return false;
  main.status.tell(StatusLine::happened, [](const Words& words) { return words.say("Printed"); });
  return true;
}

}  // namespace tracewell
