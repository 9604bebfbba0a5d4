// SPDX-License-Identifier: GPL-3.0-or-later
#include "Dialogs.h"

#include <algorithm>

#include "Files.h"
#include "Numbers.h"

namespace tracewell {
namespace {

bool isSmallLetter(char c) {
  return c >= 'a' && c <= 'z';
}

/// The user's answer, unless the program has ended.
template <class Ask>
auto asked(const Gate& gate, Ask ask) {
  gate.leaveToUser();
  auto answer = ask();
  gate.mustBeOpen();
  return answer;
}

}  // namespace

std::string FileDialog::usualExtension() const {
  return filter.substr(filter.rfind('.') + 1);
}

std::filesystem::path FileDialog::completed(const std::filesystem::path& picked) const {
  const std::string dotted = smallLetters(pathText(picked.extension()));
  const std::string typed = dotted.substr(std::min<std::size_t>(dotted.size(), 1));
  const bool isWord = !typed.empty() && std::ranges::all_of(typed, isSmallLetter);
  const auto isTyped = [&](const std::string& extension) {
    return smallLetters(extension) == typed;
  };
  const bool isComplete = extensions.empty() ? isWord : std::ranges::any_of(extensions, isTyped);
  return isComplete ? picked : pathOf(pathText(picked) + "." + usualExtension());
}

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
