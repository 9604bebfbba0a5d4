// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdlib>

#include <QCoreApplication>

#include "QtValues.h"
#include "SystemConsole.h"

namespace tracewell {
namespace {

UINT codePageBefore = 0;

}  // namespace

/// The console belongs to the shell, too, which gets its code page back.
void prepareConsole() {
  ::_setmode(::_fileno(stdout), _O_BINARY);
  codePageBefore = ::GetConsoleOutputCP();
  ::SetConsoleOutputCP(CP_UTF8);
  std::atexit([] { ::SetConsoleOutputCP(codePageBefore); });
  HANDLE messages = ::GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  if (::GetConsoleMode(messages, &mode) != 0)
    ::SetConsoleMode(messages, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
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
