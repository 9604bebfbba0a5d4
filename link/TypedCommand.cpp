// SPDX-License-Identifier: GPL-3.0-or-later
#include "TypedCommand.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "KnownScales.h"
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

void forgetLevel(frmDSO& main) {
  main.TriggerLevelSet = false;
  forget({&main.slideTrig});
}

/// A whole command says what holds from now on.
void noteMath(frmDSO& main, const std::string& command) {
  const auto known = std::ranges::find(mathCommands, command);
  if (known == mathCommands.end()) {
    main.MathEntry.reset();
    forget({&main.cbMath});
    return;
  }
  const auto entry = static_cast<std::int16_t>(known - mathCommands.begin());
  main.MathEntry = entry;
  main.cbMath.listIndex.setQuietly(entry);
  main.cbMath.text = main.cbMath.items().at(static_cast<std::size_t>(entry));
  main.cbMath.isUnread = false;
}

void forgetAll(frmDSO& main) {
  forgetChannel1(main);
  forgetChannel2(main);
  forgetTimeBase(main);
  ForgetUnaskedSettings(main);
}

struct Effect {
  const char* begin;
  void (*note)(frmDSO& main, const std::string& command);
};

/// A probe changes the scale of its channel, and with the scale its position in divisions.
constexpr std::array effects = {
    Effect{"CHAN1:SCAL", [](frmDSO& main, const std::string&) { forgetChannel1(main); }},
    Effect{"CHAN1:PROB", [](frmDSO& main, const std::string&) { forgetChannel1(main); }},
    Effect{"CHAN1:OFFS", [](frmDSO& main, const std::string&) { forget({&main.slideCH1}); }},
    Effect{"CHAN1:DISP", [](frmDSO& main, const std::string&) { forget({&main.cbCh1}); }},
    Effect{"CHAN1:MATH", noteMath},
    Effect{"CHAN2:SCAL", [](frmDSO& main, const std::string&) { forgetChannel2(main); }},
    Effect{"CHAN2:PROB", [](frmDSO& main, const std::string&) { forgetChannel2(main); }},
    Effect{"CHAN2:OFFS", [](frmDSO& main, const std::string&) { forget({&main.slideCH2}); }},
    Effect{"CHAN2:DISP", [](frmDSO& main, const std::string&) { forget({&main.cbCh2}); }},
    Effect{"CHAN2:MATH", noteMath},
    Effect{"TIM:SCAL", [](frmDSO& main, const std::string&) { forgetTimeBase(main); }},
    Effect{"TIM:DEL", [](frmDSO& main, const std::string&) { forget({&main.slideTime}); }},
    Effect{"TRIG:LEV", [](frmDSO& main, const std::string&) { forgetLevel(main); }},
    Effect{"TRIG:SOUR", [](frmDSO& main, const std::string&) { main.TriggerSource.reset(); }},
    Effect{"SYST:UNL", [](frmDSO& main, const std::string&) { main.cmdLock.value = false; }},
    Effect{"AUT", [](frmDSO& main, const std::string&) { forgetAll(main); }},
    Effect{"*RST", [](frmDSO& main, const std::string&) { forgetAll(main); }}};

}  // namespace

void noteTypedCommand(frmDSO& main, const std::string& command) {
  const std::string text = header(command);
  if (text.ends_with('?')) return;
  for (const Effect& effect : effects) {
    if (!text.starts_with(effect.begin)) continue;
    effect.note(main, text);
    UpdateTriggerMarker(main);
  }
}

}  // namespace tracewell
