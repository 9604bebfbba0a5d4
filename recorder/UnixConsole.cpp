// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <csignal>

#include "SystemConsole.h"

namespace tracewell {

void prepareConsole() {
  std::signal(SIGPIPE, SIG_IGN);
}

std::vector<std::string> wordsOf(int argumentCount, char** arguments) {
  return {arguments + 1, arguments + argumentCount};
}

bool isTerminal(std::FILE* file) {
  return ::isatty(::fileno(file)) != 0;
}

}  // namespace tracewell
