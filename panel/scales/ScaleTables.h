// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tracewell {

/// The instrument's 1-2-5 scales. A knob's value is an index into the two tables of its kind: the
/// caption as the instrument writes it, and the number text that is sent.
constexpr int voltDivSteps = 11;
constexpr int timeDivSteps = 29;
extern const std::array<std::string_view, voltDivSteps> VoltDivText;
extern const std::array<std::string_view, voltDivSteps> VoltDivValue;
extern const std::array<std::string_view, timeDivSteps> TimeDivText;
extern const std::array<std::string_view, timeDivSteps> TimeDivValue;

enum class ScaleKnob { Chan1, Chan2, Time };

/// The command that sets the scale of a knob's position (":CHAN1:SCAL 1E-1"), and the caption of
/// the same step. Raise "Subscript out of range" beyond the table.
std::string ScaleCommandForKnob(ScaleKnob kind, double position);
std::string scaleCaptionForKnob(ScaleKnob kind, double position);

/// The step whose caption equals a trimmed scale reply to the letter. The slowest time scale,
/// "5.000 s", is never found.
std::optional<int> ScaleStepForReply(ScaleKnob kind, std::string_view reply);

/// The number in the first five characters of a caption, in volts or seconds for the prefixes "m"
/// and "u" and for none; nanoseconds come out as plain nanoseconds. 0 for a text without a number.
double ParseScaleCaption(std::string_view caption);

/// The first five characters of a scale caption, which hold its number.
std::string_view captionNumber(std::string_view caption);
/// The second-last character of a scale caption, its prefix; a blank where there is none.
char captionPrefix(std::string_view caption);

}  // namespace tracewell
