// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderBar.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <array>

#include "DesktopWords.h"

namespace tracewell {
namespace {

constexpr std::array behindCounts = {0, 1, 5, 20, 100};

/// The texts of a box's entries; the entry that is chosen stays. Unlike a label, a box that is too
/// narrow cuts its text without a sign.
void setEntries(QComboBox& box, const QStringList& entries) {
  const QSignalBlocker blocker(box);
  const int chosen = std::max(box.currentIndex(), 0);
  box.clear();
  box.addItems(entries);
  box.setCurrentIndex(chosen);
  box.setMinimumWidth(box.sizeHint().width());
}

}  // namespace

RecorderBar::RecorderBar(RecorderView& view, RecorderCursors& cursors, QWidget* parent)
    : QWidget(parent), view_(view), cursors_(cursors) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  follow_ = addTick("follow", view.isFollowing());
  channel_ = addBox("channel");
  mode_ = addBox("mode");
  behind_ = addBox("behind");
  fading_ = addTick("fading", view.choice.isFading);
  envelope_ = addTick("envelope", view.choice.hasEnvelope);
  mean_ = addTick("mean", view.choice.hasMean);
  window_ = addBox("window");
  level_ = addBox("level");
  row->addStretch(1);
  cursorKind_ = addBox("cursors");
  sayTexts();
  for (QComboBox* box : {channel_, mode_, behind_, window_, level_, cursorKind_})
    connect(box, &QComboBox::currentIndexChanged, this, [this] { take(); });
  for (QCheckBox* tick : {fading_, envelope_, mean_})
    connect(tick, &QCheckBox::toggled, this, [this] { take(); });
  connect(follow_, &QCheckBox::toggled, this, [this](bool isOn) {
    if (isOn == view_.isFollowing()) return;
    view_.follow(isOn);
    emit chosen();
  });
  showState();
}

QComboBox* RecorderBar::addBox(const char* name) {
  auto* const box = new QComboBox(this);
  box->setObjectName(QLatin1String(name));
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  layout()->addWidget(box);
  return box;
}

QCheckBox* RecorderBar::addTick(const char* name, bool isTicked) {
  auto* const tick = new QCheckBox(this);
  tick->setObjectName(QLatin1String(name));
  tick->setChecked(isTicked);
  layout()->addWidget(tick);
  return tick;
}

void RecorderBar::sayTexts() {
  texts_.add([this] {
    follow_->setText(panelText("Follow"));
    follow_->setToolTip(panelText("Goes with the newest record (F)"));
    follow_->setShortcut(Qt::Key_F);
    setEntries(*channel_,
               {panelText("Both channels"), QStringLiteral("CH1"), QStringLiteral("CH2")});
    channel_->setToolTip(panelText("The channels that are shown, stepped through and measured"));
    channel_->setAccessibleName(panelText("Channels"));
    QStringList modes = {panelText("Trace"), panelText("X-Y")};
    if (hasSpectra()) modes << panelText("Spectrum");
    setEntries(*mode_, modes);
    mode_->setToolTip(panelText("What is drawn of the records"));
    mode_->setAccessibleName(panelText("Drawn as"));
    QStringList counts;
    for (const int count : behindCounts)
      counts << (count == 0   ? panelText("This record alone")
                 : count == 1 ? panelText("With the one before")
                              : panelText("With the last %1").arg(count));
    setEntries(*behind_, counts);
    behind_->setToolTip(panelText(
        "How many records before this one belong to the picture; a spectrum is their mean"));
    behind_->setAccessibleName(panelText("Records before this one"));
    fading_->setText(panelText("Fading"));
    fading_->setToolTip(panelText("Draws each of the last 20 records, the older the paler"));
    envelope_->setText(panelText("Envelope"));
    envelope_->setToolTip(panelText("Draws the lowest and highest value of all these records"));
    mean_->setText(panelText("Mean"));
    mean_->setToolTip(panelText("Draws the mean of all these records"));
  });
  texts_.add([this] {
    setEntries(*window_, {panelText("Hann"), panelText("Flat top"), panelText("No window")});
    window_->setToolTip(
        panelText("Hann tells close frequencies apart, flat top shows true levels"));
    window_->setAccessibleName(panelText("Window of the spectrum"));
    setEntries(*level_, {QStringLiteral("dBV"), QStringLiteral("V RMS")});
    level_->setToolTip(panelText("The unit of the levels"));
    level_->setAccessibleName(level_->toolTip());
    setEntries(*cursorKind_,
               {panelText("No cursors"), panelText("Cursors across"), panelText("Cursors up")});
    cursorKind_->setToolTip(panelText(
        "Two cursors with their distance: drag them, or use the arrow keys in the graph"));
    cursorKind_->setAccessibleName(panelText("Cursors"));
  });
}

void RecorderBar::take() {
  constexpr std::array modes = {RecorderMode::trace, RecorderMode::xy, RecorderMode::spectrum};
  RecorderChoice& choice = view_.choice;
  if (channel_->currentIndex() != view_.channel()) view_.show(channel_->currentIndex());
  choice.mode = modes.at(static_cast<std::size_t>(mode_->currentIndex()));
  choice.behind = behindCounts.at(static_cast<std::size_t>(behind_->currentIndex()));
  choice.isFading = fading_->isChecked();
  choice.hasEnvelope = envelope_->isChecked();
  choice.hasMean = mean_->isChecked();
  choice.window = static_cast<SpectrumShape>(window_->currentIndex());
  choice.isInDecibels = level_->currentIndex() == 0;
  cursors_.kind = static_cast<RecorderCursors::Kind>(cursorKind_->currentIndex());
  showState();
  emit chosen();
}

/// Only the controls that matter for the drawing show.
void RecorderBar::showState() {
  follow_->setChecked(view_.isFollowing());
  {
    const QSignalBlocker blocker(channel_);
    channel_->setCurrentIndex(view_.channel());
  }
  const bool isTrace = view_.choice.mode == RecorderMode::trace;
  const bool isSpectrum = view_.choice.mode == RecorderMode::spectrum;
  behind_->setVisible(isTrace || isSpectrum);
  for (QCheckBox* tick : {fading_, envelope_, mean_}) {
    tick->setVisible(isTrace);
    tick->setEnabled(view_.choice.behind > 0);
  }
  for (QComboBox* box : {window_, level_}) box->setVisible(isSpectrum);
}

}  // namespace tracewell
