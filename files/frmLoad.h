// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "Controls.h"
#include "Lists.h"
#include "WaveformSetReader.h"
#include "frmDSO.h"

namespace tracewell {

/// The load window: browses saved waveforms and lays one over the live traces as a reference.
class frmLoad : public Window {
 public:
  explicit frmLoad(frmDSO& main);

  Label lblDrive{*this, "lblDrive", "Drive :"};
  ComboBox driveCSV{*this, "driveCSV", std::vector<std::string>()};
  Label lblFolder{*this, "lblFolder", "Folder :"};
  ValueLabel lblPath{*this, "lblPath", ""};
  ListBox dirCSV{*this, "dirCSV"};
  Label lblFile{*this, "lblFile", "File :"};
  ListBox fileCSV{*this, "fileCSV"};
  PictureBox pictureCSV{*this, "pictureCSV"};
  /// Description of the chosen set.
  TextBox txtFile{*this, "txtFile"};
  CheckBox cb1{*this, "cb1", "Channel 1"};
  CheckBox cb2{*this, "cb2", "Channel 2"};
  /// Why OK has not loaded the set.
  ValueLabel lblWhyNot{*this, "lblWhyNot", ""};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  void Form_Activate();
  void driveCSV_Change();
  void dirCSV_Change();
  void showFolder(const std::filesystem::path& folder);
  void chooseShown();
  void chooseNone();
  void showSet(const std::string& dataPath);
  void fileCSV_Click();
  void cmdOK_Click();
  /// True if something is drawn.
  bool drawSet(const LoadedWaveforms& set);
  std::string whyNot(const Error& error) const;
  void sayWhyNot(const std::string& text);
  bool hasChanged() const;
  void showChanged();
  void sayWhatIsShown(std::size_t drawn, bool hasRoom);

  frmDSO& main_;
  std::filesystem::path folder_;
  /// Path of the chosen set's data file; empty for none.
  std::string dataPath_;
  WaveformDescription txtCSV_;
  /// Entry of fileCSV whose description is shown.
  int shownFile_ = ListBox::noEntry;
};

/// A reference was drawn from a file that is not as a panel saves it.
void tellOfOddFile(StatusLine& status);

}  // namespace tracewell
