// SPDX-License-Identifier: GPL-3.0-or-later
#include "TypedCommand.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "TriggerMarker.h"

namespace tracewell {
namespace {

/// Without the colon that may lead it, in capitals.
std::string header(const std::string& command) {
  std::string text = command.substr(std::min(command.find_first_not_of(" :"), command.size()));
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

void forget(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->isUnread = true;
}

void forgetChannel1(frmDSO& main) {
  forget({&main.lblChan1, &main.knobChan1, &main.slideCH1});
}

void forgetChannel2(frmDSO& main) {
  forget({&main.lblChan2, &main.knobChan2, &main.slideCH2});
}

void forgetTimeBase(frmDSO& main) {
  forget({&main.lblTime, &main.knobTime, &main.slideTime});
}

void forgetTrigger(frmDSO& main) {
  main.TriggerLevelSet = false;
  main.TriggerSource.reset();
  forget({&main.slideTrig});
}

void forgetMath(frmDSO& main) {
  main.MathEntry.reset();
  forget({&main.cbMath});
}

void forgetAll(frmDSO& main) {
  forgetChannel1(main);
  forgetChannel2(main);
  forgetTimeBase(main);
  ForgetUnaskedSettings(main);
}

struct Effect {
  const char* begin;
  void (*forget)(frmDSO& main);
};

/// A probe changes the scale of its channel.
constexpr std::array effects = {Effect{"CHAN1:SCAL", forgetChannel1},
                                Effect{"CHAN1:OFFS", forgetChannel1},
                                Effect{"CHAN1:PROB", forgetChannel1},
                                Effect{"CHAN2:SCAL", forgetChannel2},
                                Effect{"CHAN2:OFFS", forgetChannel2},
                                Effect{"CHAN2:PROB", forgetChannel2},
                                Effect{"CHAN1:MATH", forgetMath},
                                Effect{"CHAN2:MATH", forgetMath},
                                Effect{"CHAN1:DISP", [](frmDSO& main) { forget({&main.cbCh1}); }},
                                Effect{"CHAN2:DISP", [](frmDSO& main) { forget({&main.cbCh2}); }},
                                Effect{"TIM:", forgetTimeBase},
                                Effect{"TRIG:", forgetTrigger},
                                Effect{"AUT", forgetAll},
                                Effect{"*RST", forgetAll}};

}  // namespace

void noteTypedCommand(frmDSO& main, const std::string& command) {
  const std::string text = header(command);
  if (text.ends_with('?')) return;
  for (const Effect& effect : effects) {
    if (!text.starts_with(effect.begin)) continue;
    effect.forget(main);
    UpdateTriggerMarker(main);
  }
}

}  // namespace tracewell
