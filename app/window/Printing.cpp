// SPDX-License-Identifier: GPL-3.0-or-later
#include "Printing.h"

namespace tracewell {

bool printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print) {
  main.status.withdraw(StatusLine::happened);
  if (!print(main.services().printer)) return false;
  main.status.tell(
      StatusLine::happened, [file = main.services().printer.file()](const Words& words) {
        return file.empty() ? words.say("Printed") : words.say("Printed to %1", {file});
      });
  return true;
}

}  // namespace tracewell
