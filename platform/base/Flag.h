// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tracewell {

/// Keeps the flag true as long as it lives, unless someone clears it earlier.
class Flag {
 public:
  explicit Flag(bool& flag) : flag_(flag) { flag_ = true; }
  ~Flag() { flag_ = false; }
  Flag(const Flag&) = delete;

 private:
  bool& flag_;
};

}  // namespace tracewell
