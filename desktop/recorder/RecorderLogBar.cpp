// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderLogBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>

#include "Accessible.h"
#include "DesktopWords.h"
#include "Files.h"
#include "QtValues.h"
#include "RecorderWords.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// Stays open for the next tick.
class TickMenu : public QMenu {
 public:
  using QMenu::QMenu;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (QAction* const under = actionAt(event->pos()))
      under->trigger();
    else
      QMenu::mouseReleaseEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space && activeAction() != nullptr)
      activeAction()->trigger();
    else
      QMenu::keyPressEvent(event);
  }
};

}  // namespace

RecorderLogBar::RecorderLogBar(Recorder& recorder, QWidget* parent)
    : QWidget(parent),
      recorder_(recorder),
      quantities_(new QPushButton(this)),
      limits_(new QLineEdit(this)),
      pins_(new QCheckBox(this)),
      rings_(new QCheckBox(this)),
      start_(new QPushButton(this)) {
  setObjectName(QStringLiteral("logBar"));
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(6);
  auto* const menu = new TickMenu(quantities_);
  quantities_->setObjectName(QStringLiteral("logQuantities"));
  quantities_->setMenu(menu);
  for (const QuantityName& name : quantityNames) {
    QAction* const entry = menu->addAction(QString());
    entry->setCheckable(true);
    entry->setChecked(name.quantity == Quantity::peakToPeak ||
                      name.quantity == Quantity::frequency || name.quantity == Quantity::rms);
    entries_.push_back(entry);
  }
  limits_->setObjectName(QStringLiteral("logLimits"));
  limits_->setMaxLength(200);
  start_->setObjectName(QStringLiteral("logStart"));
  pins_->setObjectName(QStringLiteral("logPins"));
  rings_->setObjectName(QStringLiteral("logRings"));
  auto* const limitsLabel = new QLabel(this);
  limitsLabel->setBuddy(limits_);
  row->addWidget(quantities_);
  row->addWidget(limitsLabel);
  row->addWidget(limits_, 1);
  row->addWidget(pins_);
  row->addWidget(rings_);
  row->addWidget(start_);
  texts_.add([this, limitsLabel] {
    limitsLabel->setText(panelText("Limits:"));
    sayTexts();
  });
  connect(start_, &QPushButton::clicked, this, [this] { toggle(); });
  connect(limits_, &QLineEdit::textEdited, this, [this] { emit said({}); });
}

void RecorderLogBar::sayTexts() {
  quantities_->setText(panelText("Measurements"));
  quantities_->setToolTip(panelText("The columns of the log"));
  for (std::size_t i = 0; i < entries_.size(); ++i)
    entries_[i]->setText(
        toQt(quantityName(recorder_.main().services().words, quantityNames.at(i).quantity) + "  (" +
             std::string(quantityNames.at(i).shortName) + ")"));
  limits_->setPlaceholderText(QStringLiteral("vpp > 1.2 V; freq < 990 Hz"));
  limits_->setToolTip(
      panelText("Rows beyond a limit name it. The short names stand in the list of measurements"));
  limits_->setAccessibleName(panelText("Limits"));
  pins_->setText(panelText("Pin"));
  pins_->setToolTip(panelText("Pins each record that is beyond a limit"));
  pins_->setAccessibleName(pins_->toolTip());
  rings_->setText(panelText("Bell"));
  rings_->setToolTip(panelText("Sounds the bell at each record that is beyond a limit"));
  rings_->setAccessibleName(rings_->toolTip());
  showState();
}

void RecorderLogBar::showState() {
  const bool isOn = recorder_.log() != nullptr;
  start_->setText(isOn ? panelText("Stop the log") : panelText("Start the log…"));
  setTip(*start_, isOn ? panelText("Ends the log; the file is whole")
                       : panelText("Chooses the file. A file with the same columns is continued"));
  for (QWidget* widget : std::initializer_list<QWidget*>{quantities_, limits_, pins_, rings_})
    widget->setEnabled(!isOn);
}

std::vector<Quantity> RecorderLogBar::quantities() const {
  std::vector<Quantity> chosen;
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (entries_[i]->isChecked()) chosen.push_back(quantityNames.at(i).quantity);
  return chosen;
}

std::optional<std::vector<MeasurementLimit>> RecorderLogBar::limits() {
  std::vector<MeasurementLimit> found;
  for (const QString& part : limits_->text().split(QLatin1Char(';'))) {
    const QString text = part.trimmed();
    if (text.isEmpty()) continue;
    const auto limit = limitOf(fromQt(text));
    if (!limit) {
      emit said(panelText("Not a limit: %1. Write them as vpp > 1.2 V; freq < 990 Hz")
                    .arg(shownText(fromQt(text), roomOfCaption)));
      limits_->setFocus();
      return std::nullopt;
    }
    found.push_back(*limit);
  }
  return found;
}

void RecorderLogBar::toggle() {
  const Services& services = recorder_.main().services();
  services.dispatcher.dispatch([&] {
    if (recorder_.log() != nullptr) {
      emit said(recorder_.stopLog() ? panelText("The log has ended")
                                    : panelText("The log goes on"));
      emit used();
      return;
    }
    if (quantities().empty()) {
      emit said(panelText("Choose what is measured first"));
      return;
    }
    const auto wanted = limits();
    if (!wanted) return;
    const std::filesystem::path offered = "log.csv";
    const std::filesystem::path path = services.dialogs.saveFile(
        {services.programFolder, fromQt(panelText("Log")), pathText(offered), "*.csv|*.csv", true});
    // After Cancel it is the name that was offered.
    if (path == offered) return;
    recorder_.startLog(path, {quantities(), *wanted}, {pins_->isChecked(), rings_->isChecked()});
    emit said({});
    emit used();
  });
}

}  // namespace tracewell
