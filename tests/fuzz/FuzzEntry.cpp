// SPDX-License-Identifier: GPL-3.0-or-later
/// libFuzzer's way into the function that FUZZ_TARGET names.

#include <cstdint>
#include <string>

#include "Error.h"

namespace tracewell {
void FUZZ_TARGET(const std::string& bytes);
void forgetTraces();
}  // namespace tracewell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    tracewell::FUZZ_TARGET(std::string(bytes, bytes + size));
  } catch (const tracewell::Error&) {
    // Refused with a reason.
  }
  tracewell::forgetTraces();
  return 0;
}
