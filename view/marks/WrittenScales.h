// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Pictures, descriptions and pages carry the scales that the window shows. Returns a sentence
/// about those at which what is drawn was not recorded, or the cursors' read-out not counted, or
/// that are not known, as of this call; none if all agree.
StatusLine::Sentence scalesNotOfTraces(const frmDSO& main);

/// The same of a page, which has the plots of these first numbers alone.
StatusLine::Sentence pageNotOfTraces(const frmDSO& main, int plots);

/// What these say, a line each, in the language of now: a picture and a page carry it themselves.
std::vector<std::string> linesNotOfTraces(const frmDSO& main, int plots = ScopeGraph::plotCount);

/// The same of a waveform set, which carries the positions, too. A trace can be drawn at another:
/// channel 2 is at whole divisions, channel 1 until its next record. That of time may be another
/// than the instrument's. And of its data, which are empty if a ticked channel has no whole record.
StatusLine::Sentence setNotOfTraces(const frmDSO& main);

/// The sentence of a set about a position or delay of which it is not known whether it is the
/// instrument's.
std::string positionNotKnown(const Words& words, const Slide& slide);

/// The delay that is written into sets was touched, and is not known to be the instrument's.
bool isDelayInDoubt(const frmDSO& main);

}  // namespace tracewell
