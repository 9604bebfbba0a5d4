// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

namespace tracewell {

class Window;

/// Decides whether anything may run or begin. Every way into the program passes it
/// (EventDispatcher), and so does everything that the program begins outside: transfers on the
/// port, modal windows, dialogs that ask the user.
///
/// It is open; held, while a handler waits for the instrument and no other may run; or closed, once
/// the program has ended.
class Gate {
 public:
  Gate() = default;
  Gate(const Gate&) = delete;

  bool isHeld() const { return isHeld_; }
  bool isClosed() const { return isClosed_; }
  /// For good.
  void close() { isClosed_ = true; }
  /// Throws ProgramEnded when it is closed.
  void mustBeOpen() const;

  /// A modal window or dialog is about to be shown: mustBeOpen, and beforeModal.
  void leaveToUser() const;
  /// What waits meanwhile goes on only when the user is done.
  std::function<void()> beforeModal;

  /// The innermost modal window; null if none is open.
  const Window* modal() const { return modal_; }
  /// A window is the modal one as long as this lives.
  class Modal {
   public:
    Modal(Gate& gate, const Window& window)
        : gate_(gate), outer_(std::exchange(gate.modal_, &window)) {}
    ~Modal() { gate_.modal_ = outer_; }
    Modal(const Modal&) = delete;

   private:
    Gate& gate_;
    const Window* outer_;
  };

  /// Holds the gate as long as it lives. Not to be nested.
  class Hold {
   public:
    explicit Hold(Gate& gate) : gate_(gate) { gate_.isHeld_ = true; }
    ~Hold() { gate_.isHeld_ = false; }
    Hold(const Hold&) = delete;

   private:
    Gate& gate_;
  };

  /// Keeps the handler that ends the program until the handler that waits has unwound.
  void keepEnd(std::function<void()> end) { end_ = std::move(end); }
  bool isEndDue() const { return static_cast<bool>(end_); }
  /// Returns the kept handler and forgets it; an empty one if there is none.
  std::function<void()> takeEnd() { return std::exchange(end_, {}); }

 private:
  bool isHeld_ = false;
  bool isClosed_ = false;
  const Window* modal_ = nullptr;
  std::function<void()> end_;
};

}  // namespace tracewell
