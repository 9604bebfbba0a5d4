// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmSetup.h"

#include <utility>

#include "Files.h"
#include "Printing.h"

namespace tracewell {
namespace {

constexpr auto templateName = "default.sit";

/// Position of `what` at or after `start`, both counted from 1; 0 if it is not there. Raises an
/// error for a start of 0, which is what a search that has found nothing leaves behind.
std::size_t find(const std::string& text, const char* what, std::size_t start) {
  if (start == 0) throw invalidCallError();
  const std::size_t found = text.find(what, start - 1);
  return found == std::string::npos ? 0 : found + 1;
}

struct Report {
  std::string text;
  /// Each value found a bracket of its own.
  bool isWhole;
};

/// `text` with every value behind the next "[" from "(RS)" on. A value for which there is no
/// bracket left goes to the front, and those behind it into the first brackets.
Report filledReport(std::string text, const SetupTable& table) {
  bool isWhole = true;
  std::size_t position = find(text, "(RS)", 1);
  for (int row = 0; row < table.fileRows(); ++row) {
    const int count = table.valueCount(row);
    for (int i = 0; i < count; ++i) {
      const std::string& value = table.text(row, SetupTable::columnOf(i));
      const std::size_t bracket = find(text, "[", position);
      isWhole = isWhole && bracket != 0;
      text.insert(bracket, value);
      position = find(text, "]", bracket + value.size());
    }
  }
  return {std::move(text), isWhole};
}

}  // namespace

frmSetup::frmSetup(frmDSO& main)
    : Window("frmSetup", "Status Report", main.services()), main_(main) {
  formLoad = [this] { Form_Load(); };
  formActivate = [this] { Form_Activate(); };
  cmdOK.click = [this] { hide(); };
  cmdSave.click = [this] { cmdSave_Click(); };
  cmdPrint.click = [this] {
    printAndSay(main_, [this](Printer& printer) { return printer.printText(txtSetup.text()); });
  };
}

void frmSetup::mnbConf_Click() {
  showModal();
}

void frmSetup::Form_Load() {
  txtSetup.text = readWholeFile(services().programFolder / templateName, fileLimit::reportTemplate);
}

/// The error alone would not say whether the template is wrong or the setup.
void frmSetup::Form_Activate() {
  try {
    Report report = filledReport(txtSetup.text(), main_.gridMeasure);
    txtSetup.text = std::move(report.text);
    if (!report.isWhole) tellOfBrackets();
  } catch (const Error& error) {
    const std::string where = error.number() == invalidProcedureCall
                                  ? pathText(services().programFolder / templateName)
                                  : "the counts of the setup";
    throw Error(error.number(), error.source(), error.description() + ": " + where);
  }
}

void frmSetup::tellOfBrackets() {
  main_.status.tell(StatusLine::failed, [](const Words& words) {
    return words.say("%1 has too few brackets: values of the report stand in wrong places",
                     {templateName});
  });
}

void frmSetup::cmdSave_Click() {
  const std::filesystem::path path = services().dialogs.saveFile(
      {services().programFolder, "Save Setup Report file", "default.sir", "*.sir|*.sir"});
  if (path.empty()) return;
  writeWholeFile(path, txtSetup.text());
  main_.status.tell(StatusLine::happened, [path](const Words& words) {
    return words.say("Saved %1", {wholePathText(path)});
  });
}

}  // namespace tracewell
