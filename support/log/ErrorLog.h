// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmErrLog.h"

namespace tracewell {

/// Where trapped errors go.
class ErrorLog {
 public:
  ErrorLog(frmDSO& main, frmErrLog& window) : main_(main), window_(window) {}

  /// Stops the periodic acquisition, so that a failing exchange is not repeated at every tick, and
  /// appends one line: date and time, the error's source, the tag, the error's description. `tag`
  /// names the routine that trapped it, as in "SendDSOCmd : "; a routine without a tag passes the
  /// error's source.
  void ErrLog(const Error& error, const std::string& tag);

 private:
  frmDSO& main_;
  frmErrLog& window_;
};

}  // namespace tracewell
