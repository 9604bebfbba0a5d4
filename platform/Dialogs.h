// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "Colour.h"
#include "Error.h"

namespace tracewell {

/// What a file dialog starts from. `filter` is in the form "*.dso|*.dso" (description|pattern).
struct FileDialog {
  std::filesystem::path initialFolder;
  std::string title;
  std::string fileName;
  std::string filter;
};

enum class Answer { Yes, No };

/// The desktop's ready-made dialogs, all modal: a call returns when the user is done with it.
/// Implemented by desktop/DesktopDialogs, and by tests/RecordingDialogs.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  virtual Answer askYesNo(const std::string& prompt, const std::string& title) = 0;

  /// Says that something went wrong and what the program has made of it.
  virtual void showMessage(const std::string& text) = 0;

  /// The box of the event dispatcher, for an error that no handler has trapped.
  virtual void showRunTimeError(const Error& error) = 0;

  /// The path that the user picked. After Cancel it is `dialog.fileName` as given: a bare name,
  /// which the caller then uses against the current folder.
  virtual std::filesystem::path openFile(const FileDialog& dialog) = 0;
  /// The same for a file to be written; asks before one that is there is replaced.
  virtual std::filesystem::path saveFile(const FileDialog& dialog) = 0;

  /// The colour that the user picked, or `initial` after Cancel.
  virtual Colour pickColour(Colour initial) = 0;
};

}  // namespace tracewell
