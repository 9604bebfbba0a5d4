// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlideValues.h"

#include "SlideCaption.h"

namespace tracewell {

void noteSlideValue(frmDSO& main, Slide& slide) {
  main.slidesWithValue.insert(&slide);
}

void showSlideValue(frmDSO& main, Slide& slide) {
  noteSlideValue(main, slide);
  const char* unit = &slide == &main.slideTrig ? " V" : " Div";
  slide.caption = slideCaption(slide.caption(), slide.value(), unit);
}

void showSlideValuesAgain(frmDSO& main) {
  for (Slide* slide : main.slidesWithValue) showSlideValue(main, *slide);
}

}  // namespace tracewell
