// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include "RecordStrip.h"
#include "Recorder.h"
#include "RecorderBar.h"
#include "RecorderCursors.h"
#include "RecorderLogBar.h"
#include "RecorderTables.h"
#include "RecorderView.h"
#include "SaidTexts.h"

namespace tracewell {

class ElidedLabel;
class RecorderGraph;

/// The recorder's window: graph, strip of time, measurements, and what can be done with a record.
/// It is not modal, and shows what RecorderView says.
class RecorderWindow : public QWidget {
  Q_OBJECT

 public:
  explicit RecorderWindow(Recorder& recorder);

  /// To be called when a record has been kept. Costs nothing while the window is closed.
  void recordKept();
  RecorderView& view() { return view_; }
  /// The records that are marked, or the one pointed at, into a file. Raises pathAccess.
  void exportInto(const std::filesystem::path& path);
  /// The record pointed at, as a waveform set; the path is the picture's. Raises pathAccess.
  void saveSetInto(const std::filesystem::path& path);

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void layOut();
  QLayout* actionRow();
  QPushButton* addButton(QLayout& row, const char* name);
  void connectParts();
  void sayTexts();
  void sayExport();
  RecorderLook look() const;
  void takeLook();
  void goOn();
  /// All that shows has changed; painted once an event-loop turn.
  void showSoon();
  void showAll();
  void tellGraph(const std::vector<std::string>& cursors, const RecorderPicture& picture);
  void tellStrip(std::optional<RecordStore::Number> pointed);
  void showPins();
  void showLog();
  void measureSome();
  void say(const QString& text, bool isTrouble = false);
  /// Errors of `act` end in a sentence of this window.
  void run(const std::function<void()>& act);

  void pinOrLetGo();
  void showInPanel();
  void copy();
  void pickFile(const FileDialog& dialog, RecorderView::Still::File file,
                const std::function<void(const std::filesystem::path&)>& write);
  void exportCsv();
  void saveSet();

  Recorder& recorder_;
  RecorderView view_;
  RecorderCursors cursors_;
  SaidTexts texts_;
  RecorderBar* bar_;
  RecorderGraph* graph_;
  RecordStrip* strip_;
  RecorderTables* tables_;
  QLineEdit* pinName_ = nullptr;
  QPushButton* pin_ = nullptr;
  QComboBox* pins_ = nullptr;
  QPushButton* showInPanel_ = nullptr;
  QPushButton* copy_ = nullptr;
  QPushButton* save_ = nullptr;
  QPushButton* export_ = nullptr;
  QPushButton* log_ = nullptr;
  RecorderLogBar* logBar_;
  ElidedLabel* status_;
  ElidedLabel* logState_;
  QTimer measuring_;
  QTimer everySecond_;
  bool isShowDue_ = false;
  QStringList toldOfGraph_;
  /// The record that the strip has told of.
  std::optional<RecordStore::Number> told_;
};

}  // namespace tracewell
