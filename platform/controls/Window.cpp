// SPDX-License-Identifier: GPL-3.0-or-later
#include "Window.h"

#include "Control.h"

#include <utility>

namespace tracewell {

Window::Window(std::string name, std::string captionText, Services& services)
    : caption(*this, std::move(captionText)), name_(std::move(name)), services_(services) {}

void Window::load() {
  if (isLoaded_) return;
  isLoaded_ = true;
  try {
    formLoad.raise();
  } catch (...) {
    // Its next use tries again.
    isLoaded_ = false;
    throw;
  }
}

void Window::showModal() {
  services_.gate.mustBeOpen();
  if (isVisible_) return;
  services_.gate.leaveToUser();
  load();
  formActivate.raise();
  showMarks();
  isVisible_ = true;
  const Gate::Modal modal(services_.gate, *this);
  services_.windows.showModal(*this);
  services_.gate.mustBeOpen();
}

void Window::show() {
  load();
  isVisible_ = true;
  services_.windows.show(*this);
}

void Window::hide() {
  isVisible_ = false;
  services_.windows.hide(*this);
}

bool Window::isReachable() const {
  const Window* const modal = services_.gate.modal();
  const bool isClosed = isLoaded_ && !isVisible_;
  return !isClosed && (modal == nullptr || modal == this);
}

void Window::refresh() {
  services_.windows.repaint(*this);
}

void Window::unload() {
  if (!isLoaded_) return;
  isLoaded_ = false;
  isVisible_ = false;
  services_.windows.unload(*this);
}

void Window::close() {
  services_.dispatcher.dispatch([this] { tellClosed(); });
}

void Window::closeForGood() {
  services_.dispatcher.dispatchEnd([this] { tellClosed(); });
}

void Window::tellClosed() {
  if (formClose)
    formClose.raise();
  else
    hide();
}

void Window::showMarks() const {
  for (const Control* control : controls_)
    if (control->trust && control->trust() != control->painted) control->notifyChanged();
}

}  // namespace tracewell
