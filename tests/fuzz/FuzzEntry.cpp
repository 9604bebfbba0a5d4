// SPDX-License-Identifier: GPL-3.0-or-later
/// libFuzzer's way into the function that FUZZ_TARGET names.

#include <cstdint>

#include "Error.h"
#include "FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    tracewell::FUZZ_TARGET(std::string(bytes, bytes + size));
  } catch (const tracewell::Error&) {
    // Refused with a reason.
  }
  tracewell::forgetTraces();
  return 0;
}
