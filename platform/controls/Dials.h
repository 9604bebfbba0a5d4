// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Control.h"

namespace tracewell {

/// A rotary switch with one detent per entry of `detents`; its value is the detent's number.
class Knob : public Control {
 public:
  /// `detentCaptions` are the short texts around the knob.
  Knob(Window& owner, std::string_view name, std::vector<std::string> detentCaptions);
  const std::vector<std::string>& detents() const { return detents_; }
  /// A new value raises valueChanged, also when code sets it.
  Property<double> value;
  Event<> valueChanged;
  /// The user wants the detent at which it stands.
  Event<> stays;
  /// The user turns the knob to a detent; beyond the ends it stops at the end.
  void turn(int detent);
  /// Within a handler: the user has named the detent elsewhere.
  void moveTo(int detent);

 private:
  std::vector<std::string> detents_;
};

/// A pointer on a linear scale, with a caption that follows it.
class Slide : public CaptionedControl {
 public:
  /// The range is the user's; code may set any value, and the pointer then rests at the end.
  struct Range {
    double minimum;
    double maximum;
    /// The step of one press of an arrow key.
    double step;
  };

  Slide(Window& owner, std::string_view name, std::string_view captionText, Range range);
  const Range& range() const { return range_; }
  /// A new value raises pointerValueChanged, also when code sets it, but never the two others.
  Property<double> value;
  Event<> pointerValueChanged;
  /// Raised when the user lets go of the pointer, or has moved it with a key.
  Event<> pointerValueCommitted;
  /// The mouse event that ends a drag; raised after pointerValueCommitted.
  Event<> mouseUp;
  void drag(double to);
  void release();
  /// The drag has ended without the user's letting go: nothing is raised.
  void takeAway();
  /// The user has dragged it and not let go.
  bool isHeld() const { return isHeld_; }

 private:
  Range range_;
  bool isHeld_ = false;
};

}  // namespace tracewell
