// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmLoad.h"

#include <algorithm>
#include <array>

#include "DataFolder.h"
#include "Disk.h"
#include "Files.h"
#include "Numbers.h"
#include "WaveformSetReader.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

bool isPictureType(const std::string& picturePath) {
  constexpr std::array<std::string_view, 6> types = {"jpg", "bmp", "pcx", "tif", "png", "gif"};
  const std::string small = smallLetters(picturePath);
  return std::ranges::any_of(types, [&](std::string_view type) { return small.ends_with(type); });
}

/// Beside a data file whose name has capitals, as another system writes it, the description's may
/// have them, too.
std::string descriptionPath(const std::string& dataPath) {
  constexpr std::size_t extensionLength = 3;
  const std::string base = dataPath.substr(0, dataPath.size() - extensionLength);
  std::error_code ignored;
  const bool hasCapitals = dataPath.ends_with("CSV") && !fs::exists(pathOf(base + "inf"), ignored);
  return base + (hasCapitals ? "INF" : "inf");
}

}  // namespace

frmLoad::frmLoad(frmDSO& main)
    : Window("frmLoad", "Load Waveform", main.services()),
      main_(main),
      folder_(main.services().programFolder) {
  cb1.value.setQuietly(1);
  cb2.value.setQuietly(1);
  formActivate = [this] { Form_Activate(); };
  driveCSV.click = [this] { driveCSV_Change(); };
  dirCSV.opened = [this] { dirCSV_Change(); };
  fileCSV.click = [this] { fileCSV_Click(); };
  lblWhyNot.visible = false;
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

/// Anew at each opening: sets may have been saved meanwhile, also the chosen one, and folders may
/// have gone.
void frmLoad::Form_Activate() {
  driveCSV.items = diskInUse() != nullptr ? diskInUse()->drives()
                                          : std::vector<std::string>{pathText(folder_.root_path())};
  try {
    showFolder(folder_);
  } catch (const Error&) {
    showFolder(services().programFolder);
  }
  try {
    if (!dataPath_.empty()) showSet(dataPath_);
  } catch (const Error&) {
    chooseNone();
  }
}

void frmLoad::driveCSV_Change() {
  try {
    showFolder(pathOf(driveCSV.text()));
  } catch (const Error&) {
    driveCSV.text = pathText(folder_.root_path());
    throw;
  }
}

void frmLoad::dirCSV_Change() {
  const std::string name = dirCSV.chosenText();
  showFolder(name == parentFolder ? folder_.parent_path() : folder_ / pathOf(name));
}

void frmLoad::showFolder(const fs::path& folder) {
  DataFolder content = readDataFolder(folder, services().standBy);
  folder_ = folder;
  driveCSV.text = pathText(folder.root_path());
  sayWhyNot("");
  lblPath.caption = pathText(folder);
  dirCSV.items = std::move(content.folders);
  fileCSV.items = std::move(content.dataFiles);
  chooseShown();
}

/// The details are those of the set that OK would load: without it in the list, of none.
void frmLoad::chooseShown() {
  const auto& files = fileCSV.items();
  const auto found = std::ranges::find_if(files, [this](const std::string& name) {
    return pathText(folder_ / pathOf(name)) == dataPath_;
  });
  shownFile_ = static_cast<int>(found - files.begin());
  if (found == files.end()) return chooseNone();
  fileCSV.chosen = shownFile_;
}

void frmLoad::chooseNone() {
  shownFile_ = ListBox::noEntry;
  fileCSV.chosen = shownFile_;
  dataPath_.clear();
  txtFile.text = "";
  pictureCSV.image = Image();
}

/// All or nothing: a set that cannot be shown leaves the one before it chosen.
void frmLoad::showSet(const std::string& dataPath) {
  WaveformDescription txtCSV = readDescription(pathOf(descriptionPath(dataPath)));
  if (!isPictureType(txtCSV.picturePath))
    throw Error(invalidProcedureCall, "Tracewell", "No picture: " + txtCSV.picturePath);
  pictureCSV.image = services().pictures.load(pathOf(txtCSV.picturePath));
  txtFile.text = "Data File : " + txtCSV.dataFile + "\r\nAuthor : " + txtCSV.author +
                 "\r\nDescription : " + txtCSV.description + "\r\nCh1 : " + txtCSV.channel1 +
                 "\r\nCh2 : " + txtCSV.channel2 + "\r\nTime : " + txtCSV.time + "\r\n";
  dataPath_ = dataPath;
  txtCSV_ = std::move(txtCSV);
}

void frmLoad::fileCSV_Click() {
  if (fileCSV.chosen() == ListBox::noEntry) return;
  sayWhyNot("");
  try {
    showSet(pathText(folder_ / pathOf(fileCSV.chosenText())));
    shownFile_ = fileCSV.chosen();
  } catch (const Error&) {
    services().dialogs.showMessage("File is not correct!");
    fileCSV.chosen = shownFile_;
  }
}

void frmLoad::cmdOK_Click() {
  try {
    const std::string text = readWaveformFile(pathOf(dataPath_));
    if (hasChanged()) return showChanged();
    if (drawSet(readWaveforms(text, txtCSV_.channel1, txtCSV_.channel2))) {
      const auto saved = channelsAsSaved(text);
      const bool isAsSaved = saved && saved->one == (txtCSV_.channel1 != notSaved) &&
                             saved->two == (txtCSV_.channel2 != notSaved);
      if (!isAsSaved) tellOfOddFile(main_.status);
    }
    hide();
  } catch (const Error& error) {
    // Without a box: the window stays for another choice.
    sayWhyNot(whyNot(error));
  }
}

/// The samples that have been read may be another set's then, with other positions and scales.
bool frmLoad::hasChanged() const {
  return readDescription(pathOf(descriptionPath(dataPath_))) != txtCSV_;
}

void frmLoad::showChanged() {
  showSet(dataPath_);
  sayWhyNot(
      services().words.say("%1 has changed since you chose it: press %2 to load it as it is now",
                           {dataPath_, cmdOK.caption()}));
}

std::string frmLoad::whyNot(const Error& error) const {
  const Words& words = services().words;
  if (dataPath_.empty()) return words.say("No set is chosen");
  const std::string reason = error.number() == subscriptOutOfRange
                                 ? words.say("more than 500 lines of data")
                                 : error.description();
  return words.say("%1 was not loaded: %2", {dataPath_, reason});
}

/// Until another set is chosen.
void frmLoad::sayWhyNot(const std::string& text) {
  lblWhyNot.caption = text;
  lblWhyNot.visible = !text.empty();
}

/// Into the first reference plot that is free and, for the second channel, the one behind it.
bool frmLoad::drawSet(const LoadedWaveforms& set) {
  int number = ScopeGraph::firstReference;
  while (number <= ScopeGraph::plotCount && main_.graphDSO.plot(number).visible()) ++number;
  std::size_t drawn = 0;
  bool hasRoom = true;
  std::string replaced;
  const auto draw = [&](const std::vector<double>& points, const std::string& scale) {
    if (points.empty()) return;
    hasRoom = number <= ScopeGraph::plotCount;
    if (!hasRoom) return;
    Plot& plot = main_.graphDSO.plot(number);
    if (plot.visible()) replaced = plot.label();
    plot.plotXvsY(main_.XIndex, points);
    plot.origin = pathText(pathOf(dataPath_).filename());
    plot.scale = scale;
    plot.visible = true;
    ++number;
    ++drawn;
  };
  if (cb1.isChecked() && txtCSV_.channel1 != notSaved) draw(set.channel1, txtCSV_.time);
  // The scale of the second channel stands in no description.
  if (cb2.isChecked() && txtCSV_.channel2 != notSaved) draw(set.channel2, "");
  sayWhatIsShown(drawn, hasRoom);
  if (!replaced.empty())
    main_.status.tellToo(StatusLine::happened, [replaced](const Words& words) {
      return words.say("Loaded in the place of %1", {replaced});
    });
  return drawn > 0;
}

void frmLoad::sayWhatIsShown(std::size_t drawn, bool hasRoom) {
  const bool isDone = hasRoom && drawn > 0;
  main_.status.tell(isDone ? StatusLine::happened : StatusLine::failed, [=, this, path = dataPath_](
                                                                            const Words& words) {
    if (!hasRoom)
      return words.say("No room for all of %1: press %2 first", {path, main_.cmdRemove.caption()});
    return drawn == 0 ? words.say("%1 has no record of what was chosen", {path})
                      : words.say("Loaded %1", {path});
  });
}

void tellOfOddFile(StatusLine& status) {
  status.tellToo(StatusLine::happened, [](const Words& words) {
    return words.say("The file is not as a panel saves it: its trace may be wrong");
  });
}

}  // namespace tracewell
