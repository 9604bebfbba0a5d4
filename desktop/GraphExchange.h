// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>

namespace tracewell {

class Graph;

/// How a user exchanges a graph with other programs: the copy key, the context menu, a data file
/// dropped on it.
class GraphExchange : public QObject {
  Q_OBJECT

 public:
  /// Both outlive it.
  GraphExchange(QWidget& view, Graph& graph);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool openMenu(const QPoint& position);
  void drop(const std::filesystem::path& file);

  QWidget& view_;
  Graph& graph_;
};

}  // namespace tracewell
