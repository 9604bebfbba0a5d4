// SPDX-License-Identifier: GPL-3.0-or-later
#include "LanguageMenu.h"

#include "Messages.h"
#include "SlideCaption.h"

namespace tracewell {
namespace {

/// What the main window shows of its state, where a caption file would put the words of the design
/// back: messages, and the values behind the captions of slides.
class StateTexts {
 public:
  explicit StateTexts(frmDSO& main) : main_(main) {
    remember(main.lblConnect.caption, {1, 7, 8, 9});
    remember(main.cmdStart.caption, {2, 3});
    remember(main.cmdRunStop.caption, {5, 6});
    for (Slide* slide : {&main.slideCH1, &main.slideCH2, &main.slideTime, &main.slideTrig})
      if (slide->value() != 0 || slide->caption() != designCaption(*slide))
        slides_.push_back(slide);
  }

  void showAgain() {
    for (const auto& [caption, message] : texts_) *caption = main_.Msg[message];
    for (Slide* slide : slides_) slide->pointerValueChanged.raise();
  }

 private:
  void remember(Property<std::string>& caption, std::initializer_list<std::size_t> messages) {
    for (const std::size_t message : messages) {
      if (caption() != main_.Msg[message]) continue;
      texts_.emplace_back(&caption, message);
      return;
    }
  }

  /// A slide that has neither been moved nor read still ends as its design does.
  std::string designCaption(const Slide& slide) const {
    return slideTitle(slide.caption()) + (&slide == &main_.slideTime ? " 0.00 Div" : " 0.00 V");
  }

  frmDSO& main_;
  std::vector<std::pair<Property<std::string>*, std::size_t>> texts_;
  std::vector<Slide*> slides_;
};

}  // namespace

void LanguageMenu::mnbLA_Click(int language) {
  const std::string before = main_.gridMeasure.text(SetupTable::language, SetupTable::firstValue);
  StateTexts state(main_);
  try {
    load(std::to_string(language));
  } catch (const Error&) {
    goBackTo(before);
    state.showAgain();
    throw;
  }
  state.showAgain();
}

/// As far as that is possible: the old files may have gone, too.
void LanguageMenu::goBackTo(const std::string& number) {
  try {
    load(number);
  } catch (const Error&) {
    // The error of the new language is the one to tell.
  }
}

void LanguageMenu::load(const std::string& number) {
  main_.gridMeasure.setText(SetupTable::language, SetupTable::firstValue, number);
  captions_.LoadCaptions();
  LoadMessages(main_);
}

}  // namespace tracewell
