// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "frmDSO.h"

namespace tracewell {

/// Gives the graph the whole window, but for the row of its own buttons, and takes it back.
class GraphSize {
 public:
  explicit GraphSize(frmDSO& main) : main_(main) {}
  void ToggleGraphSize();

 private:
  std::vector<Control*> panels();
  frmDSO& main_;
};

}  // namespace tracewell
