// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Pictures, descriptions and pages carry the scales that the window shows. What of these the
/// traces were not recorded at, as a sentence that holds for the moment of this call; none where
/// all is as it is written.
StatusLine::Sentence scalesNotOfTraces(const frmDSO& main);

}  // namespace tracewell
