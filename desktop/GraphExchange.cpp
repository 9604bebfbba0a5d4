// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphExchange.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <optional>

#include "DesktopWords.h"
#include "Graph.h"
#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// The data file that is dragged, where it is one and nothing else.
std::optional<std::filesystem::path> draggedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.size() != 1 || !urls.first().isLocalFile()) return std::nullopt;
  const QString path = urls.first().toLocalFile();
  if (!path.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive)) return std::nullopt;
  return toPath(path);
}

/// Never a move: the other program would delete its file.
bool accept(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
  return true;
}

}  // namespace

GraphExchange::GraphExchange(QWidget& view, Graph& graph) : view_(view), graph_(graph) {
  view.setAcceptDrops(true);
  view.installEventFilter(this);
}

bool GraphExchange::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) break;
      graph_.copy(Graph::Copied::pictureAndValues);
      return true;
    case QEvent::ContextMenu:
      return openMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
    case QEvent::DragEnter:
    case QEvent::DragMove:
      if (draggedFile(*static_cast<QDropEvent*>(event)))
        return accept(*static_cast<QDropEvent*>(event));
      break;
    case QEvent::Drop:
      if (const auto file = draggedFile(*static_cast<QDropEvent*>(event))) {
        // The program that it comes from waits until this has returned.
        QTimer::singleShot(0, this, [this, path = *file] { drop(path); });
        return accept(*static_cast<QDropEvent*>(event));
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

bool GraphExchange::openMenu(const QPoint& position) {
  auto* menu = new QMenu(&view_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto copy = [this](Graph::Copied what) { return [this, what] { graph_.copy(what); }; };
  menu->addAction(panelText("Copy"), QKeySequence::Copy, this,
                  copy(Graph::Copied::pictureAndValues));
  menu->addAction(panelText("Copy the picture"), this, copy(Graph::Copied::picture));
  menu->addAction(panelText("Copy the values"), this, copy(Graph::Copied::values));
  for (int number = 1; number <= static_cast<int>(graph_.plots().size()); ++number) {
    const Plot& plot = graph_.plot(number);
    if (plot.isReference() && plot.isShown())
      menu->addAction(panelText("Remove %1").arg(shownCaption(plot.label())), this,
                      [this, number] { graph_.removeReference(number); });
  }
  menu->popup(position);
  return true;
}

/// After what the program is waiting for.
void GraphExchange::drop(const std::filesystem::path& file) {
  constexpr int nextTry = 50;
  if (!graph_.drop(file)) QTimer::singleShot(nextTry, this, [this, file] { drop(file); });
}

}  // namespace tracewell
