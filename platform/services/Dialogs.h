// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "Colour.h"
#include "Error.h"
#include "Gate.h"

namespace tracewell {

/// What a file dialog starts from. `filter` is in the form "*.dso|*.dso" (description|pattern).
struct FileDialog {
  std::filesystem::path initialFolder;
  std::string title;
  std::string fileName;
  std::string filter;
  /// A file to save that is there already will be continued: nothing is asked.
  bool isContinued = false;
  /// Those of which a name to save has one; none if any will do that is a word, as "txt" is and
  /// "v2" is not.
  std::vector<std::string> extensions = {};
  /// Those of the files that will be written beside a new one. The dialog asks before one of them
  /// is replaced.
  std::vector<std::string> besides = {};

  /// That of the filter, "dso" of "*.dso".
  std::string usualExtension() const;
  /// A path that the user has picked for saving: with the usual extension behind a name that has
  /// none, as "test.1".
  std::filesystem::path completed(const std::filesystem::path& picked) const;
};

enum class Answer { Yes, No };

/// The desktop's ready-made dialogs, all modal: a call returns when the user is done.
/// desktop/DesktopDialogs and tests/RecordingDialogs implement the private functions.
///
/// Dialogs that ask the user throw ProgramEnded if the program has ended before or while they were
/// open: without the user there is no answer.
class Dialogs {
 public:
  explicit Dialogs(const Gate& gate) : gate_(gate) {}
  virtual ~Dialogs() = default;

  /// `usual` is what Enter answers; Escape answers no.
  Answer askYesNo(const std::string& prompt, const std::string& title, Answer usual = Answer::Yes);

  /// Says what went wrong and what the program did about it.
  virtual void showMessage(const std::string& text) = 0;

  /// The box of the event dispatcher, for an error that no handler has trapped.
  virtual void showRunTimeError(const Error& error) = 0;

  /// Returns the path that the user picked. After Cancel it is `dialog.fileName` as given: a bare
  /// name, which the caller then uses in the current folder.
  std::filesystem::path openFile(const FileDialog& dialog);
  /// The same for a file to be written; asks before one is replaced.
  std::filesystem::path saveFile(const FileDialog& dialog);

  /// The colour that the user picked, or `initial` after Cancel.
  Colour pickColour(Colour initial);

 private:
  virtual Answer answerYesNo(const std::string& prompt, const std::string& title, Answer usual) = 0;
  virtual std::filesystem::path fileToOpen(const FileDialog& dialog) = 0;
  virtual std::filesystem::path fileToSave(const FileDialog& dialog) = 0;
  virtual Colour pickedColour(Colour initial) = 0;

  const Gate& gate_;
};

}  // namespace tracewell
