// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>

#include <QCoreApplication>

#include "QtValues.h"
#include "SystemConsole.h"

namespace tracewell {

void prepareConsole() {
  ::_setmode(::_fileno(stdout), _O_BINARY);
}

/// The C library has lost the characters there that its code page does not have.
std::vector<std::string> wordsOf(int, char**) {
  std::vector<std::string> words;
  for (const QString& word : QCoreApplication::arguments().sliced(1)) words.push_back(fromQt(word));
  return words;
}

bool isTerminal(std::FILE* file) {
  return ::_isatty(::_fileno(file)) != 0;
}

}  // namespace tracewell
