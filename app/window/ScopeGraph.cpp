// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScopeGraph.h"

namespace tracewell {

ScopeGraph::ScopeGraph(Window& owner, std::string_view name)
    : Graph(owner, name,
            {.plots = {{"Chan1", {255, 213, 79}, true},
                       {"Chan2", {77, 208, 245}, true},
                       {"Load1", {190, 130, 220}, false},
                       {"Load2", {129, 199, 132}, false},
                       {"Load3", {255, 138, 101}, false},
                       {"Load4", {176, 190, 197}, false}},
             .axes = {{"XAxis", -250, 250}, {"YAxis-1", -200, 200}, {"YAxis-2", -200, 200}},
             .cursors = {"cur1", "cur2", "Triger"}}) {}

}  // namespace tracewell
