// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Dialogs.h"

namespace tracewell {

/// Dialogs in front of whichever window is in use.
class DesktopDialogs : public Dialogs {
 public:
  /// From now on nobody answers: what would be said goes to the standard error output.
  void goOnAlone() { isAlone_ = true; }

  Answer askYesNo(const std::string& prompt, const std::string& title) override;
  void showMessage(const std::string& text) override;
  void showRunTimeError(const Error& error) override;
  std::filesystem::path openFile(const FileDialog& dialog) override;
  Colour pickColour(Colour initial) override;
  std::filesystem::path saveFile(const FileDialog& dialog) override;

 private:
  bool isAlone_ = false;
};

}  // namespace tracewell
