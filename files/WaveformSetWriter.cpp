// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveformSetWriter.h"

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

}  // namespace

std::string BuildCsvText(const frmDSO& main) {
  const bool hasChannel1 = main.cbCh1.isChecked();
  const bool hasChannel2 = main.cbCh2.isChecked();
  if (!hasChannel1 && !hasChannel2) return "";
  const std::string comma = hasChannel1 && hasChannel2 ? "," : "";
  std::string text =
      (hasChannel1 ? "Channel 1" : "") + comma + (hasChannel2 ? "Channel 2" : "") + endOfLine;
  for (int i = 0; i < WaveformRecord::sampleCount; ++i) {
    if (hasChannel1) text += sampleText(main.Ch1Raw, i);
    text += comma;
    if (hasChannel2) text += sampleText(main.Ch2Raw, i);
    text += endOfLine;
  }
  return text;
}

std::string buildInfText(const frmDSO& main, const std::string& picturePath,
                         const std::string& author, const std::string& description) {
  const bool hasChannel1 = main.cbCh1.isChecked();
  const bool hasChannel2 = main.cbCh2.isChecked();
  const std::string scale = hasChannel1 ? main.lblChan1.caption() : notSaved;
  std::string text;
  for (const std::string& line :
       {picturePath, withoutExtension(picturePath) + ".csv", onOneLine(author),
        onOneLine(description), hasChannel1 ? numberText(main.slideCH1.value()) : notSaved,
        hasChannel2 ? numberText(main.slideCH2.value()) : notSaved, scale, scale,
        numberText(main.slideTime.value())})
    text += line + endOfLine;
  return text;
}

std::string withoutExtension(const std::string& path) {
  constexpr int extensionLength = 4;
  std::size_t end = path.size();
  for (int i = 0; i < extensionLength; ++i) {
    if (end == 0) throw invalidCallError();
    --end;
    // A character is one byte and those that continue it.
    while (end > 0 && (static_cast<unsigned char>(path[end]) & 0xC0) == 0x80) --end;
  }
  return path.substr(0, end);
}

}  // namespace tracewell
