// SPDX-License-Identifier: GPL-3.0-or-later
#include "ShownTexts.h"

#include "Controls.h"
#include "Dials.h"
#include "Lists.h"
#include "Numbers.h"

namespace tracewell {
namespace {

template <class Kind>
const Kind* as(const Control& control) {
  return dynamic_cast<const Kind*>(&control);
}

std::string textOf(Colour colour) {
  return "#" + std::to_string(colour.red) + "." + std::to_string(colour.green) + "." +
         std::to_string(colour.blue);
}

}  // namespace

std::string shortened(const std::string& text) {
  constexpr std::size_t most = 60;
  constexpr std::size_t kept = 24;
  if (text.find('\0') != std::string::npos) return std::to_string(text.size()) + " bytes";
  if (text.size() <= most) return text;
  return text.substr(0, kept) + "..." + std::to_string(text.size()) + "..." +
         text.substr(text.size() - kept);
}

std::string textOf(const Control& control) {
  if (auto* box = as<CheckBox>(control)) return std::to_string(box->value());
  if (auto* option = as<OptionButton>(control)) return option->value() ? "on" : "off";
  if (auto* entry = as<MenuEntry>(control); entry && entry->isChecked())
    return entry->caption() + " ticked";
  if (auto* button = as<Switch>(control)) return button->value() ? "in" : "out";
  if (auto* button = as<Button>(control); button && button->backColour())
    return textOf(*button->backColour());
  if (auto* slide = as<Slide>(control)) return numberText(slide->value()) + " " + slide->caption();
  if (auto* captioned = as<CaptionedControl>(control)) return captioned->caption();
  if (auto* label = as<ValueLabel>(control)) {
    std::string text = label->caption();
    for (const ValueLabel::Sentence& sentence : label->sentences)
      if (sentence.isWarning) text.insert(text.find(sentence.text), "! ");
    return text;
  }
  if (auto* button = as<ValueButton>(control)) return button->caption();
  if (auto* box = as<ComboBox>(control))
    return std::to_string(box->listIndex()) + " " + box->text();
  if (auto* box = as<TextBox>(control)) return box->text();
  if (auto* knob = as<Knob>(control)) return numberText(knob->value());
  if (auto* lamp = as<Lamp>(control)) return textOf(lamp->fillColour());
  if (auto* line = as<Line>(control))
    return textOf(line->borderColour()) + (line->borderStyle() == Line::solid ? "" : " dotted");
  if (auto* bar = as<Progress>(control)) return std::to_string(bar->percent());
  if (auto* picture = as<PictureBox>(control)) return picture->image().pixels;
  if (auto* list = as<ListBox>(control)) {
    std::string text = list->chosenText() + " of";
    for (const std::string& item : list->items()) text += " " + item;
    return text;
  }
  if (auto* tree = as<Tree>(control)) {
    std::string text;
    for (const Tree::Node& node : tree->nodes())
      text += node.text + "^" + std::to_string(node.parent) + " ";
    return shortened(text);
  }
  if (auto* graph = as<Graph>(control))
    return textOf(graph->plotAreaColour()) + graph->note() + (graph->enlarged() ? " enlarged" : "");
  return "";
}

void showParts(Graph& graph, std::map<std::string, std::string>& shown) {
  for (const Plot& plot : graph.plots()) {
    const auto& [x, y] = std::tie(plot.x(), plot.y());
    if (!x.empty())
      shown[plot.name()] = numberText(x.front()) + ":" + numberText(y.front()) + ".." +
                           numberText(x.back()) + ":" + numberText(y.back());
    shown[plot.name() + ".style"] = (plot.visible() ? "" : "hidden ") + textOf(plot.lineColour()) +
                                    " " + std::to_string(plot.lineStyle()) + "/" +
                                    std::to_string(plot.pointStyle());
  }
  for (const Axis& axis : graph.axes()) {
    shown[axis.name()] = axis.caption();
    shown[axis.name() + ".grid"] = textOf(axis.gridColour());
  }
  for (const Cursor& cursor : graph.cursors())
    shown[cursor.name()] = (cursor.visible() ? "" : "hidden ") +
                           std::to_string(static_cast<int>(cursor.style())) + " " +
                           numberText(cursor.xPosition()) + ":" + numberText(cursor.yPosition());
}

std::string textOf(const GraphMarks& marks) {
  std::string text;
  for (const GraphMarks::Side& side : marks.sides)
    text += side.text + " ^v"[side.direction] + numberText(side.height) + " ";
  for (const auto* texts : {&marks.names, &marks.scales, &marks.badge}) {
    for (const GraphMarks::Text& part : *texts)
      text += "| " + std::to_string(part.plot) + " " + part.text + " ";
  }
  return text;
}

void replaceAll(std::string& text, const std::string& old, const std::string& with) {
  for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += with.size())
    text.replace(at, old.size(), with);
}

}  // namespace tracewell
