// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMessageBox>

#include "Dialogs.h"

namespace tracewell {

/// Dialogs in front of whichever window is in use.
class DesktopDialogs : public Dialogs {
 public:
  using Dialogs::Dialogs;

  /// From now on no user is there: messages go to the standard error output, and what is asked
  /// is answered with yes: the program goes on to its end.
  void goOnAlone();

  void showMessage(const std::string& text) override;
  void showRunTimeError(const Error& error) override;

 private:
  Answer answerYesNo(const std::string& prompt, const std::string& title, Answer usual) override;
  std::filesystem::path fileToOpen(const FileDialog& dialog) override;
  std::filesystem::path fileToSave(const FileDialog& dialog) override;
  Colour pickedColour(Colour initial) override;

  void say(QMessageBox::Icon icon, const std::string& text);

  bool isAlone_ = false;
};

}  // namespace tracewell
