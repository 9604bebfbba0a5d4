// SPDX-License-Identifier: GPL-3.0-or-later
/// libFuzzer's way into a target: the program runs the one that it is called by, fuzz_setup the
/// setup.

#include <cstdint>
#include <cstdio>
#include <string>

#include "Error.h"
#include "FuzzTargets.h"

static void (*target)(const std::string& bytes) = nullptr;

extern "C" int LLVMFuzzerInitialize(int*, char*** arguments) {
  const std::string name = **arguments;
  const auto found = tracewell::fuzzTargets.find(name.substr(name.rfind('_') + 1));
  if (found == tracewell::fuzzTargets.end()) {
    std::fputs("Call it by the name of a target, as fuzz_setup.\n", stderr);
    std::exit(EXIT_FAILURE);
  }
  target = found->second;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  try {
    target(std::string(bytes, bytes + size));
  } catch (const tracewell::Error&) {
    // Refused with a reason.
  }
  tracewell::forgetTraces();
  return 0;
}
