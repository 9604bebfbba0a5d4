// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Captions.h"
#include "CommandExchange.h"
#include "SetupFiles.h"

namespace tracewell {

/// Start and end of the main window.
class Lifecycle {
 public:
  /// `windows` are all others, in the order in which they are unloaded.
  Lifecycle(frmDSO& main, SetupFiles& setupFiles, Captions& captions, CommandExchange& exchange,
            ErrorLog& errorLog, std::vector<Window*> windows);

  /// Raises an error that names the file when the language files cannot be used.
  void Form_Load();
  /// Once, unless the user wants the program to go on. Says so when the setup cannot be written,
  /// and closes all the same.
  void Form_Unload();
  /// Asks before it closes.
  void cmdClose_Click();
  /// Logs its failure.
  void tmTest_Timer();
  /// Shown and counted up by each tick.
  std::int16_t TestChar = 0;

 private:
  void saveSetup();

  frmDSO& main_;
  SetupFiles& setupFiles_;
  Captions& captions_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  std::vector<Window*> windows_;
};

}  // namespace tracewell
