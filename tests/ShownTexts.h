// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "Graph.h"

namespace tracewell {

/// Of a long text its ends.
std::string shortened(const std::string& text);
/// What a control shows beside being there.
std::string textOf(const Control& control);
/// The flags and arrows with their heights, then all texts.
std::string textOf(const GraphMarks& marks);
void showParts(Graph& graph, std::map<std::string, std::string>& shown);
void replaceAll(std::string& text, const std::string& old, const std::string& with);

}  // namespace tracewell
