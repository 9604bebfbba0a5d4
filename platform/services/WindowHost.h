// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tracewell {

class Window;

/// Puts windows on a screen. Implemented by desktop/DesktopWindows, and by tests/ScriptedWindows,
/// where a script plays the user. The caller owns every window that it passes.
class WindowHost {
 public:
  virtual ~WindowHost() = default;

  /// Returns when the window has been hidden. Events of the whole program run meanwhile, but the
  /// user reaches this window only.
  virtual void showModal(Window& window) = 0;
  virtual void show(Window& window) = 0;
  virtual void hide(Window& window) = 0;

  /// Paints the window now, without running any other event.
  virtual void repaint(Window& window) = 0;

  /// Hides the window for good and deletes everything that stands for it on the screen.
  virtual void unload(Window& window) = 0;
};

}  // namespace tracewell
