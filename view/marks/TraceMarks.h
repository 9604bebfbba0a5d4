// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "frmDSO.h"

/// Facts about the traces: the scales under which they were made, where their zeros are, and
/// whether they show what the instrument has now.
namespace tracewell {

/// The trace of a record is on the screen.
bool hasTrace(const Channel& channel);

/// The scale for measuring on the screen: the scale of the trace while it is the one in force, or
/// the one in force if there is no trace.
std::optional<double> voltsOfTrace(const frmDSO& main, const Channel& channel);
std::optional<double> secondsOfTraces(const frmDSO& main);

/// Height of a channel's zero in graph units: where the trace was drawn, or by the position if
/// there is no trace.
std::optional<double> zeroOf(const frmDSO& main, const Channel& channel);

/// Milliseconds between two records of a channel without faults: for each displayed channel the
/// time of a record on the line, or the interval of the requests if that is longer.
std::int64_t recordPeriod(const frmDSO& main);

/// The trace arrived on the present line.
bool isOfThisLine(const frmDSO& main, const Channel& channel);

/// Milliseconds without a record while records are requested; none while that is normal.
std::optional<std::int64_t> millisecondsWithoutRecord(const frmDSO& main);

/// The channel's record is older than the time that another one should take, and the fetch has gone
/// on for as long.
bool isLate(const frmDSO& main, const Channel& channel);

/// The channel's record is older than the time that another one should take.
bool isOld(const frmDSO& main, const Channel& channel);

/// Says when the channel's record arrived; `now` in milliseconds of Clock.
std::string ageText(const Words& words, const Channel& channel, std::int64_t now);

/// Milliseconds until the panel has other things to say of the traces: a second while records are
/// requested or the last ones have just come, more later.
int changeInterval(const frmDSO& main);

/// Says how long the channel's record has been the same; `now` in milliseconds of Clock.
std::string unchangedText(const Words& words, const Channel& channel, std::int64_t now);

/// The trace is of another instrument, is old, or was made under settings that are not in force or
/// not known.
bool isPale(const frmDSO& main, const Channel& channel);

/// Both traces are of one sweep: they were fetched after one stop. From a running instrument each
/// is of its own sweep, and the time between them means nothing.
bool areOfOneSweep(const frmDSO& main);

/// The caption of the x axis while nothing is read out.
constexpr const char* nameOfTimeAxis = "Time";

/// The channel in whose volts the cursors are read out.
const Channel& channelOfReadout(const frmDSO& main);

/// Says of a reference at which scale it was made: nothing else tells.
std::string referenceText(const Words& words, const std::string& label, const std::string& scale);

/// The scale in which they are read out: that of this channel, or the time base.
const ValueLabel& scaleOfReadout(const frmDSO& main);

/// The scale reads otherwise now than when the cursors' read-out was counted.
bool isReadoutOfOtherScale(const frmDSO& main);

/// The read-out of the cursors is in a scale that is not known, not the one in force, or not the
/// one under which the traces were made.
bool isReadoutPale(const frmDSO& main);

/// The age of each displayed trace, or that it is live, in the language in force.
std::string traceAges(const frmDSO& main);

/// The graph's note on simulated traces; empty if there are none.
std::string simulatedNote(const frmDSO& main);

}  // namespace tracewell
