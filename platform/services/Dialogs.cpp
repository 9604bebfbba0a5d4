// SPDX-License-Identifier: GPL-3.0-or-later
#include "Dialogs.h"

namespace tracewell {
namespace {

/// The user's answer, unless the program has ended.
template <class Ask>
auto asked(const Gate& gate, Ask ask) {
  gate.leaveToUser();
  auto answer = ask();
  gate.mustBeOpen();
  return answer;
}

}  // namespace

Answer Dialogs::askYesNo(const std::string& prompt, const std::string& title, Answer usual) {
  return asked(gate_, [&] { return answerYesNo(prompt, title, usual); });
}

std::filesystem::path Dialogs::openFile(const FileDialog& dialog) {
  return asked(gate_, [&] { return fileToOpen(dialog); });
}

std::filesystem::path Dialogs::saveFile(const FileDialog& dialog) {
  return asked(gate_, [&] { return fileToSave(dialog); });
}

Colour Dialogs::pickColour(Colour initial) {
  return asked(gate_, [&] { return pickedColour(initial); });
}

}  // namespace tracewell
