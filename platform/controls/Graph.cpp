// SPDX-License-Identifier: GPL-3.0-or-later
#include "Graph.h"

#include <algorithm>

namespace tracewell {
namespace {

/// Three times as bright as the ground, so that it can be counted.
constexpr Colour gridColour{64, 102, 98};
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
    : visible(*this, isVisible),
      lineColour(*this, colour),
      name_(plotName),
      isReference_(!isVisible) {}

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

Graph::Graph(Window& owner, std::string_view name, const GraphParts& parts)
    : Control(owner, name), plotAreaColour(*this, tracewell::plotAreaColour) {
  for (const auto& plot : parts.plots) plots_.emplace_back(plot.name, plot.colour, plot.isVisible);
  for (const auto& axis : parts.axes) axes_.emplace_back(axis.name, axis.minimum, axis.maximum);
  for (const std::string_view cursor : parts.cursors) cursors_.emplace_back(cursor);
}

Plot& Graph::plot(int number) {
  return const_cast<Plot&>(std::as_const(*this).plot(number));
}

const Plot& Graph::plot(int number) const {
  const auto index = static_cast<std::size_t>(number - 1);
  if (number < 1 || index >= plots_.size()) throw subscriptError();
  return plots_[index];
}

Axis& Graph::axis(std::string_view axisName) {
  return named(axes_, axisName);
}

const Axis& Graph::axis(std::string_view axisName) const {
  return named(axes_, axisName);
}

Cursor& Graph::cursor(std::string_view cursorName) {
  return named(cursors_, cursorName);
}

const Cursor& Graph::cursor(std::string_view cursorName) const {
  return named(cursors_, cursorName);
}

void Graph::toggleEnlarged() {
  userDoes([this] { enlargeToggled.raise(); });
}

void Graph::copy(Copied what) {
  userDoes([this, what] { copied.raise(what); });
}

bool Graph::drop(const std::filesystem::path& file) {
  bool isTaken = false;
  userDoes([&] {
    isTaken = true;
    fileDropped.raise(file);
  });
  return isTaken;
}

void Graph::removeReference(int number) {
  userDoes([this, number] { referenceRemoved.raise(number); });
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
