// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShownReplies.h"

#include <algorithm>

namespace tracewell {
namespace {

/// Whoever shows something else in the box knows nothing of this.
bool areShown(const frmDSO& main) {
  return main.repliesInBox.text == main.txtMsg.text();
}

void note(frmDSO& main, const std::string& reply, const std::string& text) {
  if (!areShown(main)) main.repliesInBox = {};
  if (!reply.empty()) main.repliesInBox.numbers.push_back(main.services().port.lastReply());
  main.repliesInBox.text = text;
  main.txtMsg.text = text;
}

}  // namespace

void echoLine(frmDSO& main, const std::string& line) {
  note(main, "", main.txtMsg.text() + line + "\r\n");
  main.txtMsg.refresh();
}

void echoReply(frmDSO& main, const std::string& reply) {
  note(main, reply, main.txtMsg.text() + reply + "\r\n");
  main.txtMsg.refresh();
}

void showReply(frmDSO& main, const std::string& reply) {
  main.repliesInBox = {};
  note(main, reply, reply);
}

bool isReplyUnsure(const frmDSO& main) {
  return areShown(main) && std::ranges::any_of(main.repliesInBox.numbers, [&](int number) {
           return !main.services().port.isSure(number);
         });
}

}  // namespace tracewell
