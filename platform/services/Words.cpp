// SPDX-License-Identifier: GPL-3.0-or-later
#include "Words.h"

namespace tracewell {

/// A value is not searched for places: it may hold a "%" of its own.
std::string Words::say(const char* english, std::initializer_list<std::string> values) const {
  const std::string sentence = translated(english);
  std::string said;
  for (std::size_t i = 0; i < sentence.size(); ++i) {
    // Behind the last character is one that is no digit.
    const std::size_t place =
        sentence[i] == '%' ? static_cast<std::size_t>(sentence[i + 1] - '1') : values.size();
    if (place < values.size()) {
      said += values.begin()[place];
      ++i;
    } else {
      said += sentence[i];
    }
  }
  return said;
}

}  // namespace tracewell
