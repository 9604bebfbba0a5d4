// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowState.h"

#include <QGuiApplication>
#include <QMap>
#include <QRegularExpression>
#include <QScreen>
#include <QTimer>
#include <fstream>
#include <optional>

#include "Error.h"
#include "Files.h"
#include "QtValues.h"

namespace tracewell {
namespace {

constexpr QSize usualSize(1280, 800);
/// Nobody makes a window smaller than this, or means to leave less of it on a screen.
constexpr QSize leastSize(200, 100);
/// Of the window manager, as long as it has not said so. Pixels.
constexpr QMargins likelyFrame(4, 40, 4, 4);
/// Until it has. Milliseconds.
constexpr int framingTime = 300;

const QMap<QString, Theme> themeWords = {{QStringLiteral("light"), Theme::light},
                                         {QStringLiteral("dark"), Theme::dark},
                                         {QStringLiteral("contrast"), Theme::highContrast}};

struct Place {
  /// Without the frame.
  QRect inside;
  bool isMaximised = false;
  Theme theme = Theme::system;
};

/// "x,y,width,height,maximised", and ",theme" unless it is the desktop's.
std::optional<Place> readPlace(const std::filesystem::path& file) {
  static const QRegularExpression form(
      QStringLiteral("\\A(-?[0-9]{1,5}),(-?[0-9]{1,5}),([0-9]{1,5}),([0-9]{1,5}),([01])"
                     "(?:,(light|dark|contrast))?\r\n\\z"));
  QString text;
  try {
    text = toQt(readWholeFile(file, fileLimit::windowState));
  } catch (const Error&) {
    return std::nullopt;
  }
  const QRegularExpressionMatch found = form.match(text);
  const auto number = [&found](int field) { return found.captured(field).toInt(); };
  const QSize size(number(3), number(4));
  if (!found.hasMatch() || size.boundedTo(leastSize) != leastSize) return std::nullopt;
  return Place{QRect(QPoint(number(1), number(2)), size), number(5) == 1,
               themeWords.value(found.captured(6), Theme::system)};
}

/// Its mode, which the new file would take over, would keep that from being read, too.
void forgetUnreadable(const std::filesystem::path& file) {
  std::error_code ignored;
  if (std::filesystem::is_regular_file(file, ignored) && !std::ifstream(file).is_open())
    std::filesystem::remove(file, ignored);
}

const QScreen* screenUnder(const QRect& place) {
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QSize shared = (screen->availableGeometry() & place).size();
    if (shared.boundedTo(leastSize) == leastSize) return screen;
  }
  return nullptr;
}

QRect fitted(QRect inside, const QScreen& screen, const QMargins& frame) {
  const QRect room = screen.availableGeometry().marginsRemoved(frame);
  inside.setSize(inside.size().boundedTo(room.size()));
  inside.moveTo(qBound(room.left(), inside.left(), room.right() + 1 - inside.width()),
                qBound(room.top(), inside.top(), room.bottom() + 1 - inside.height()));
  return inside;
}

Place usualPlace(const QScreen& screen) {
  QRect inside(QPoint(), usualSize);
  inside.moveCenter(screen.availableGeometry().center());
  return {inside, false};
}

QMargins frameOf(const QWidget& window) {
  const QRect inside = window.geometry();
  const QRect whole = window.frameGeometry();
  return {inside.left() - whole.left(), inside.top() - whole.top(), whole.right() - inside.right(),
          whole.bottom() - inside.bottom()};
}

/// For a frame that is thicker than the likely one.
void fitFramed(QWidget& window) {
  if (window.isMaximized() || window.isFullScreen()) return;
  const QRect place = fitted(window.geometry(), *window.screen(), frameOf(window));
  if (place != window.geometry()) window.setGeometry(place);
}

}  // namespace

WindowState::WindowState(const std::filesystem::path& programFolder)
    : file_(programFolder / "window.state"), theme_(readPlace(file_).value_or(Place()).theme) {}

void WindowState::restore(QWidget& window) const {
  const std::optional<Place> kept = readPlace(file_);
  const QScreen* const screen = kept ? screenUnder(kept->inside) : nullptr;
  const QScreen& used = screen != nullptr ? *screen : *QGuiApplication::primaryScreen();
  const Place place = kept.value_or(usualPlace(used));
  window.setGeometry(fitted(place.inside, used, likelyFrame));
  if (place.isMaximised) window.setWindowState(window.windowState() | Qt::WindowMaximized);
  QTimer::singleShot(framingTime, &window, [&window] { fitFramed(window); });
}

void WindowState::keep(const QWidget& window) const {
  const bool isMaximised = window.isMaximized();
  const QRect inside = isMaximised ? window.normalGeometry() : window.geometry();
  const QString theme = themeWords.key(theme_);
  const QString text = QStringLiteral("%1,%2,%3,%4,%5%6\r\n")
                           .arg(inside.x())
                           .arg(inside.y())
                           .arg(inside.width())
                           .arg(inside.height())
                           .arg(isMaximised ? 1 : 0)
                           .arg(theme.isEmpty() ? theme : QLatin1Char(',') + theme);
  try {
    forgetUnreadable(file_);
    writeWholeFile(file_, fromQt(text));
  } catch (const Error&) {
    // The next run begins where a first one does.
  }
}

}  // namespace tracewell
