// SPDX-License-Identifier: GPL-3.0-or-later
#include "Dials.h"

#include <algorithm>
#include <utility>

namespace tracewell {

Knob::Knob(Window& owner, std::string_view name, std::vector<std::string> detentCaptions)
    : Control(owner, name),
      value(*this, 0,
            [this](bool isNew) {
              if (isNew) valueChanged.raise();
            }),
      detents_(std::move(detentCaptions)) {}

void Knob::turn(int detent) {
  const int last = static_cast<int>(detents_.size()) - 1;
  userDoes([this, detent, last] { moveTo(std::clamp(detent, 0, last)); });
}

void Knob::moveTo(int detent) {
  if (value() == detent) return stays.raise();
  value = detent;
}

Slide::Slide(Window& owner, std::string_view name, std::string_view captionText, Range range)
    : CaptionedControl(owner, name, captionText),
      value(*this, 0,
            [this](bool isNew) {
              if (isNew) pointerValueChanged.raise();
            }),
      range_(range) {}

void Slide::drag(double to) {
  userDoes([this, to] {
    const double before = value();
    isHeld_ = true;
    value = std::clamp(to, range_.minimum, range_.maximum);
    if (value() != before) tellChosen();
  });
}

void Slide::takeAway() {
  isHeld_ = false;
  notifyChanged();
}

void Slide::release() {
  userDoes([this] {
    isHeld_ = false;
    pointerValueCommitted.raise();
    mouseUp.raise();
  });
}

}  // namespace tracewell
