// SPDX-License-Identifier: GPL-3.0-or-later
#include "LanguageMenu.h"

#include <algorithm>

#include "Messages.h"

namespace tracewell {
namespace {

/// Captions of the main window that show a message while the program runs, where a caption file
/// would put the words of the design back.
class StateTexts {
 public:
  explicit StateTexts(frmDSO& main) : main_(main) {
    for (Property<std::string>* caption :
         {&main.lblConnect.caption, &main.cmdStart.caption, &main.cmdRunStop.caption}) {
      const auto shown = std::ranges::find(main.Msg, (*caption)());
      if (shown != main.Msg.end() && !shown->empty())
        texts_.emplace_back(caption, static_cast<std::size_t>(shown - main.Msg.begin()));
    }
  }

  void showAgain() {
    for (const auto& [caption, message] : texts_) *caption = main_.Msg[message];
    // The caption of a slide ends in its value.
    for (Slide* slide : {&main_.slideCH1, &main_.slideCH2, &main_.slideTime, &main_.slideTrig})
      if (slide->value() != 0) slide->pointerValueChanged.raise();
  }

 private:
  frmDSO& main_;
  std::vector<std::pair<Property<std::string>*, std::size_t>> texts_;
};

}  // namespace

void LanguageMenu::mnbLA_Click(int language) {
  const std::string before = main_.gridMeasure.text(SetupTable::language, SetupTable::firstValue);
  StateTexts state(main_);
  try {
    load(std::to_string(language));
  } catch (const Error&) {
    load(before);
    state.showAgain();
    throw;
  }
  state.showAgain();
}

void LanguageMenu::load(const std::string& number) {
  main_.gridMeasure.setText(SetupTable::language, SetupTable::firstValue, number);
  captions_.LoadCaptions();
  LoadMessages(main_);
}

}  // namespace tracewell
