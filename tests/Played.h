// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Bench.h"

namespace tracewell {

/// The whole program, used as a script says. All that the instrument and the user get of it is
/// written down, so that a script and what came of it pin every effect, wanted or not, and its
/// place in the order. tests/scripts/README.md says how to read and write both.
class Played : public Bench {
 public:
  Played();
  virtual ~Played() { std::filesystem::current_path(before_); }
  /// Plays the steps; the result is what came of them.
  std::string play(const std::string& script);

 protected:
  /// What the user does with a control of an open window, and the window's own way to close it.
  void useGraph(Graph& graph, const std::string& value);
  virtual void use(Control& control, const std::string& value);
  /// How its user sees that it is marked.
  virtual bool looksUnread(const Control& control) const {
    return control.painted == Trust::unread;
  }
  virtual bool looksStale(const Control& control) const { return control.painted == Trust::stale; }
  virtual void close(Window& window) { window.close(); }
  /// A modal window that opens, and windows that go.
  virtual void opened(Window& window) { playIn(window); }
  virtual void hidden(Window&) {}
  virtual void unloaded(Window&) {}
  /// Plays what is left in the window until it is closed.
  void playIn(Window& window);
  /// Writes down when "Waiting" shows; again when a view has been bound to it.
  void watchNotice();
  /// Marks stand as they were painted last: a change that no view is told of does not show. Again
  /// likewise.
  void watchGraph();

 private:
  void paint(Window& window);
  void playNext(Window& window);
  void step(Window& window, const std::string& text);
  void connect();
  std::map<std::string, std::function<void()>> stepsWith(const std::string& value);
  void write(const std::string& name, std::string text);
  bool setUp(const std::string& name, const std::string& value);
  std::map<std::string, std::string> shownBy(Window& window);
  std::string newIn(Window& window);
  void note(const std::string& event) { events_.push_back(event); }

  const std::filesystem::path before_ = std::filesystem::current_path();
  /// How the path of a file of the program folder begins.
  const std::string inFolder_ =
      pathText(folder.path()) + pathText(std::filesystem::path("/").make_preferred());
  std::deque<std::string> steps_;
  std::int64_t start_ = 0;
  bool isTruthTold_ = false;
  Lines events_;
  /// By window, what it showed last.
  std::map<const Window*, std::map<std::string, std::string>> seen_;
};

Lines split(const std::string& text, const std::string& separator);

/// Plays every script of the file. What comes of it is what stands below.
void playFile(const char* name, const std::function<std::string(const std::string& script)>& play);

}  // namespace tracewell
