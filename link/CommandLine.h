// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandExchange.h"

namespace tracewell {

/// A command that was copied whole from elsewhere brings its line end.
std::string withoutLineEnd(const std::string& text);

/// The command line of the main window, with its reply box.
class CommandLine {
 public:
  CommandLine(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog);

  /// Enter sends the text of the line; an empty line sends nothing.
  void txtTest_KeyDown(int code);
  void cmdTest_Click();

  /// A text with a line end inside it is several commands, of which the reply box could show one
  /// answer. It is not sent; the status line says so.
  bool isOneCommand(const std::string& text) const;

 private:
  void send();

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
};

}  // namespace tracewell
