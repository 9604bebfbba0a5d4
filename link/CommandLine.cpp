// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include "Waiting.h"

namespace tracewell {

void CommandLine::txtTest_KeyDown(int code) {
  if (code == TextBox::enterKey) send();
}

void CommandLine::cmdTest_Click() {
  send();
}

void CommandLine::send() {
  if (main_.txtTest.text().empty()) return;
  try {
    main_.txtMsg.text = "";
    const ShortTimeOut shortTimeOut(main_);
    main_.txtMsg.text = exchange_.SendDSOCmd(main_.txtTest.text());
  } catch (const Error& error) {
    errorLog_.ErrLog(error, error.source());
  }
}

}  // namespace tracewell
