// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "Acquisition.h"
#include "CommandLine.h"
#include "Controls.h"
#include "Lists.h"

namespace tracewell {

/// The command console: the instrument's commands as a tree from the file "dso.cmd", each with a
/// description and a hint, and a line to edit and send them.
class frmCmd : public Window {
 public:
  frmCmd(frmDSO& main, ErrorLog& errorLog, Acquisition& acquisition, CommandLine& commandLine);

  Tree tvCmd{*this, "tvCmd"};
  Label lblCmd{*this, "lblCmd", "Command :"};
  TextBox txtCmd{*this, "txtCmd"};
  ValueLabel lblCmdHint{*this, "lblCmdHint", ""};
  ValueLabel lblDescription{*this, "lblDescription", ""};
  Button cmdRun{*this, "cmdRun", "Run"};
  Button cmdOK{*this, "cmdOK", "Close"};

  void cmdDSOcmd_Click();

 private:
  static constexpr std::size_t mostEntries = 100;

  void Form_Load();
  void readCommands();
  void tvCmd_NodeClick(int node);
  void explain();
  void txtCmd_KeyDown(int code);
  void cmdRun_Click();
  void RunConsoleCommand();

  frmDSO& main_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
  CommandLine& commandLine_;
  /// By entry; node n of the tree shows entry n - 1.
  std::array<std::string, mostEntries> CmdDesc;
  std::array<std::string, mostEntries> CmdHint;
  std::size_t chosenEntry_ = 0;
  /// The chosen node's command; none at first.
  std::optional<std::string> chosenCommand_;
};

}  // namespace tracewell
