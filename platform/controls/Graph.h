// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Colour.h"
#include "Control.h"

namespace tracewell {

/// How a cursor is drawn; the codes are the graph control's own.
enum class CursorStyle { verticalLine = 2, horizontalLine = 6, marker = 8 };

/// One trace. Points are in graph units: 50 to a screen division on both axes, (0, 0) the centre.
class Plot : public Observable {
 public:
  static constexpr int solidLine = 1;
  static constexpr int noPoints = 0;
  static constexpr int dotPoints = 21;

  Plot(std::string_view plotName, Colour colour, bool isVisible);

  const std::string& name() const { return name_; }
  Property<bool> visible;
  Property<Colour> lineColour;
  Property<int> lineStyle{*this, solidLine};
  Property<int> pointStyle{*this, noPoints};

  /// Replaces the data; the shorter of the two arrays says how many points there are.
  void plotXvsY(std::span<const std::int16_t> x, std::span<const std::int16_t> y);
  void plotXvsY(std::span<const std::int16_t> x, std::span<const double> y);
  const std::vector<double>& x() const { return x_; }
  const std::vector<double>& y() const { return y_; }
  /// Told when plotXvsY has replaced the data.
  std::function<void()> plotted;

 private:
  std::string name_;
  std::vector<double> x_;
  std::vector<double> y_;
};

class Axis : public Observable {
 public:
  Axis(std::string_view axisName, double low, double high);
  const std::string& name() const { return name_; }
  Property<std::string> caption{*this};
  Property<Colour> gridColour;
  Property<bool> visible{*this, true};
  /// Ends of the axis in graph units.
  Property<double> minimum;
  Property<double> maximum;

 private:
  std::string name_;
};

class Cursor : public Observable {
 public:
  explicit Cursor(std::string_view cursorName) : name_(cursorName) {}
  const std::string& name() const { return name_; }
  Property<bool> visible{*this};
  Property<CursorStyle> style{*this, CursorStyle::verticalLine};
  /// Graph units. A line uses the one that it stands at.
  Property<double> xPosition{*this};
  Property<double> yPosition{*this};

 private:
  std::string name_;
};

/// The waveform view: six plots, three axes, three cursors.
class Graph : public Control {
 public:
  static constexpr int plotCount = 6;
  /// Number of the first plot for loaded traces; the ones below show the channels.
  static constexpr int firstReference = 3;

  Graph(Window& owner, std::string_view name);

  /// Plots are numbered 1 to 6: Chan1, Chan2, Load1 to Load4. Raises "Subscript out of range".
  Plot& plot(int number);
  /// "XAxis", "YAxis-1" or "YAxis-2".
  Axis& axis(std::string_view axisName);
  /// "cur1", "cur2" or "Triger".
  Cursor& cursor(std::string_view cursorName);

  std::array<Plot, plotCount>& plots() { return plots_; }
  std::array<Axis, 3>& axes() { return axes_; }
  std::array<Cursor, 3>& cursors() { return cursors_; }

  /// The view puts here how it lets go of the graph, which it else reaches until its own end.
  std::function<void()> letGo;

  Property<Colour> plotAreaColour;
  /// Shown in a corner, for instance that the trace is a simulated one; empty for nothing.
  Property<std::string> note{*this};

  /// The view has the window to itself; set by the program.
  Property<bool> enlarged{*this};

  /// Raised when the user has moved cur1 or cur2.
  Event<> cursorMoved;
  /// Raised by the view's own gesture for a larger or the normal view: a double click, or a key.
  Event<> enlargeToggled;
  void toggleEnlarged();
  /// The user drags a cursor to a point in graph units.
  void dragCursor(Cursor& cursor, double x, double y);

 private:
  std::array<Plot, plotCount> plots_;
  std::array<Axis, 3> axes_;
  std::array<Cursor, 3> cursors_;
};

}  // namespace tracewell
