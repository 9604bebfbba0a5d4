// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderWindow.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "Accessible.h"
#include "DesktopWords.h"
#include "ElidedLabel.h"
#include "Error.h"
#include "Files.h"
#include "PanelReference.h"
#include "QtValues.h"
#include "RecorderFiles.h"
#include "RecorderGraph.h"
#include "RecorderWords.h"
#include "ShownText.h"

namespace tracewell {
namespace {

constexpr int tablesWidth = 350;
/// So many records are measured for the statistics at a time, and so long nothing is in between:
/// the panel goes on meanwhile. Milliseconds.
constexpr int measuredAtOnce = 20;
constexpr int betweenMeasuring = 20;

/// The last one is what a name without an ending gets.
constexpr const char* pictureNames = "|*.jpg *.bmp *.gif *.pcx *.tif *.png";

/// As the panel and a list of records tell it from others.
std::string ownNameOf(const RecordFacts& facts) {
  return channelName(facts.channel) + " " + timeOfDay(facts.wallTime);
}

/// With its name where it is pinned.
std::string nameOf(const RecordStore& store, RecordStore::Number number) {
  const std::string own = ownNameOf(store.facts(number));
  const std::string name = store.nameOf(number).value_or(own);
  return name == own ? own : own + " " + name;
}

/// Whoever listens hears of each entry.
void fill(QComboBox& box, const QStringList& entries, const QVariantList& numbers) {
  bool isSame = box.count() == entries.size();
  for (int i = 0; isSame && i < box.count(); ++i)
    isSame = box.itemText(i) == entries[i] && box.itemData(i) == numbers[i];
  if (isSame) return;
  const QSignalBlocker blocker(box);
  box.clear();
  for (qsizetype i = 0; i < entries.size(); ++i) box.addItem(entries[i], numbers[i]);
}

void showSentence(ElidedLabel& label, const QString& text, bool isTrouble) {
  label.setText(text);
  label.setSentences({{text, isTrouble}});
  label.setVisible(!text.isEmpty());
}

}  // namespace

RecorderWindow::RecorderWindow(Recorder& recorder)
    : recorder_(recorder),
      view_(recorder.store(), recorder.main().services().words),
      bar_(new RecorderBar(view_, cursors_, this)),
      graph_(new RecorderGraph(this)),
      strip_(new RecordStrip(view_, this)),
      tables_(new RecorderTables(view_, this)),
      logBar_(new RecorderLogBar(recorder, this)),
      status_(new ElidedLabel(this)),
      logState_(new ElidedLabel(this)) {
  setObjectName(QStringLiteral("recorderWindow"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setRole(*this, QAccessible::Window);
  setRole(*graph_, QAccessible::Graphic);
  setRole(*strip_, QAccessible::Graphic);
  layOut();
  sayTexts();
  connectParts();
  takeLook();
  // With its frame, on a small screen.
  resize(QSize(1180, 760).boundedTo(screen()->availableSize() - QSize(8, 40)));
  strip_->setFocus();
}

void RecorderWindow::layOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(8, 8, 8, 6);
  rows->setSpacing(6);
  rows->addWidget(bar_);
  auto* const middle = new QHBoxLayout;
  middle->setSpacing(8);
  auto* const drawn = new QVBoxLayout;
  drawn->setSpacing(4);
  drawn->addWidget(graph_, 1);
  drawn->addWidget(strip_);
  middle->addLayout(drawn, 1);
  tables_->setFixedWidth(tablesWidth);
  middle->addWidget(tables_);
  rows->addLayout(middle, 1);
  rows->addLayout(actionRow());
  rows->addWidget(logBar_);
  logBar_->hide();
  auto* const states = new QHBoxLayout;
  states->addWidget(status_);
  states->addWidget(logState_);
  for (ElidedLabel* label : {status_, logState_}) label->setProperty("kind", "status");
  status_->setObjectName(QStringLiteral("recorderStatus"));
  // Each has the whole line while the other one is silent.
  states->addStrut(status_->sizeHint().height());
  for (ElidedLabel* label : {status_, logState_}) label->hide();
  logState_->setObjectName(QStringLiteral("logState"));
  rows->addLayout(states);
}

QPushButton* RecorderWindow::addButton(QLayout& row, const char* name) {
  auto* const button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  row.addWidget(button);
  return button;
}

QLayout* RecorderWindow::actionRow() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(6);
  pinName_ = new QLineEdit(this);
  pinName_->setObjectName(QStringLiteral("pinName"));
  pinName_->setMaxLength(60);
  pinName_->setMinimumWidth(90);
  pinName_->setMaximumWidth(150);
  row->addWidget(pinName_);
  pin_ = addButton(*row, "pin");
  pins_ = new QComboBox(this);
  pins_->setObjectName(QStringLiteral("pins"));
  pins_->setMinimumContentsLength(18);
  pins_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  row->addWidget(pins_);
  row->addStretch(1);
  showInPanel_ = addButton(*row, "showInPanel");
  copy_ = addButton(*row, "copy");
  save_ = addButton(*row, "save");
  export_ = addButton(*row, "export");
  log_ = addButton(*row, "log");
  log_->setCheckable(true);
  return row;
}

void RecorderWindow::connectParts() {
  connect(bar_, &RecorderBar::chosen, this, &RecorderWindow::goOn);
  connect(strip_, &RecordStrip::used, this, &RecorderWindow::goOn);
  connect(graph_, &RecorderGraph::cursorMoved, this, [this](std::size_t cursor, double share) {
    cursors_.move(cursor, share);
    showSoon();
  });
  connect(graph_, &RecorderGraph::keyLeft, this,
          [this](QKeyEvent* event) { QCoreApplication::sendEvent(strip_, event); });
  connect(pin_, &QPushButton::clicked, this, [this] { run([this] { pinOrLetGo(); }); });
  connect(pinName_, &QLineEdit::returnPressed, this, [this] { run([this] { pinOrLetGo(); }); });
  connect(pinName_, &QLineEdit::textChanged, this, [this] { showPins(); });
  connect(pins_, &QComboBox::activated, this, [this](int index) {
    if (index > 0) view_.select(pins_->itemData(index).toLongLong());
    goOn();
  });
  pins_->view()->installEventFilter(this);
  connect(showInPanel_, &QPushButton::clicked, this, [this] { run([this] { showInPanel(); }); });
  connect(copy_, &QPushButton::clicked, this, [this] { run([this] { copy(); }); });
  connect(save_, &QPushButton::clicked, this, [this] { run([this] { saveSet(); }); });
  connect(export_, &QPushButton::clicked, this, [this] { run([this] { exportCsv(); }); });
  connect(log_, &QPushButton::toggled, logBar_, &QWidget::setVisible);
  connect(logBar_, &RecorderLogBar::said, this, [this](const QString& text) { say(text); });
  connect(logBar_, &RecorderLogBar::used, this, &RecorderWindow::showSoon);
  connect(&measuring_, &QTimer::timeout, this, &RecorderWindow::measureSome);
  connect(&everySecond_, &QTimer::timeout, this, [this] {
    if (isVisible()) showLog();
  });
  everySecond_.start(1000);
  // The key that opens it closes it, too.
  connect(new QShortcut(Qt::Key_F9, this), &QShortcut::activated, this, &QWidget::close);
}

void RecorderWindow::sayTexts() {
  texts_.add([this] {
    setWindowTitle(panelText("Recorder") + QStringLiteral(" - Tracewell"));
    graph_->setAccessibleName(panelText("Graph of the record"));
    strip_->setAccessibleName(panelText("Records along time"));
    strip_->setToolTip(
        panelText("Click or drag: a record. Shift + drag: a stretch, Esc: none. Wheel: zoom. Arrow "
                  "keys, Page Up and Down, Home, End: step. Dotted line: a gap"));
    pinName_->setPlaceholderText(panelText("Name"));
    pinName_->setAccessibleName(panelText("Name of the pinned record"));
    pins_->setAccessibleName(panelText("Pinned records"));
    pins_->setToolTip(panelText("Goes to a pinned record; it stays when others go"));
    showInPanel_->setText(panelText("Show in the panel"));
    showInPanel_->setToolTip(panelText("Lays what is drawn over the live traces, as Load does"));
    copy_->setText(panelText("Copy"));
    copy_->setToolTip(panelText("Copies the picture and its values for other programs (Ctrl+C)"));
    copy_->setShortcut(QKeySequence::Copy);
    save_->setText(panelText("Save…"));
    save_->setToolTip(
        panelText("Saves this record as a waveform set, which Load in the panel shows (Ctrl+S)"));
    save_->setShortcut(QKeySequence::Save);
    sayExport();
    export_->setToolTip(panelText(
        "Writes the marked stretch, else this record, as CSV in volts and seconds (Ctrl+E)"));
    log_->setText(panelText("Log"));
    log_->setToolTip(panelText("Measurements of each record into a file, for hours (Ctrl+L)"));
    log_->setShortcut(Qt::CTRL | Qt::Key_L);
  });
}

/// The stretch may be out of sight.
void RecorderWindow::sayExport() {
  export_->setText(view_.isMarked() ? panelText("Export stretch…") : panelText("Export…"));
  export_->setShortcut(Qt::CTRL | Qt::Key_E);
}

RecorderLook RecorderWindow::look() const {
  const frmDSO& main = recorder_.main();
  return {toQt(main.graphDSO.plotAreaColour()),
          toQt(main.graphDSO.axis("XAxis").gridColour()),
          {toQt(main.channels[0].plot.lineColour()), toQt(main.channels[1].plot.lineColour())}};
}

void RecorderWindow::takeLook() {
  const RecorderLook now = look();
  graph_->setLook(now);
  strip_->setLook(now);
}

void RecorderWindow::recordKept() {
  view_.recordKept();
  if (!isVisible()) return;
  showSoon();
}

/// What was said of something else is over.
void RecorderWindow::goOn() {
  say({});
  showSoon();
}

void RecorderWindow::showSoon() {
  if (isShowDue_) return;
  isShowDue_ = true;
  QTimer::singleShot(0, this, [this] {
    isShowDue_ = false;
    showAll();
  });
}

void RecorderWindow::showAll() {
  takeLook();
  const auto pointed = view_.selected();
  const int channel = pointed ? recorder_.store().facts(*pointed).channel : 1;
  const RecorderPicture picture = view_.picture();
  const auto texts = cursorTexts(cursors_, picture, channel);
  graph_->showPicture(picture, cursors_, texts);
  tellGraph(texts, picture);
  tellStrip(pointed);
  strip_->update();
  bar_->showState();
  tables_->showState();
  showPins();
  sayExport();
  showLog();
  for (QPushButton* button : {pin_, showInPanel_, copy_, save_, export_})
    button->setEnabled(pointed.has_value());
  measuring_.start(betweenMeasuring);
}

/// What changes with each record can be asked for, and is not told.
void RecorderWindow::tellGraph(const std::vector<std::string>& cursors,
                               const RecorderPicture& picture) {
  QStringList said;
  for (const auto* list : {&cursors, &picture.notes})
    for (const std::string& text : *list) said << toQt(text);
  int channel = 0;
  for (const RecorderPicture::Label& label : picture.labels) {
    const bool isFirst = std::exchange(channel, label.channel) != label.channel;
    said << toQt((isFirst ? channelName(channel) + ": " : "") + label.text)
                .replace(QLatin1Char('\n'), QLatin1Char(' '));
  }
  if (said == toldOfGraph_) return;
  toldOfGraph_ = said;
  setWords(*graph_, said.join(QStringLiteral(". ")));
  if (!view_.isFollowing()) tellWords(*graph_);
}

/// The number of those that are kept goes on counting, and the newest is another one all the time:
/// neither is told, but both can be asked for.
void RecorderWindow::tellStrip(std::optional<RecordStore::Number> pointed) {
  setWords(*strip_, toQt(view_.title()));
  if (!view_.isFollowing() && pointed != told_) tellWords(*strip_);
  told_ = view_.isFollowing() ? std::nullopt : pointed;
}

void RecorderWindow::measureSome() {
  const bool isMore = view_.measureMore(measuredAtOnce);
  if (isMore && isVisible()) return;
  measuring_.stop();
  if (isVisible()) tables_->showState();
}

/// A name that is new renames a record that is pinned.
void RecorderWindow::showPins() {
  // Nothing moves under the user who chooses.
  if (pins_->view()->isVisible()) return;
  const auto pinned = recorder_.store().pinned();
  const auto pointed = view_.selected();
  QStringList entries = {pinned.empty() ? panelText("Nothing pinned")
                                        : panelText("Pinned: %1").arg(pinned.size())};
  QVariantList numbers = {QVariant()};
  int current = 0;
  for (const auto& [number, name] : pinned) {
    const std::string own = ownNameOf(recorder_.store().facts(number));
    entries << shownText(name == own ? own : name + " " + own, roomOfCaption);
    numbers << static_cast<qlonglong>(number);
    if (number == pointed) current = static_cast<int>(entries.size()) - 1;
  }
  fill(*pins_, entries, numbers);
  const bool isPinned = current > 0;
  const QSignalBlocker blocker(pins_);
  if (pins_->currentIndex() != current) pins_->setCurrentIndex(current);
  pins_->setEnabled(!pinned.empty());
  const bool isLetGo = isPinned && pinName_->text().trimmed().isEmpty();
  pin_->setText(isLetGo ? panelText("Let go") : isPinned ? panelText("Rename") : panelText("Pin"));
  setTip(*pin_, isLetGo ? panelText("This record may go with the others again")
                        : panelText("Keeps this record, under the name, when others go"));
}

void RecorderWindow::showLog() {
  logBar_->showState();
  const Words& words = recorder_.main().services().words;
  const bool isTrouble = !recorder_.troubleText(words).empty();
  showSentence(*logState_, shownText(recorder_.logText(words), roomOfLine), isTrouble);
}

void RecorderWindow::say(const QString& text, bool isTrouble) {
  showSentence(*status_, text, isTrouble);
}

void RecorderWindow::run(const std::function<void()>& act) {
  recorder_.main().services().dispatcher.dispatch([&] {
    say({});
    try {
      act();
    } catch (const Error& error) {
      say(shownText(error.description(), roomOfLine), true);
    }
    showSoon();
  });
}

void RecorderWindow::pinOrLetGo() {
  const auto pointed = view_.selected();
  if (!pointed) return;
  RecordStore& store = recorder_.store();
  const QString name = pinName_->text().trimmed();
  if (name.isEmpty() && store.nameOf(*pointed)) return store.letGo(*pointed);
  if (!store.pin(*pointed, name.isEmpty() ? ownNameOf(store.facts(*pointed)) : fromQt(name)))
    return say(panelText("No more records can be pinned"));
  // It is pointed at until the user goes on.
  view_.select(*pointed);
  pinName_->clear();
}

void RecorderWindow::showInPanel() {
  const RecordStore& store = recorder_.store();
  bool haveRoom = true;
  for (const int channel : {1, 2})
    if (const auto shown = view_.shownOf(channel); shown && haveRoom)
      haveRoom =
          showAsReference(recorder_.main(), channel, store.record(*shown), nameOf(store, *shown));
  say(haveRoom ? panelText("It lies over the live traces now")
               : panelText("No reference is free: remove one in the panel first"));
}

void RecorderWindow::copy() {
  copyShown(recorder_, view_, look(), *graph_);
  say(panelText("Copied"));
}

/// What has left the store while the user picked the file is not replaced by something else.
void RecorderWindow::pickFile(const FileDialog& dialog, RecorderView::Still::File file,
                              const std::function<void(const std::filesystem::path&)>& write) {
  const RecorderView::Still still(view_, file);
  const std::filesystem::path path = recorder_.main().services().dialogs.saveFile(dialog);
  // After Cancel it is the name that was offered.
  if (path == dialog.fileName) return;
  if (still.isWhole()) return write(path);
  say(panelText("Not written: records have gone meanwhile; pin what you want to keep"), true);
}

void RecorderWindow::exportCsv() {
  pickFile(
      {recorder_.main().services().programFolder, fromQt(panelText("Export")), "", "*.csv|*.csv"},
      RecorderView::Still::File::table,
      [this](const std::filesystem::path& path) { exportInto(path); });
}

void RecorderWindow::exportInto(const std::filesystem::path& path) {
  say(exportRecords(recorder_, view_, path));
}

void RecorderWindow::saveSet() {
  FileDialog dialog{.initialFolder = recorder_.main().services().programFolder,
                    .title = fromQt(panelText("Save as a waveform set")),
                    .fileName = nameOfSet(recorder_.store(), view_.saved()),
                    .filter = fromQt(panelText("Pictures")) + pictureNames};
  dialog.extensions = {"png", "jpg", "bmp", "gif", "pcx", "tif", "csv", "inf"};
  dialog.besides = {"csv", "inf"};
  pickFile(dialog, RecorderView::Still::File::set,
           [this](const std::filesystem::path& path) { saveSetInto(path); });
}

void RecorderWindow::saveSetInto(const std::filesystem::path& path) {
  say(saveAsSet(recorder_, view_, look(), graph_->size(), path));
}

void RecorderWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) {
    texts_.sayAgain();
    // What it says of the past cannot be said again.
    say({});
    bar_->sayAgain();
    tables_->sayAgain();
    logBar_->sayAgain();
    showSoon();
    // Behind that.
    QTimer::singleShot(0, this, [this] { tellTips(*this); });
  }
  if (event->type() == QEvent::PaletteChange) showSoon();
}

/// What came while the list of pins was open.
bool RecorderWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide) showSoon();
  return QWidget::eventFilter(watched, event);
}

void RecorderWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  showSoon();
}

}  // namespace tracewell
