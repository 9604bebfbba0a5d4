// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"

#include "ShownReplies.h"
#include "Waiting.h"

namespace tracewell {

std::string withoutLineEnd(const std::string& text) {
  return text.substr(0, text.find_last_not_of("\r\n") + 1);
}

CommandLine::CommandLine(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog)
    : main_(main), exchange_(exchange), errorLog_(errorLog) {
  main.txtMsg.trust = [&main] { return isReplyUnsure(main) ? Trust::unread : Trust::holds; };
}

void CommandLine::txtTest_KeyDown(int code) {
  if (code == TextBox::enterKey) send();
}

void CommandLine::cmdTest_Click() {
  send();
}

bool CommandLine::isOneCommand(const std::string& text) const {
  if (text.find_first_of("\r\n") == std::string::npos) return true;
  main_.status.tell(StatusLine::failed, [](const Words& words) {
    return words.say("Not sent: the text has more than one line");
  });
  return false;
}

void CommandLine::send() {
  const std::string command = withoutLineEnd(main_.txtTest.text());
  if (command.empty() || !isOneCommand(command)) return;
  try {
    main_.txtMsg.text = "";
    const ShortTimeOut shortTimeOut(main_.state, exchange_);
    showReply(main_, exchange_.sendTyped(command));
  } catch (const Error& error) {
    errorLog_.ErrLog(error, error.source());
  }
}

}  // namespace tracewell
