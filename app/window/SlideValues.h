// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// The values behind the captions of the main window's slides.
namespace tracewell {

/// The slide's caption ends with its value from now on.
void showSlideValue(frmDSO& main, Slide& slide);
/// Notes that the slide's caption has got its value.
void noteSlideValue(frmDSO& main, Slide& slide);
/// The values of all slides that show theirs, behind the captions that are in force now.
void showSlideValuesAgain(frmDSO& main);

}  // namespace tracewell
