// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetupFiles.h"

#include <string>
#include <string_view>
#include <vector>

#include "Files.h"
#include "KeptFiles.h"
#include "Numbers.h"

namespace tracewell {
namespace {

constexpr std::string_view leadIn = "R";
constexpr std::string_view lineEnd = "\r\n";

/// Splits `line` at its commas into the cells of `row`; cells behind the last one stay.
void fillRow(SetupTable& table, int row, std::string_view line) {
  int column = 0;
  std::size_t start = 0;
  for (std::size_t comma = 0; comma != std::string_view::npos; start = comma + 1) {
    comma = line.find(',', start);
    table.setText(row, column++, std::string(line.substr(start, comma - start)));
  }
}

/// Up to the rows and values that a file of an earlier version has. `counts` are the file's own.
std::string fileText(const SetupTable& table, const std::vector<std::string>& counts) {
  std::string text(leadIn);
  for (int row = 0; row < std::ssize(counts); ++row) {
    const std::string& number = counts[static_cast<std::size_t>(row)];
    text += table.text(row, 0) + "," + number;
    const int count = toInt16(number);
    for (int i = 0; i < count; ++i) text += "," + table.text(row, SetupTable::columnOf(i));
    text += lineEnd;
  }
  return text;
}

std::string fileText(const SetupTable& table) {
  std::vector<std::string> counts;
  for (int row = 0; row < table.fileRows(); ++row) counts.push_back(table.text(row, 1));
  return fileText(table, counts);
}

/// Those of a line are no part of its last value.
std::string withoutOuterBlanks(std::string_view text) {
  std::string lines;
  for (std::size_t end = text.find(lineEnd); end != std::string_view::npos;
       end = text.find(lineEnd)) {
    lines += trimBlanks(text.substr(0, end));
    lines += lineEnd;
    text.remove_prefix(end + lineEnd.size());
  }
  return lines.append(text);
}

/// Loading and saving ask in the same words.
FileDialog dialogDSO(const std::filesystem::path& folder) {
  return {folder, "Load DSO Setup file", setupFile, "*.dso|*.dso"};
}

}  // namespace

std::filesystem::path SetupFiles::defaultPath() const {
  return main_.services().programFolder / setupFile;
}

void SetupFiles::ReadSetupFile(const std::filesystem::path& path) {
  try {
    loadFile(path);
  } catch (const Error&) {
    // A setup that cannot be read never keeps the program from starting.
  }
}

bool SetupFiles::loadFile(const std::filesystem::path& path) {
  Counts counts;
  try {
    fillTable(path, counts);
  } catch (const Error&) {
    noteWhatWasTaken(path, counts);
    throw;
  }
  noteWhatWasTaken(path, counts);
  return !counts.empty();
}

void SetupFiles::noteWhatWasTaken(const std::filesystem::path& path, const Counts& counts) {
  if (isTakenWhole(path, counts))
    forgetFileToKeep(main_, path);
  else
    noteFileToKeep(main_, path);
  if (tableRead) tableRead();
}

/// Whether writing the table, as far as the version of the file knew it, would give the same bytes.
/// So it is, too, where there is no file, or an empty one.
bool SetupFiles::isTakenWhole(const std::filesystem::path& path, const Counts& counts) const {
  try {
    const std::string bytes = readWholeFile(path, fileLimit::setup);
    const bool isComplete = std::ssize(counts) >= SetupTable::firstRows &&
                            std::ssize(counts) <= main_.gridMeasure.fileRows();
    return bytes.empty() ||
           (isComplete &&
            withoutOuterBlanks(bytes) == withoutOuterBlanks(fileText(main_.gridMeasure, counts)));
  } catch (const Error& error) {
    return error.number() == fileNotFound;
  }
}

bool SetupFiles::isDefault(const std::filesystem::path& path) const {
  std::error_code ignored;
  return path == defaultPath() || std::filesystem::equivalent(path, defaultPath(), ignored);
}

/// Neither what is known nor what is to be written.
bool SetupFiles::isOfAnother(const std::filesystem::path& path, const std::string& text) const {
  if (!isDefault(path)) return false;
  try {
    const std::string bytes = readWholeFile(path, fileLimit::setup);
    return !bytes.empty() && bytes != known_ && bytes != text;
  } catch (const Error& error) {
    // What could not be read at the start has been noted.
    return error.number() != fileNotFound && !isToBeKept(main_, path);
  }
}

void SetupFiles::fillTable(const std::filesystem::path& path, Counts& counts) {
  const std::string text = readWholeFile(path, fileLimit::setup);
  if (isDefault(path)) known_ = text;
  // The lead-in, whatever it is, belongs to no line. What follows the last line end is ignored.
  std::size_t start = leadIn.size();
  std::size_t end = text.find(lineEnd);
  if (end == 0) throw Error(invalidProcedureCall, "Tracewell", "No lead-in: " + pathText(path));
  for (int row = 0; end != std::string::npos; ++row) {
    SetupTable& table = main_.gridMeasure;
    fillRow(table, row, trimBlanks(std::string_view(text).substr(start, end - start)));
    counts.push_back(table.text(row, 1));
    table.addNewValues(row);
    start = end + lineEnd.size();
    end = text.find(lineEnd, start);
  }
}

StatusLine::Sentence SetupFiles::WriteSetupFile(const std::filesystem::path& path) {
  if (path.empty()) return {};
  const std::string text = fileText(main_.gridMeasure);
  checkReadable(path, text, fileLimit::setup);
  StatusLine::Sentence said;
  if (isOfAnother(path, text)) {
    said = changedMeanwhile(path, nameAside(path));
    noteFileToKeep(main_, path);
  }
  keepNotedFile(main_, path);
  writeWholeFile(path, text);
  if (isDefault(path)) known_ = text;
  return said;
}

void SetupFiles::mnbLoadSetup_Click() {
  Services& services = main_.services();
  const std::filesystem::path path = services.dialogs.openFile(dialogDSO(services.programFolder));
  const bool hasLines = loadFile(path);
  if (!hasLines) {
    main_.status.tell(StatusLine::failed, [path](const Words& words) {
      return words.say("%1 holds no setup", {wholePathText(path)});
    });
  } else if (isToBeKept(main_, path)) {
    main_.status.tell(StatusLine::failed, [path](const Words& words) {
      return words.say("%1 was not loaded whole", {wholePathText(path)});
    });
  } else {
    main_.status.tell(StatusLine::happened, [path](const Words& words) {
      return words.say("Setup loaded from %1", {wholePathText(path)});
    });
  }
}

void SetupFiles::mnbSaveSetup_Click() {
  Services& services = main_.services();
  const std::filesystem::path path = services.dialogs.saveFile(dialogDSO(services.programFolder));
  if (path.empty()) return;
  const StatusLine::Sentence kept = willBeKept(main_, path);
  const StatusLine::Sentence changed = WriteSetupFile(path);
  main_.status.tell(StatusLine::happened, [path](const Words& words) {
    return words.say("Setup saved to %1", {wholePathText(path)});
  });
  if (changed || kept) main_.status.tellToo(StatusLine::happened, changed ? changed : kept);
}

}  // namespace tracewell
