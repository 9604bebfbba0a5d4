// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmSave.h"

#include "Files.h"
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

/// Where it is without a folder of its own, the present one.
std::string folderText(const std::filesystem::path& path) {
  return pathText(std::filesystem::absolute(path).parent_path());
}

/// Without regard to case, which not every file system knows.
bool isDataExtension(std::string extension) {
  for (char& c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return extension == ".csv" || extension == ".inf";
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
  cmdPrint.click = [this] { services().printer.printImage(pictureTemp.image()); };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmSave::takePicture(const Image& image) {
  history_.clear();
  pictureTemp.image = image;
}

/// Says nothing where no record has come yet: there is nothing to save then.
void frmSave::Form_Activate() {
  scalesNotOfTraces_ = scalesNotOfTraces(main_);
  lblScales.caption = scalesNotOfTraces_ ? scalesNotOfTraces_(services().words) : "";
  lblScales.visible = static_cast<bool>(scalesNotOfTraces_);
  try {
    txtDatFile.text = BuildCsvText(main_);
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
  const FileDialog dialogSave{services().programFolder, caption(), timeStamp(services().clock),
                              pattern + "|" + pattern};
  saveSet(services().dialogs.saveFile(dialogSave));
  hide();
  main_.refresh();
}

void frmSave::saveSet(const std::filesystem::path& path) {
  const std::string name = pathText(path);
  const std::string base = withoutExtension(name);
  const std::string csv = txtDatFile.text();
  const std::string picture = services().pictures.encode(pictureTemp.image(), pictureType_);
  if (isDataExtension(name.substr(base.size())))
    throw Error(pathAccess, "Tracewell", "A picture cannot have the name of its data: " + name);
  txtDatFile.text = buildInfText(main_, name, txtAuthor.text(), txtDes.text());
  try {
    checkReadable(pathOf(base + ".inf"), txtDatFile.text(), fileLimit::description);
    writeWholeFiles({{pathOf(base + ".csv"), csv},
                     {pathOf(base + ".inf"), txtDatFile.text()},
                     {path, picture}});
  } catch (const Error&) {
    // The window stays open, and its next OK begins with the data again.
    txtDatFile.text = csv;
    throw;
  }
  const auto nameOf = [](const std::string& text) { return pathText(pathOf(text).filename()); };
  main_.status.tell(StatusLine::happened, [=](const Words& words) {
    return words.say("Saved %1, %2 and %3 in %4", {pathText(path.filename()), nameOf(base + ".csv"),
                                                   nameOf(base + ".inf"), folderText(path)});
  });
  if (scalesNotOfTraces_) main_.status.tellToo(StatusLine::happened, scalesNotOfTraces_);
}

}  // namespace tracewell
