// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "Controls.h"
#include "Lists.h"
#include "frmDSO.h"

namespace tracewell {

/// The load window: browses saved waveforms and lays one over the live traces as a reference.
class frmLoad : public Window {
 public:
  explicit frmLoad(frmDSO& main);

  Label lblDrive{*this, "lblDrive", "Drive :"};
  ComboBox driveCSV{*this, "driveCSV", {}};
  Label lblFolder{*this, "lblFolder", "Folder :"};
  ListBox dirCSV{*this, "dirCSV"};
  Label lblFile{*this, "lblFile", "File :"};
  ListBox fileCSV{*this, "fileCSV"};
  PictureBox pictureCSV{*this, "pictureCSV"};
  /// Description of the chosen set.
  TextBox txtFile{*this, "txtFile"};
  CheckBox cb1{*this, "cb1", "Channel 1"};
  CheckBox cb2{*this, "cb2", "Channel 2"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  void Form_Load();
  void Form_Activate();
  void driveCSV_Change();
  void dirCSV_Change();
  void showFolder(const std::filesystem::path& folder);
  void fileCSV_Click();
  void cmdOK_Click();

  frmDSO& main_;
  std::filesystem::path folder_;
  /// Path of the chosen set up to and including the dot of the extension.
  std::string basePath_;
  /// Positions at saving time, "N" for a channel that was not saved, and the time line.
  std::string channel1Value_;
  std::string channel2Value_;
  std::string timeValue_;
};

}  // namespace tracewell
