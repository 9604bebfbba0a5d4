// SPDX-License-Identifier: GPL-3.0-or-later
#include "Messages.h"

#include <algorithm>
#include <array>

#include "Error.h"
#include "Files.h"

namespace tracewell {
namespace {

constexpr std::size_t messagesInFile = 13;

Error tooShortError(const std::filesystem::path& path) {
  return {invalidProcedureCall, "Tracewell", "Not a complete message file: " + pathText(path)};
}

}  // namespace

std::string languageCode(const SetupTable& table) {
  const std::string& number = table.text(SetupTable::language, SetupTable::firstValue);
  const bool isLanguage = number.size() == 1 && number >= "1" && number <= "5";
  return isLanguage ? "la" + number : "";
}

std::filesystem::path languageFile(const frmDSO& main, std::string_view extension) {
  return main.services().programFolder /
         ("dso_" + languageCode(main.gridMeasure) + std::string(extension));
}

void LoadMessages(frmDSO& main) {
  const std::filesystem::path path = languageFile(main, ".msg");
  const std::string text = readWholeFile(path, fileLimit::messages);
  std::array<std::string, messagesInFile> messages;
  std::size_t position = 0;
  for (std::string& message : messages) {
    const std::size_t comma = text.find(',', position);
    if (comma == std::string::npos) throw tooShortError(path);
    const std::size_t end = text.find("\r\n", comma);
    if (end == std::string::npos) throw tooShortError(path);
    message = text.substr(comma + 1, end - comma - 1);
    position = end + 1;
  }
  std::ranges::move(messages, main.state.Msg.begin());
  const std::string code = languageCode(main.gridMeasure);
  main.services().words.use(code.empty() ? 1 : code.back() - '0');
}

}  // namespace tracewell
