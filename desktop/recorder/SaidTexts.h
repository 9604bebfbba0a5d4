// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace tracewell {

/// What gives widgets their texts, now and again in each language that follows.
class SaidTexts {
 public:
  void add(std::function<void()> say) {
    say();
    says_.push_back(std::move(say));
  }
  void sayAgain() const {
    for (const auto& say : says_) say();
  }

 private:
  std::vector<std::function<void()>> says_;
};

}  // namespace tracewell
