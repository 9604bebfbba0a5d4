// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "frmDSO.h"

/// What can be said of the traces: under which scales they were made, where their zeros are, and
/// whether they show what the instrument has now.
namespace tracewell {

/// There is a trace of a record on the screen.
bool hasTrace(const Channel& channel);

/// What is measured on the screen is counted in these: the scale of the trace as long as it is the
/// scale in force, and the scale in force where there is no trace.
std::optional<double> voltsOfTrace(const frmDSO& main, const Channel& channel);
std::optional<double> secondsOfTraces(const frmDSO& main);

/// Height of a channel's zero in graph units: where the trace was drawn, or where the position says
/// where there is no trace.
std::optional<double> zeroOf(const frmDSO& main, const Channel& channel);

/// Milliseconds between two records of a channel, as long as all is well: what a record takes on
/// the line, at least the interval of the requests, for each channel that is displayed.
std::int64_t recordPeriod(const frmDSO& main);

/// The trace came over the present connection.
bool isOfThisLine(const frmDSO& main, const Channel& channel);

/// Milliseconds without a record while records are asked for; 0 as long as that is nothing special.
std::int64_t millisecondsWithoutRecord(const frmDSO& main);

/// The channel's record came longer ago than another one should have taken.
bool isOld(const frmDSO& main, const Channel& channel);

/// When the channel's record came; `now` in milliseconds of Clock.
std::string ageText(const Words& words, const Channel& channel, std::int64_t now);

/// How long the channel's record has been the same one; `now` in milliseconds of Clock.
std::string unchangedText(const Words& words, const Channel& channel, std::int64_t now);

/// The trace came from another instrument, came long ago, or was made under settings that are not
/// those in force, or are not known.
bool isPale(const frmDSO& main, const Channel& channel);

/// Both traces are of one sweep: they were fetched behind one stop. Of an instrument that runs each
/// is of a sweep of its own, and what is between them in time means nothing.
bool areOfOneSweep(const frmDSO& main);

/// What the read-out of the cursors says is counted in a scale that is not known, or not the one
/// under which the traces were made.
bool isReadoutPale(const frmDSO& main);

/// The age of each displayed trace, or that it is live, in the language in force.
std::string traceAges(const frmDSO& main);

/// What the graph says of simulated traces; empty where there are none.
std::string simulatedNote(const frmDSO& main);

}  // namespace tracewell
