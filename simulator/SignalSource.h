// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tracewell {

/// What the two test leads carry. Volts and seconds; free of noise, which comes in behind the
/// input.
class SignalSource {
 public:
  virtual ~SignalSource() = default;
  virtual double volts(double seconds) const = 0;
  /// The direct voltage that AC coupling takes away.
  virtual double offset() const = 0;
};

class SineSource : public SignalSource {
 public:
  SineSource(double hertz, double amplitude, double offset)
      : hertz_(hertz), amplitude_(amplitude), offset_(offset) {}
  double volts(double seconds) const override;
  double offset() const override { return offset_; }

 private:
  double hertz_;
  double amplitude_;
  double offset_;
};

/// A square wave whose edges ring for a few percent of the period.
class RingingSquareSource : public SignalSource {
 public:
  RingingSquareSource(double hertz, double amplitude, double offset)
      : hertz_(hertz), amplitude_(amplitude), offset_(offset) {}
  double volts(double seconds) const override;
  double offset() const override { return offset_; }

 private:
  double hertz_;
  double amplitude_;
  double offset_;
};

}  // namespace tracewell
