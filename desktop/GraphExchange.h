// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>

namespace tracewell {

class Graph;

/// What a user does with a graph's widget to have it in another program, or a file of another
/// program in it: the key for copying, the context menu, a data file dropped on it.
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
