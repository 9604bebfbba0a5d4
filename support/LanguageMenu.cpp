// SPDX-License-Identifier: GPL-3.0-or-later
#include "LanguageMenu.h"

#include "ConnectionIndicator.h"
#include "Messages.h"
#include "SlideValues.h"

namespace tracewell {

void LanguageMenu::mnbLA_Click(int language) {
  const std::string before = main_.gridMeasure.text(SetupTable::language, SetupTable::firstValue);
  try {
    load(std::to_string(language));
  } catch (const Error&) {
    goBackTo(before);
    showStateAgain();
    throw;
  }
  showStateAgain();
}

/// As far as possible: the old files may be gone too.
void LanguageMenu::goBackTo(const std::string& number) {
  try {
    load(number);
  } catch (const Error&) {
    // The user is told the error of the new language.
  }
}

void LanguageMenu::load(const std::string& number) {
  main_.gridMeasure.setText(SetupTable::language, SetupTable::firstValue, number);
  captions_.LoadCaptions();
  LoadMessages(main_);
}

/// After the caption file has set the texts of the form.
void LanguageMenu::showStateAgain() {
  showMessagesAgain(main_);
  showSlideValuesAgain(main_);
}

}  // namespace tracewell
