// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveformButtons.h"

#include "Files.h"
#include "Paused.h"
#include "TraceTable.h"
#include "WaveformSetReader.h"
#include "WrittenScales.h"

namespace tracewell {
namespace {

/// The scales, so that a picture can be read without the program.
std::string footnote(const frmDSO& main) {
  std::string text;
  for (const Channel& channel : main.channels)
    if (channel.display.isChecked())
      text += channel.display.caption() + " " + channel.scale.caption() + "    ";
  text += main.lblTime.caption();
  for (const std::string& line : linesNotOfTraces(main)) text += "\n" + line;
  return text;
}

}  // namespace

void WaveformButtons::cmdSave_Click() {
  const Paused paused(main_, acquisition_, saveWindow_.caption);
  saveWindow_.takePicture(picture());
  main_.refresh();
  saveWindow_.showModal();
}

void WaveformButtons::cmdLoad_Click() {
  const Paused paused(main_, acquisition_, loadWindow_.caption);
  main_.refresh();
  loadWindow_.showModal();
}

void WaveformButtons::cmdLoadCSV_Click() {
  const Paused paused(main_, acquisition_, main_.cmdLoadCSV.caption);
  const Services& services = main_.services();
  const std::filesystem::path path =
      services.dialogs.openFile({services.programFolder, "Load CSV file", "", "*.csv|*.csv"});
  if (!path.empty()) loadCSV(path);
}

void WaveformButtons::graphDSO_FileDropped(const std::filesystem::path& path) {
  const Paused paused(main_, acquisition_, main_.cmdLoadCSV.caption);
  loadCSV(path);
}

/// A file that cannot be drawn leaves the reference that is there.
void WaveformButtons::loadCSV(const std::filesystem::path& path) {
  main_.txtMsg.text = readWaveformFile(path);
  try {
    const bool isDrawn = drawReference(path, readFirstColumn(main_.txtMsg.text()));
    main_.status.tell(isDrawn ? StatusLine::happened : StatusLine::failed, [=](const Words& words) {
      return isDrawn ? words.say("Loaded %1", {pathText(path)})
                     : words.say("%1 has no data", {pathText(path)});
    });
    if (isDrawn && !channelsAsSaved(main_.txtMsg.text())) tellOfOddFile(main_.status);
  } catch (const Error& error) {
    throw Error(error.number(), error.source(), error.description() + ": " + pathText(path));
  }
}

bool WaveformButtons::drawReference(const std::filesystem::path& path,
                                    const std::vector<double>& points) {
  if (points.empty()) return false;
  Plot& load1 = main_.graphDSO.plot(ScopeGraph::firstReference);
  load1.plotXvsY(main_.XIndex, points);
  load1.origin = pathText(path.filename());
  load1.scale = "";
  load1.visible = true;
  return true;
}

void WaveformButtons::graphDSO_Copied(Graph::Copied what) {
  const bool isWithValues = what != Graph::Copied::picture;
  const bool isWithPicture = what != Graph::Copied::values;
  const Services& services = main_.services();
  const std::string table = isWithValues ? traceTable(main_) : "";
  if (table.empty() && !isWithPicture) return;
  services.clipboard.put(table, isWithPicture ? picture() : Image());
  main_.status.tell(StatusLine::happened, [](const Words& words) { return words.say("Copied"); });
  const StatusLine::Sentence others = scalesNotOfTraces(main_);
  if (isWithPicture && others) main_.status.tellToo(StatusLine::happened, others);
}

Image WaveformButtons::picture() const {
  return main_.services().pictures.graphImage(main_.graphDSO, footnote(main_));
}

void WaveformButtons::cmdRemove_Click() {
  for (int number = ScopeGraph::firstReference; number <= ScopeGraph::plotCount; ++number)
    main_.graphDSO.plot(number).visible = false;
  main_.status.withdraw(StatusLine::happened);
}

void WaveformButtons::graphDSO_ReferenceRemoved(int number) {
  main_.graphDSO.plot(number).visible = false;
  main_.status.withdraw(StatusLine::happened);
}

void WaveformButtons::cmdExportCSV_Click() {
  const std::filesystem::path path = "text.csv";
  writeWholeFile(path, main_.txtMsg.text());
  const bool isUnsure = main_.txtMsg.trust() != Trust::holds;
  main_.status.tell(StatusLine::happened, [path, isUnsure](const Words& words) {
    const std::string saved = words.say("Saved %1", {wholePathText(path)});
    return isUnsure ? saved + "; " + words.say("It may be the reply to another question") : saved;
  });
}

}  // namespace tracewell
