// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace tracewell {

/// As long as it lives no file takes more than so many bytes.
class FullDisk {
 public:
  explicit FullDisk(rlim_t most) {
    getrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{most, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace tracewell
