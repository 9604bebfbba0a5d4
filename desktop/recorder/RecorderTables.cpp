// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderTables.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "DesktopWords.h"
#include "Gestures.h"
#include "QtValues.h"
#include "RecorderWords.h"

namespace tracewell {
namespace {

QTableWidget* makeTable(const char* name, QWidget* parent) {
  auto* const table = new QTableWidget(parent);
  table->setObjectName(QLatin1String(name));
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setTabKeyNavigation(false);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->setWordWrap(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setMinimumSectionSize(12);
  table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table->horizontalHeader()->setHighlightSections(false);
  return table;
}

/// Texts that are there already are left alone: a screen reader would say them again.
void setCell(QTableWidget& table, int row, int column, const QString& text, bool isPale = false) {
  QTableWidgetItem* item = table.item(row, column);
  if (item == nullptr) {
    item = new QTableWidgetItem;
    if (column > 0) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table.setItem(row, column, item);
  }
  if (item->text() != text) {
    item->setText(text);
    item->setToolTip(text);
  }
  const auto group = isPale ? QPalette::Disabled : QPalette::Active;
  item->setForeground(table.palette().brush(group, QPalette::Text));
}

void setRows(QTableWidget& table, int rows) {
  if (table.rowCount() != rows) table.setRowCount(rows);
  const int height = table.fontMetrics().height() + 3;
  for (int row = 0; row < rows; ++row)
    if (table.rowHeight(row) != height) table.setRowHeight(row, height);
  const int frames = 2 * table.frameWidth();
  table.setMaximumHeight(table.horizontalHeader()->sizeHint().height() + rows * height + frames);
}

/// The channels that have something to show, each with a column.
void setColumns(QTableWidget& table, const QString& first, const std::vector<int>& channels) {
  QStringList names = {first};
  for (const int channel : channels) names << toQt(channelName(channel));
  if (table.columnCount() != names.size()) table.setColumnCount(static_cast<int>(names.size()));
  table.setHorizontalHeaderLabels(names);
  for (int column = 1; column < names.size(); ++column)
    table.horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  table.horizontalHeaderItem(0)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table.horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
}

}  // namespace

RecorderTables::RecorderTables(RecorderView& view, QWidget* parent)
    : QWidget(parent),
      view_(view),
      title_(new QLabel(this)),
      details_(new QLabel(this)),
      values_(makeTable("values", this)),
      statisticsTitle_(new QLabel(this)),
      statistics_(makeTable("statistics", this)) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  title_->setObjectName(QStringLiteral("title"));
  title_->setProperty("kind", "heading");
  details_->setObjectName(QStringLiteral("details"));
  for (QLabel* label : {title_, details_, statisticsTitle_}) label->setWordWrap(true);
  column->addWidget(title_);
  column->addWidget(details_);
  column->addWidget(values_, 3);
  column->addWidget(statisticsTitle_);
  column->addWidget(statistics_, 1);
  statistics_->setSelectionMode(QAbstractItemView::NoSelection);
  column->addStretch(0);
  texts_.add([this] {
    values_->setAccessibleName(panelText("Measurements"));
    values_->setToolTip(panelText("Measured from the samples; choose a line for its statistics"));
    statistics_->setAccessibleName(panelText("Statistics"));
    statistics_->setToolTip(panelText("Of the stretch that is marked, else of all records"));
  });
  goByLines(*values_);
  connect(values_, &QTableWidget::currentCellChanged, this, [this] { showStatistics(); });
}

void RecorderTables::showState() {
  title_->setText(toQt(view_.title()));
  QStringList details;
  for (const std::string& line : view_.details()) details << toQt(line);
  details_->setText(details.join(QLatin1Char('\n')));
  showMeasurements();
  showStatistics();
}

void RecorderTables::showMeasurements() {
  std::vector<int> channels;
  for (const int channel : {1, 2})
    if (view_.shownOf(channel)) channels.push_back(channel);
  values_->setVisible(!channels.empty());
  if (channels.empty()) return;
  const auto lines = view_.measurements();
  const QSignalBlocker blocker(values_);
  const int columns = values_->columnCount();
  setColumns(*values_, panelText("Measurement"), channels);
  setRows(*values_, static_cast<int>(lines.size()));
  for (int row = 0; row < values_->rowCount(); ++row) {
    const auto& line = lines[static_cast<std::size_t>(row)];
    setCell(*values_, row, 0, toQt(line.name));
    values_->item(row, 0)->setData(Qt::UserRole, static_cast<int>(line.quantity));
    // What is of both channels stands across both columns.
    const bool isOfBoth = line.quantity >= Quantity::phase;
    const int span = isOfBoth ? static_cast<int>(channels.size()) : 1;
    if (values_->columnSpan(row, 1) != span) values_->setSpan(row, 1, 1, span);
    if (isOfBoth) setCell(*values_, row, 1, toQt(line.values[1]), !line.hasValue[1]);
    for (std::size_t i = 0; i < channels.size() && !isOfBoth; ++i) {
      const auto channel = static_cast<std::size_t>(channels[i] - 1);
      setCell(*values_, row, static_cast<int>(i) + 1, toQt(line.values.at(channel)),
              !line.hasValue.at(channel));
    }
  }
  if (values_->currentRow() < 0 && values_->rowCount() > 0)
    values_->setCurrentCell(static_cast<int>(Quantity::peakToPeak), 0);
  // A column that is new belongs to the line that is chosen, too.
  if (columns != values_->columnCount()) values_->selectRow(values_->currentRow());
}

void RecorderTables::showStatistics() {
  std::vector<int> channels;
  QStringList titles;
  for (const int channel : {1, 2}) {
    const std::string title = view_.channel() == 0 || view_.channel() == channel
                                  ? view_.statisticsTitle(channel)
                                  : std::string();
    if (title.empty()) continue;
    channels.push_back(channel);
    titles << toQt(title);
  }
  const QTableWidgetItem* const chosen = values_->item(values_->currentRow(), 0);
  statistics_->setVisible(chosen != nullptr && !channels.empty());
  statisticsTitle_->setVisible(statistics_->isVisibleTo(this));
  if (!statistics_->isVisibleTo(this)) return;
  statisticsTitle_->setText(titles.join(QLatin1Char('\n')));
  const auto quantity = static_cast<Quantity>(chosen->data(Qt::UserRole).toInt());
  setColumns(*statistics_, chosen->text(), channels);
  for (std::size_t i = 0; i < channels.size(); ++i) {
    const auto lines = view_.statistics(quantity, channels[i]);
    setRows(*statistics_, static_cast<int>(lines.size()));
    for (int row = 0; row < statistics_->rowCount(); ++row) {
      const auto& line = lines[static_cast<std::size_t>(row)];
      setCell(*statistics_, row, 0, toQt(line.name));
      setCell(*statistics_, row, static_cast<int>(i) + 1, toQt(line.value));
    }
  }
}

}  // namespace tracewell
