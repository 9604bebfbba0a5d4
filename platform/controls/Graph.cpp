// SPDX-License-Identifier: GPL-3.0-or-later
#include "Graph.h"

#include <algorithm>

namespace tracewell {
namespace {

constexpr Colour gridColour{30, 58, 56};
constexpr Colour plotAreaColour{5, 8, 10};

/// The part of `parts` with that name; the names are fixed, so a miss is a fault of the caller.
template <class Parts>
auto& named(Parts& parts, std::string_view name) {
  const auto found =
      std::ranges::find_if(parts, [name](const auto& part) { return part.name() == name; });
  if (found == parts.end()) throw subscriptError();
  return *found;
}

}  // namespace

Plot::Plot(std::string_view plotName, Colour colour, bool isVisible)
    : visible(*this, isVisible), lineColour(*this, colour), name_(plotName) {}

void Plot::plotXvsY(std::span<const std::int16_t> x, std::span<const std::int16_t> y) {
  const auto count = static_cast<std::ptrdiff_t>(std::min(x.size(), y.size()));
  x_.assign(x.begin(), x.begin() + count);
  y_.assign(y.begin(), y.begin() + count);
  if (plotted) plotted();
}

void Plot::plotXvsY(std::span<const std::int16_t> x, std::span<const double> y) {
  const auto count = static_cast<std::ptrdiff_t>(std::min(x.size(), y.size()));
  x_.assign(x.begin(), x.begin() + count);
  y_.assign(y.begin(), y.begin() + count);
  if (plotted) plotted();
}

Axis::Axis(std::string_view axisName, double low, double high)
    : gridColour(*this, tracewell::gridColour),
      minimum(*this, low),
      maximum(*this, high),
      name_(axisName) {}

Graph::Graph(Window& owner, std::string_view name)
    : Control(owner, name),
      plotAreaColour(*this, tracewell::plotAreaColour),
      plots_{{{"Chan1", {255, 213, 79}, true},
              {"Chan2", {77, 208, 245}, true},
              {"Load1", {190, 130, 220}, false},
              {"Load2", {129, 199, 132}, false},
              {"Load3", {255, 138, 101}, false},
              {"Load4", {176, 190, 197}, false}}},
      axes_{{{"XAxis", -250, 250}, {"YAxis-1", -200, 200}, {"YAxis-2", -200, 200}}},
      cursors_{Cursor("cur1"), Cursor("cur2"), Cursor("Triger")} {}

Plot& Graph::plot(int number) {
  if (number < 1 || number > plotCount) throw subscriptError();
  return plots_[static_cast<std::size_t>(number - 1)];
}

Axis& Graph::axis(std::string_view axisName) {
  return named(axes_, axisName);
}

Cursor& Graph::cursor(std::string_view cursorName) {
  return named(cursors_, cursorName);
}

void Graph::toggleEnlarged() {
  userDoes([this] { enlargeToggled.raise(); });
}

void Graph::dragCursor(Cursor& cursor, double x, double y) {
  if (!cursor.visible()) return;
  userDoes([this, &cursor, x, y] {
    cursor.xPosition = std::clamp(x, axis("XAxis").minimum(), axis("XAxis").maximum());
    cursor.yPosition = std::clamp(y, axis("YAxis-1").minimum(), axis("YAxis-1").maximum());
    cursorMoved.raise();
  });
}

}  // namespace tracewell
