// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "Property.h"
#include "Services.h"

namespace tracewell {

class Control;

/// How a dialog ended, for its opener.
enum class Outcome { cancelled, accepted };

/// A window without a screen: a name, a caption, and its controls in the order of their
/// declaration. A desktop shows it in the form of the same name; a test works on it directly.
class Window : public Observable {
 public:
  /// `name` is the system's own, for example "frmTrig"; `caption` the text of the title bar.
  Window(std::string name, std::string caption, Services& services);
  virtual ~Window() = default;

  const std::string& name() const { return name_; }
  Property<std::string> caption;
  /// Each dialog says when it is set back; most do when they are shown.
  Outcome outcome = Outcome::cancelled;

  /// In the order of declaration, which is the order of caption files.
  const std::vector<Control*>& controls() const { return controls_; }

  /// Raised once, before the window is first used (or used again after unload).
  Event<> formLoad;
  /// Raised each time that the window is about to be shown as a modal one.
  Event<> formActivate;
  /// Raised when the user closes the window with the window's own means. Without a handler the
  /// window hides.
  Event<> formClose;

  bool isLoaded() const { return isLoaded_; }
  bool isVisible() const { return isVisible_; }
  /// It has not been closed, and no modal window lies over it.
  bool isReachable() const;
  void load();
  /// Returns when the window has been hidden. Throws ProgramEnded if the program has ended, before
  /// or meanwhile.
  void showModal();
  void show();
  void hide();
  /// Paints now what has changed, although a handler is running.
  void refresh();
  /// Repaints the controls whose trust is another than when they were painted. Raises no event.
  void showMarks() const;
  void unload();

  /// The user closes the window with its title bar's button.
  void close();
  /// Like close, for the window whose closing ends the program: obeyed even while a handler waits.
  void closeForGood();

  Services& services() const { return services_; }

 private:
  friend class Control;
  std::string name_;
  Services& services_;
  std::vector<Control*> controls_;
  void tellClosed();
  bool isLoaded_ = false;
  bool isVisible_ = false;
};

}  // namespace tracewell
