// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmSave.h"

#include "Files.h"
#include "Printing.h"
#include "WaveformSetWriter.h"
#include "WrittenScales.h"

namespace tracewell {
namespace {

/// Month, day, hour, minute, second, two digits each.
std::string timeStamp(const Clock& clock) {
  constexpr std::size_t afterYear = 4;
  std::string digits;
  for (const char c : clock.dateAndTime().substr(afterYear))
    if (c >= '0' && c <= '9') digits += c;
  return digits;
}

/// The displayed channels, with the scales and positions that the window shows.
WaveformSet shownSet(const frmDSO& main) {
  WaveformSet set;
  for (const Channel& channel : main.channels)
    if (channel.display.isChecked())
      set.traces.at(channel.index()) = {channel.record.bytes, channel.slide.value(),
                                        channel.scale.caption()};
  set.timePosition = main.slideTime.value();
  return set;
}

}  // namespace

frmSave::frmSave(frmDSO& main) : Window("frmSave", "Save", main.services()), main_(main) {
  opFiletype(Pictures::jpg - Pictures::wmf).value = true;
  lblScales.visible = false;
  formActivate = [this] { Form_Activate(); };
  for (OptionButton& format : opFiletype)
    format.click = [this, &format] { opFiletype_Click(format.index()); };
  pictureTemp.clicked = [this](int x, int y) { pictureTemp_Click(x, y); };
  cmdUndo.click = [this] { cmdUndo_Click(); };
  cmdReload.click = [this] { cmdReload_Click(); };
  cmdPrint.click = [this] {
    printAndSay(main_,
                [this](Printer& printer) { return printer.printImage(pictureTemp.image()); });
  };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmSave::takePicture(const Image& image) {
  history_.clear();
  pictureTemp.image = image;
}

/// A record that is missing leaves the data empty; lblScales names it.
void frmSave::Form_Activate() {
  notOfTraces_ = setNotOfTraces(main_);
  lblScales.caption = notOfTraces_ ? notOfTraces_(services().words) : "";
  lblScales.visible = static_cast<bool>(notOfTraces_);
  try {
    txtDatFile.text = BuildCsvText(shownSet(main_));
  } catch (const Error&) {
    txtDatFile.text = "";
  }
}

void frmSave::opFiletype_Click(int index) {
  pictureType_ = static_cast<std::int16_t>(index + Pictures::wmf);
  pictureExtension_ = opFiletype(index).caption();
}

void frmSave::pictureTemp_Click(int x, int y) {
  if (!cbWord.isChecked() || txtWord.text().empty()) return;
  history_.push_back(pictureTemp.image());
  pictureTemp.image = services().pictures.withText(history_.back(), txtWord.text(), x, y);
}

void frmSave::cmdUndo_Click() {
  if (history_.empty()) {
    services().dialogs.showMessage("Undo Error!");
    return;
  }
  pictureTemp.image = history_.back();
  history_.pop_back();
}

void frmSave::cmdReload_Click() {
  if (!history_.empty()) takePicture(Image(history_.front()));
}

void frmSave::cmdOK_Click() {
  const std::string pattern = "*." + pictureExtension_;
  FileDialog dialogSave{services().programFolder, caption(), timeStamp(services().clock),
                        pattern + "|" + pattern};
  // So that the last four characters of a name are its extension. Those of the data are refused.
  dialogSave.besides = {"csv", "inf"};
  dialogSave.extensions = dialogSave.besides;
  for (const OptionButton& format : opFiletype) dialogSave.extensions.push_back(format.caption());
  saveSet(services().dialogs.saveFile(dialogSave));
  hide();
  main_.refresh();
}

void frmSave::saveSet(const std::filesystem::path& path) {
  WaveformSet set = shownSet(main_);
  set.author = txtAuthor.text();
  set.description = txtDes.text();
  const std::string csv = txtDatFile.text();
  const std::string picture = services().pictures.encode(pictureTemp.image(), pictureType_);
  txtDatFile.text = buildInfText(set, pathText(path));
  try {
    writeWaveformSet(path, {csv, txtDatFile.text(), picture});
  } catch (const Error&) {
    // The window stays open, and its next OK begins with the data again.
    txtDatFile.text = csv;
    throw;
  }
  main_.status.tell(StatusLine::happened,
                    [=](const Words& words) { return setWasSaved(words, path); });
  if (notOfTraces_) main_.status.tellToo(StatusLine::happened, notOfTraces_);
}

}  // namespace tracewell
