// SPDX-License-Identifier: GPL-3.0-or-later
#include "Captions.h"

#include <array>
#include <optional>
#include <string_view>

#include "Files.h"
#include "Messages.h"
#include "Numbers.h"

namespace tracewell {
namespace {

/// "//name,reference caption,caption": where it stands and what it says.
struct SectionHeader {
  std::size_t start;
  /// Of the line end.
  std::size_t end;
  std::string windowName;
  std::string caption;
};

struct ControlLine {
  std::string name;
  std::string caption;
};

std::string withoutBlanks(std::string_view text) {
  return std::string(trimBlanks(text));
}

/// The next header at or after `from`; none if the text has no further complete one.
std::optional<SectionHeader> findHeader(const std::string& text, std::size_t from) {
  const std::size_t start = text.find("//", from);
  const std::size_t comma = text.find(',', start);
  if (start == std::string::npos || comma == std::string::npos) return std::nullopt;
  const std::size_t secondComma = text.find(',', comma + 1);
  const std::size_t end = text.find("\r\n", secondComma);
  if (secondComma == std::string::npos || end == std::string::npos) return std::nullopt;
  const std::string_view view = text;
  return SectionHeader{start, end, "frm" + withoutBlanks(view.substr(start + 2, comma - start - 2)),
                       withoutBlanks(view.substr(secondComma + 1, end - secondComma - 1))};
}

/// Takes name and caption out of a control line; one without a comma leaves both as they were.
void splitLine(std::string_view line, ControlLine& control) {
  line = trimBlanks(line);
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return;
  control.name = line.substr(0, comma);
  const std::size_t secondComma = line.find(',', comma + 1);
  control.caption = secondComma == std::string_view::npos ? "" : line.substr(secondComma + 1);
}

}  // namespace

void Captions::LoadCaptions() {
  const std::string code = languageCode(main_.gridMeasure);
  const std::array entries = {&main_.mnbLA1, &main_.mnbLA2, &main_.mnbLA3, &main_.mnbLA4,
                              &main_.mnbLA5};
  for (std::size_t i = 0; i < entries.size(); ++i)
    entries[i]->isChecked = code == "la" + std::to_string(i + 1);
  buffer_ = readWholeFile(languageFile(main_, ".cap"), fileLimit::captions);
  ApplyCaptions(main_);
  for (Window* window : windows_) ApplyCaptions(*window);
}

void Captions::ApplyCaptions(Window& window) {
  // A window takes the caption of every section passed on the way to its own, the first included,
  // and shows the last of them: a file may have tens of thousands.
  std::optional<SectionHeader> header;
  while (!header || header->windowName != window.name()) {
    std::optional<SectionHeader> next = findHeader(buffer_, header ? header->end : 0);
    if (!next) {
      if (header) window.caption = header->caption;
      throw Error(
          invalidProcedureCall, "Tracewell",
          "No captions for " + window.name() + " in " + pathText(languageFile(main_, ".cap")));
    }
    header = std::move(next);
  }
  window.caption = header->caption;

  ControlLine line;
  std::size_t position = header->end + 2;
  const auto readLine = [&] {
    const std::size_t end = buffer_.find("\r\n", position);
    if (end == std::string::npos) return;
    splitLine(std::string_view(buffer_).substr(position, end - position), line);
    position = end + 2;
  };
  readLine();
  for (Control* control : window.controls()) {
    if (control->name() != line.name) continue;
    if (auto* captioned = dynamic_cast<CaptionedControl*>(control))
      captioned->caption = line.caption;
    readLine();
  }
}

void Captions::DumpCaptions(const Window& window) {
  const auto line = [this](const std::string& name, const std::string& caption) {
    buffer_ += name + "," + caption + "," + caption + "\r\n";
  };
  line("// " + window.name().substr(3), window.caption());
  for (const Control* control : window.controls())
    if (const auto* captioned = dynamic_cast<const CaptionedControl*>(control))
      line(control->name(), captioned->caption());
}

}  // namespace tracewell
