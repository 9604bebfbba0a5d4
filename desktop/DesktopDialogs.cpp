// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopDialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QMainWindow>
#include <QMessageBox>
#include <algorithm>
#include <iostream>

#include "DesktopWords.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

QWidget* windowInUse() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  // The program has lost the focus, as at its end.
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto isPanel = [](const QWidget* top) {
    return top->isVisible() && qobject_cast<const QMainWindow*>(top) != nullptr;
  };
  const auto found = std::ranges::find_if(windows, isPanel);
  return found == windows.end() ? nullptr : *found;
}

QMessageBox::StandardButton showBox(QMessageBox::Icon icon, const std::string& title,
                                    const std::string& text,
                                    QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                    QMessageBox::StandardButton usual = QMessageBox::NoButton) {
  QMessageBox box(icon, shownTitle(title), QString(), buttons, windowInUse());
  box.setTextFormat(Qt::PlainText);
  box.setText(shownText(text, roomOfParagraph));
  box.setDefaultButton(usual);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// "*.dso|*.dso" (description, pattern) in Qt's form.
QString nameFilter(const std::string& filter) {
  const QStringList parts = toQt(filter).split(QLatin1Char('|'));
  return parts.size() < 2 ? parts.value(0)
                          : QStringLiteral("%1 (%2)").arg(parts.value(0), parts.value(1));
}

/// Goes by names. The toolkit's own looks into each file, which waits for a slow folder, and for
/// ever for a file that never ends.
class NamedKinds : public QFileIconProvider {
 public:
  QIcon icon(const QFileInfo& file) const override {
    return QFileIconProvider::icon(file.isDir() ? Folder : File);
  }
  QString type(const QFileInfo& file) const override {
    return file.isDir() ? QString() : file.suffix().toUpper();
  }
  using QFileIconProvider::icon;
};

bool isFree(const std::filesystem::path& path) {
  std::error_code ignored;
  return !std::filesystem::exists(path, ignored);
}

/// In the toolkit's words.
bool isReplaced(const std::filesystem::path& path, const std::string& title) {
  const QString asked = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
  return showBox(QMessageBox::Warning, title, fromQt(asked.arg(toQt(path.filename()))),
                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

/// Where all are there they are one's own, and have been asked for with it.
bool areReplacedBeside(const std::filesystem::path& path, const FileDialog& dialog) {
  std::vector<std::filesystem::path> there;
  for (const std::string& extension : dialog.besides) {
    std::filesystem::path beside = path;
    beside.replace_extension(extension);
    if (!isFree(beside)) there.push_back(std::move(beside));
  }
  if (!isFree(path) && there.size() == dialog.besides.size()) return true;
  return std::ranges::all_of(there,
                             [&](const auto& beside) { return isReplaced(beside, dialog.title); });
}

/// All file dialogs are made here.
std::filesystem::path ask(const FileDialog& dialog, QFileDialog::AcceptMode mode) {
  NamedKinds kinds;
  QFileDialog box(windowInUse(), shownTitle(dialog.title), toQt(dialog.initialFolder),
                  nameFilter(dialog.filter));
  box.setIconProvider(&kinds);
  box.setAcceptMode(mode);
  box.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                  : QFileDialog::AnyFile);
  box.setOption(QFileDialog::DontConfirmOverwrite, dialog.isContinued);
  box.setDefaultSuffix(toQt(dialog.usualExtension()));
  box.selectFile(toQt(dialog.fileName));
  while (box.exec() == QDialog::Accepted) {
    const std::filesystem::path picked = toPath(box.selectedFiles().value(0));
    const bool isThere = dialog.isContinued && !isFree(picked);
    if (mode == QFileDialog::AcceptOpen || isThere) return picked;
    const std::filesystem::path path = dialog.completed(picked);
    // The toolkit has asked for what was picked only.
    const bool isTaken =
        path == picked || dialog.isContinued || isFree(path) || isReplaced(path, dialog.title);
    if (isTaken && areReplacedBeside(path, dialog)) return path;
  }
  return dialog.fileName;
}

}  // namespace

Answer DesktopDialogs::answerYesNo(const std::string& prompt, const std::string& title,
                                   Answer usual) {
  if (isAlone_) {
    say(QMessageBox::Question, prompt + " Yes");
    return Answer::Yes;
  }
  const auto answer =
      showBox(QMessageBox::Question, title, prompt, QMessageBox::Yes | QMessageBox::No,
              usual == Answer::Yes ? QMessageBox::Yes : QMessageBox::No);
  return answer == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void DesktopDialogs::goOnAlone() {
  isAlone_ = true;
  if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
}

void DesktopDialogs::showMessage(const std::string& text) {
  say(QMessageBox::Warning, text);
}

void DesktopDialogs::showRunTimeError(const Error& error) {
  say(QMessageBox::Critical,
      fromQt(panelText("Run-time error %1").arg(error.number())) + "\n\n" + error.description());
}

void DesktopDialogs::say(QMessageBox::Icon icon, const std::string& text) {
  if (isAlone_)
    std::cerr << "tracewell: " << fromQt(shownText(text, roomOfParagraph)) << "\n";
  else
    showBox(icon, "Tracewell", text);
}

std::filesystem::path DesktopDialogs::fileToOpen(const FileDialog& dialog) {
  return ask(dialog, QFileDialog::AcceptOpen);
}

Colour DesktopDialogs::pickedColour(Colour initial) {
  const QColor picked = QColorDialog::getColor(toQt(initial), windowInUse());
  return picked.isValid() ? fromQt(picked) : initial;
}

std::filesystem::path DesktopDialogs::fileToSave(const FileDialog& dialog) {
  return ask(dialog, QFileDialog::AcceptSave);
}

}  // namespace tracewell
