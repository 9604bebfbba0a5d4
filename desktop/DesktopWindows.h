// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

#include "WindowHost.h"
#include "WindowState.h"

namespace tracewell {

class Control;

/// Shows each window in the form of its name. A form is made when its window is first shown, and
/// kept until the window is unloaded.
class DesktopWindows : public WindowHost {
 public:
  /// Keeps the main window's place and size and the theme in the folder, and applies the theme.
  explicit DesktopWindows(const std::filesystem::path& programFolder);
  ~DesktopWindows() override;

  void showModal(Window& window) override;
  void show(Window& window) override;
  void hide(Window& window) override;
  void repaint(Window& window) override;
  /// Unloading the main window ends the event loop.
  void unload(Window& window) override;

  /// The widget that shows the control; null while its window has no form.
  QWidget* widgetOf(const Control& control) const;
  /// Called with the manual's file if no program here shows it.
  std::function<void(const QString& file)> manualRefused;
  /// Called with the main window's form once it is made.
  std::function<void(QWidget& form)> mainMade;
  /// Deletes every form.
  void unloadAll();

 private:
  class Form;
  Form& formOf(Window& window);
  QWidget* mainForm() const;
  void use(Theme theme);

  WindowState state_;
  std::map<Window*, std::unique_ptr<Form>> forms_;
};

}  // namespace tracewell
