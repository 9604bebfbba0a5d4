// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "Lists.h"
#include "frmDSO.h"

namespace tracewell {

/// The save window: a picture of the graph to write notes on, and three files of one base name: the
/// picture in one of nine formats, the samples (".csv"), and the description (".inf"). A set of the
/// same name is replaced as a whole: if one file cannot be written all stay as they were. So a
/// description never refers to other data or to a missing picture.
class frmSave : public Window {
 public:
  explicit frmSave(frmDSO& main);

  PictureBox pictureTemp{*this, "pictureTemp"};
  CheckBox cbWord{*this, "cbWord", "Text Input"};
  TextBox txtWord{*this, "txtWord"};
  Button cmdUndo{*this, "cmdUndo", "Undo"};
  Button cmdReload{*this, "cmdReload", "Erase All"};
  Button cmdPrint{*this, "cmdPrint", "print"};
  Frame fmFiletype{*this, "fmFiletype", "File format"};
  /// A format's caption is also its extension, as it stands.
  ControlArray<OptionButton> opFiletype{
      *this, "opFiletype", {"wmf", "bmp", "gif", "Ico", "cur", "pcx", "tif", "png", "jpg"}};
  Label lblAuthor{*this, "lblAuthor", "Author :"};
  TextBox txtAuthor{*this, "txtAuthor"};
  Label lblDes{*this, "lblDes", "Description :"};
  TextBox txtDes{*this, "txtDes"};
  /// The text of the data file, then that of the description file.
  TextBox txtDatFile{*this, "txtDatFile"};
  /// Says which scales and positions that will be written are not the traces', and
  /// which record is missing.
  ValueLabel lblScales{*this, "lblScales", ""};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Starts with this picture; earlier drawings are forgotten.
  void takePicture(const Image& image);

 private:
  void Form_Activate();
  void opFiletype_Click(int index);
  void pictureTemp_Click(int x, int y);
  void cmdUndo_Click();
  void cmdReload_Click();
  void cmdOK_Click();
  void saveSet(const std::filesystem::path& path);

  frmDSO& main_;
  StatusLine::Sentence notOfTraces_;
  std::int16_t pictureType_ = Pictures::jpg;
  std::string pictureExtension_ = "jpg";
  /// The pictures before each drawing; the first is the graph's.
  std::vector<Image> history_;
};

}  // namespace tracewell
