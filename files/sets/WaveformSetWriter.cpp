// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveformSetWriter.h"

#include <string_view>

#include "Error.h"
#include "Files.h"
#include "Numbers.h"
#include "WaveformRecord.h"
#include "WaveformSetReader.h"

namespace tracewell {
namespace {

constexpr const char* endOfLine = "\r\n";

std::string sampleText(const std::string& record, int index) {
  const std::size_t position = WaveformRecord::positionOf(static_cast<std::size_t>(index));
  if (position + 1 >= record.size()) throw subscriptError();
  const int low = static_cast<std::uint8_t>(record[position + 1]);
  return std::to_string(record[position] == 0 ? low : low - 256);
}

/// `text` with a blank for each line break, which would move the lines behind it.
std::string onOneLine(const std::string& text) {
  std::string line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, endOfLine) == 0) ++i;
    line += text[i] == '\n' || text[i] == '\r' ? ' ' : text[i];
  }
  return line;
}

/// Where it is without a folder of its own, the present one.
std::string folderText(const std::filesystem::path& path) {
  return pathText(wholePath(path).parent_path());
}

/// Without regard to case, which not every file system knows.
bool isDataExtension(const std::string& extension) {
  const std::string small = smallLetters(extension);
  return small == ".csv" || small == ".inf";
}

}  // namespace

std::string BuildCsvText(const WaveformSet& set) {
  const auto& [one, two] = set.traces;
  if (!one && !two) return "";
  const std::string comma = one && two ? "," : "";
  std::string text = (one ? "Channel 1" : "") + comma + (two ? "Channel 2" : "") + endOfLine;
  for (int i = 0; i < WaveformRecord::sampleCount; ++i) {
    if (one) text += sampleText(one->record, i);
    text += comma;
    if (two) text += sampleText(two->record, i);
    text += endOfLine;
  }
  return text;
}

std::string buildInfText(const WaveformSet& set, const std::string& picturePath) {
  const auto& [one, two] = set.traces;
  const std::string scale = one ? one->scale : notSaved;
  std::string text;
  for (const std::string& line :
       {picturePath, withoutExtension(picturePath) + ".csv", onOneLine(set.author),
        onOneLine(set.description), one ? numberText(one->position) : notSaved,
        two ? numberText(two->position) : notSaved, scale, scale, numberText(set.timePosition)})
    text += line + endOfLine;
  return text;
}

void writeWaveformSet(const std::filesystem::path& picturePath, const WaveformSetFiles& files) {
  const std::string name = pathText(picturePath);
  const std::string base = withoutExtension(name);
  if (isDataExtension(name.substr(base.size())))
    throw Error(pathAccess, "Tracewell", "A picture cannot have the name of its data: " + name);
  checkReadable(pathOf(base + ".inf"), files.inf, fileLimit::description);
  writeWholeFiles({{pathOf(base + ".csv"), files.csv},
                   {pathOf(base + ".inf"), files.inf},
                   {picturePath, files.picture}});
}

std::string setWasSaved(const Words& words, const std::filesystem::path& picturePath) {
  const std::string base = withoutExtension(pathText(picturePath));
  // They are in another folder if the picture's name is shorter than an extension.
  const auto nameOf = [&](const std::string& text) {
    return pathText(pathOf(text).lexically_relative(picturePath.parent_path()));
  };
  return words.say("Saved %1, %2 and %3 in %4",
                   {pathText(picturePath.filename()), nameOf(base + ".csv"), nameOf(base + ".inf"),
                    folderText(picturePath)});
}

std::string withoutExtension(const std::string& path) {
  constexpr int extensionLength = 4;
  std::string_view left = path;
  for (int i = 0; i < extensionLength; ++i) {
    if (left.empty()) throw invalidCallError();
    // A character is one byte and those that continue it.
    bool continues = true;
    while (continues && !left.empty()) {
      continues = (static_cast<unsigned char>(left.back()) & 0xC0) == 0x80;
      left.remove_suffix(1);
    }
  }
  return std::string(left);
}

}  // namespace tracewell
