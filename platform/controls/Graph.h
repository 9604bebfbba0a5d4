// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Colour.h"
#include "Control.h"
#include "GraphMarks.h"

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
  /// The file or the record that a reference shows, as the user knows it.
  Property<std::string> origin{*this};
  /// The scale that its source names; empty where none is.
  Property<std::string> scale{*this};
  /// Name and origin.
  std::string label() const { return name_ + (origin().empty() ? "" : " " + origin()); }
  /// Laid over the others by the user, who may take it away again.
  bool isReference() const { return isReference_; }
  /// Visible, with data.
  bool isShown() const { return visible() && !y_.empty(); }
  /// Called whenever the trace is painted. True if the trace is not what the instrument has under
  /// the settings that the panel shows. The view shows it pale; pictures and pages do not.
  std::function<bool()> pale;
  bool isPale() const { return pale && pale(); }
  /// How the view has painted it last; the view's.
  bool isPaintedPale = false;

  /// Replaces the data. The shorter of the two arrays sets the number of points.
  void plotXvsY(std::span<const std::int16_t> x, std::span<const std::int16_t> y);
  void plotXvsY(std::span<const std::int16_t> x, std::span<const double> y);
  const std::vector<double>& x() const { return x_; }
  const std::vector<double>& y() const { return y_; }
  /// Called when plotXvsY has replaced the data.
  std::function<void()> plotted;

 private:
  std::string name_;
  bool isReference_;
  std::vector<double> x_;
  std::vector<double> y_;
};

class Axis : public Observable {
 public:
  Axis(std::string_view axisName, double low, double high);
  const std::string& name() const { return name_; }
  /// Called whenever the caption is painted. True if it is counted in a scale that is not the
  /// traces'. The view shows it pale.
  std::function<bool()> pale;
  bool isPale() const { return pale && pale(); }
  /// How the view has painted it last; the view's.
  bool isPaintedPale = false;
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
  /// Graph units. A line uses the coordinate that it stands at.
  Property<double> xPosition{*this};
  Property<double> yPosition{*this};

 private:
  std::string name_;
};

/// What a graph is made of; names are unique among their kind.
struct GraphParts {
  struct PlotPart {
    std::string_view name;
    Colour colour;
    /// Others are references, and hidden at first.
    bool isVisible;
  };
  struct AxisPart {
    std::string_view name;
    double minimum;
    double maximum;
  };
  std::vector<PlotPart> plots;
  std::vector<AxisPart> axes;
  std::vector<std::string_view> cursors;
};

/// A view of traces over a grid, with cursors.
class Graph : public Control {
 public:
  /// Graph units to one screen division, on both axes.
  static constexpr std::int16_t unitsPerDivision = 50;

  Graph(Window& owner, std::string_view name, const GraphParts& parts);

  /// Plots are numbered from 1. Raises "Subscript out of range".
  Plot& plot(int number);
  const Plot& plot(int number) const;
  /// Raise "Subscript out of range" if nothing has that name.
  Axis& axis(std::string_view axisName);
  const Axis& axis(std::string_view axisName) const;
  Cursor& cursor(std::string_view cursorName);
  const Cursor& cursor(std::string_view cursorName) const;

  std::deque<Plot>& plots() { return plots_; }
  std::deque<Axis>& axes() { return axes_; }
  std::deque<Cursor>& cursors() { return cursors_; }

  /// Set by the view: makes it forget the graph, which it otherwise uses until its own end.
  std::function<void()> letGo;

  Property<Colour> plotAreaColour;
  /// What stands beside the traces now. The view calls it whenever it paints, so it must not raise.
  /// If it changes without a change of the graph, call notifyChanged.
  std::function<GraphMarks()> marks;
  /// What the view painted last; belongs to the view.
  mutable GraphMarks paintedMarks;
  /// The same for the values at a point in graph units, under the pointer.
  std::function<std::vector<GraphMarks::Text>(double x, double y)> valuesAt;

  /// Shown in a corner, for instance that the trace is simulated; may be empty.
  Property<std::string> note{*this};

  /// The view has the window to itself; set by the program.
  Property<bool> enlarged{*this};

  /// Raised when the user has moved a cursor.
  Event<> cursorMoved;
  /// Raised by the view's own gesture for a larger or the normal view: a double click, or a key.
  Event<> enlargeToggled;
  void toggleEnlarged();
  /// What the user may copy to another program.
  enum class Copied { pictureAndValues, picture, values };
  Event<Copied> copied;
  void copy(Copied what);
  /// The user has dropped a file on the graph. False while no handler may run: not taken yet.
  Event<const std::filesystem::path&> fileDropped;
  bool drop(const std::filesystem::path& file);
  /// The user wants the reference of that number away.
  Event<int> referenceRemoved;
  void removeReference(int number);
  /// The user drags a cursor to a point in graph units.
  void dragCursor(Cursor& cursor, double x, double y);

 private:
  std::deque<Plot> plots_;
  std::deque<Axis> axes_;
  std::deque<Cursor> cursors_;
};

}  // namespace tracewell
