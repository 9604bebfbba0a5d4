// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Captions.h"

namespace tracewell {

/// The entries of the language menu.
class LanguageMenu {
 public:
  LanguageMenu(frmDSO& main, Captions& captions) : main_(main), captions_(captions) {}

  /// Changes to language 1 to 5: keeps the number in the setup table and gives every window its
  /// words. What shows a state goes on showing it, in the new language. Raises the error of a
  /// language file that cannot be used; the language is then the old one again.
  void mnbLA_Click(int language);

 private:
  void load(const std::string& number);
  void goBackTo(const std::string& number);
  void showStateAgain();

  frmDSO& main_;
  Captions& captions_;
};

}  // namespace tracewell
