// SPDX-License-Identifier: GPL-3.0-or-later
#include "Dialogs.h"

#include <algorithm>

#include "Files.h"

namespace tracewell {
namespace {

/// "JPG" is "jpg".
bool isSameExtension(std::string_view a, std::string_view b) {
  const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::ranges::equal(a, b, {}, small, small);
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
  const std::string typed = pathText(picked.extension());
  const bool isNumber = typed.find_first_not_of(".0123456789") == std::string::npos;
  const auto isTyped = [&](const std::string& extension) {
    return isSameExtension(typed, "." + extension);
  };
  const bool isComplete = extensions.empty() ? !isNumber : std::ranges::any_of(extensions, isTyped);
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
