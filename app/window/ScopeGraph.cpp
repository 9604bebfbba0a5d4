// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScopeGraph.h"

namespace tracewell {

ScopeGraph::ScopeGraph(Window& owner, std::string_view name)
    : Graph(owner, name,
            {.plots = {{"Chan1", {255, 213, 79}, true},
                       {"Chan2", {77, 208, 245}, true},
                       {"Load1", {134, 85, 255}, false},
                       {"Load2", {65, 136, 0}, false},
                       {"Load3", {255, 101, 146}, false},
                       {"Load4", {251, 255, 248}, false}},
             .axes = {{"XAxis", -250, 250}, {"YAxis-1", -200, 200}, {"YAxis-2", -200, 200}},
             .cursors = {"cur1", "cur2", "Triger"}}) {}

}  // namespace tracewell
