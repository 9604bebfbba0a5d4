// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmCmd.h"

#include "CommandFile.h"
#include "Files.h"
#include "Numbers.h"
#include "Paused.h"

namespace tracewell {
namespace {

/// Accepts any query, and a command whose parameter is a whole number of zero or more.
bool isInRange(const std::string& command) {
  const std::size_t blank = command.find(' ');
  if (command.ends_with('?') || blank == std::string::npos) return true;
  const std::string parameter = command.substr(blank + 1);
  return isNumeric(parameter) && !parameter.starts_with('-') &&
         parameter.find('.') == std::string::npos;
}

/// Whether the line is that command, with or without a parameter.
bool isCommand(const std::string& line, const std::string& command) {
  return line == command || line.starts_with(command + " ");
}

}  // namespace

frmCmd::frmCmd(frmDSO& main, ErrorLog& errorLog, Acquisition& acquisition, CommandLine& commandLine)
    : Window("frmCmd", "KRM-410 Command List", main.services()),
      main_(main),
      errorLog_(errorLog),
      acquisition_(acquisition),
      commandLine_(commandLine) {
  formLoad = [this] { Form_Load(); };
  tvCmd.nodeClick = [this](int node) { tvCmd_NodeClick(node); };
  txtCmd.edited = [this] { explain(); };
  txtCmd.keyDown = [this](int code) { txtCmd_KeyDown(code); };
  cmdRun.click = [this] { cmdRun_Click(); };
  cmdOK.click = [this] { hide(); };
}

void frmCmd::cmdDSOcmd_Click() {
  const Paused paused(main_, acquisition_, caption);
  main_.refresh();
  showModal();
}

/// Logs a command list that cannot be used, and opens the console with what could be read: the user
/// can still type a command.
void frmCmd::Form_Load() {
  try {
    readCommands();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdDSOcmd_Click : ");
  }
}

void frmCmd::readCommands() {
  std::size_t entry = 0;
  int group = 0;
  const std::string list =
      readWholeFile(services().programFolder / "dso.cmd", fileLimit::commandList);
  for (const CommandEntry& line : readCommandEntries(list)) {
    if (entry >= mostEntries) throw subscriptError();
    CmdDesc[entry] = line.description;
    CmdHint[entry] = line.hint;
    ++entry;
    if (!line.hasNode) continue;
    const bool isCommand = line.node.starts_with(':');
    const int node = tvCmd.add(line.node, isCommand ? group : 0);
    if (!isCommand) group = node;
  }
}

void frmCmd::tvCmd_NodeClick(int node) {
  chosenEntry_ = static_cast<std::size_t>(node - 1);
  txtCmd.text = tvCmd.nodes().at(chosenEntry_).text;
  chosenCommand_ = txtCmd.text();
  if (chosenCommand_->ends_with(' ')) chosenCommand_->pop_back();
  explain();
}

/// What the chosen entry says stands below its own command, and below no other.
void frmCmd::explain() {
  const bool isChosen = chosenCommand_ && isCommand(txtCmd.text(), *chosenCommand_);
  lblDescription.caption = isChosen ? CmdDesc.at(chosenEntry_) : "";
  lblCmdHint.caption = isChosen ? CmdHint.at(chosenEntry_) : "";
}

void frmCmd::txtCmd_KeyDown(int code) {
  if (code == TextBox::enterKey) RunConsoleCommand();
}

void frmCmd::cmdRun_Click() {
  RunConsoleCommand();
}

void frmCmd::RunConsoleCommand() {
  const std::string command = withoutLineEnd(txtCmd.text());
  if (!commandLine_.isOneCommand(command)) return;
  if (!isInRange(command)) {
    txtCmd.text = command.substr(0, command.find(' '));
    explain();
    services().dialogs.showMessage("Out of range");
    return;
  }
  main_.txtTest.text = command;
  commandLine_.cmdTest_Click();
}

}  // namespace tracewell
