// SPDX-License-Identifier: GPL-3.0-or-later
#include "WireRules.h"

#include <algorithm>

#include "Numbers.h"

namespace tracewell {
namespace {

using enum Setting;

struct HeaderRule {
  std::string_view header;
  Setting setting;
};

/// Commands that set what their header names; most are queries, too.
constexpr std::array settingHeaders = {HeaderRule{"CHAN1:DISP", display1},
                                       HeaderRule{"CHAN2:DISP", display2},
                                       HeaderRule{"CHAN1:SCAL", scale1},
                                       HeaderRule{"CHAN2:SCAL", scale2},
                                       HeaderRule{"CHAN1:OFFS", position1},
                                       HeaderRule{"CHAN2:OFFS", position2},
                                       HeaderRule{"CHAN1:PROB", probe1},
                                       HeaderRule{"CHAN2:PROB", probe2},
                                       HeaderRule{"CHAN1:MATH", math},
                                       HeaderRule{"CHAN2:MATH", math},
                                       HeaderRule{"TIM:SCAL", timeBase},
                                       HeaderRule{"TIM:DEL", delay},
                                       HeaderRule{"TRIG:MOD", triggerMode},
                                       HeaderRule{"TRIG:SOUR", triggerSource},
                                       HeaderRule{"TRIG:LEV", triggerLevel},
                                       HeaderRule{"RUN", running},
                                       HeaderRule{"STOP", running},
                                       HeaderRule{"SYST:UNL", lock},
                                       HeaderRule{"ACQ:MOD", acquireMode},
                                       HeaderRule{"ACQ:AVER", acquireAverage},
                                       HeaderRule{"ACQ:LEN", acquireLength},
                                       HeaderRule{"TRIG:ADV:MOD", advancedMode},
                                       HeaderRule{"TRIG:ADV:TYP", advancedType},
                                       HeaderRule{"TRIG:ADV:EVEN", advancedEvent},
                                       HeaderRule{"TRIG:ADV:LEV", advancedLevel},
                                       HeaderRule{"TRIG:ADV:DEL", advancedDelay}};

/// Commands of which only that they change something is of account.
constexpr std::array touchingHeaders = {
    HeaderRule{"CHAN1:COUP", input1}, HeaderRule{"CHAN2:COUP", input2},
    HeaderRule{"CHAN1:INV", input1},  HeaderRule{"CHAN2:INV", input2},
    HeaderRule{"CHAN1:BWL", input1},  HeaderRule{"CHAN2:BWL", input2}};

/// Commands that set up everything anew. They leave no math on.
constexpr std::array<std::string_view, 2> resettingHeaders = {"AUT", "*RST"};

/// Commands that leave alone what the panel shows, by how they begin.
constexpr std::array<std::string_view, 12> harmlessBeginnings = {
    "ACQ1:",     "ACQ2:",    "DISP:",     "MEAS:", "SIM:", "TRIG:SLOP",
    "TRIG:COUP", "TRIG:REJ", "TRIG:NREJ", "*CLS",  "*ESE", "*SRE"};

template <class Rules>
std::optional<Setting> settingIn(const Rules& rules, const std::string& header) {
  const auto found = std::ranges::find(rules, header, &HeaderRule::header);
  return found == rules.end() ? std::nullopt : std::optional(found->setting);
}

/// The panel's lock is the panel's own doing.
std::vector<Setting> everything() {
  std::vector<Setting> all;
  for (std::size_t i = 0; i < settingCount; ++i)
    if (static_cast<Setting>(i) != lock) all.push_back(static_cast<Setting>(i));
  return all;
}

/// Whatever the locale is.
std::string capitals(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

WirePart partOf(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t:");
  if (start == std::string_view::npos) return {};
  text.remove_prefix(start);
  const std::string_view header = text.substr(0, text.find_first_of(" \t?"));
  WirePart part{capitals(std::string(header)), "", false};
  text.remove_prefix(header.size());
  part.isQuery = text.starts_with('?');
  if (!part.isQuery) part.argument = std::string(trimBlanks(text));
  return part;
}

}  // namespace

std::vector<WirePart> wireParts(std::string_view line) {
  std::vector<WirePart> parts;
  while (!line.empty()) {
    const std::size_t end = std::min(line.find_first_of(";\r\n"), line.size());
    WirePart part = partOf(line.substr(0, end));
    if (!part.header.empty()) parts.push_back(std::move(part));
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return parts;
}

WireEffect effectOf(const WirePart& command) {
  if (const auto setting = settingIn(settingHeaders, command.header)) return {setting, {}, false};
  if (const auto touched = settingIn(touchingHeaders, command.header))
    return {{}, {*touched}, false};
  const auto isItsBeginning = [&](std::string_view beginning) {
    return command.header.starts_with(beginning);
  };
  if (std::ranges::any_of(harmlessBeginnings, isItsBeginning)) return {};
  const bool isKnown =
      std::ranges::find(resettingHeaders, command.header) != resettingHeaders.end();
  return {{}, everything(), !isKnown};
}

bool beginsAutoset(std::string_view line) {
  return std::ranges::any_of(
      wireParts(line), [](const WirePart& part) { return part.header == "AUT" && !part.isQuery; });
}

std::optional<Setting> askedBy(const WirePart& part) {
  return part.isQuery ? settingIn(settingHeaders, part.header) : std::nullopt;
}

std::optional<Setting> dependentOn(Setting setting) {
  switch (setting) {
    case probe1:
      return scale1;
    case probe2:
      return scale2;
    case scale1:
      return position1;
    case scale2:
      return position2;
    case timeBase:
      return delay;
    default:
      return std::nullopt;
  }
}

std::optional<Setting> scaleOf(Setting setting) {
  for (const Setting scale : {Setting::scale1, Setting::scale2, Setting::timeBase})
    if (dependentOn(scale) == setting) return scale;
  return std::nullopt;
}

int mathChannelOf(std::size_t entry) {
  constexpr std::size_t reverseDifference = 2;
  if (entry + 1 >= mathCommands.size()) return 0;
  return entry == reverseDifference ? 2 : 1;
}

}  // namespace tracewell
