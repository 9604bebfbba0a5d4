// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>

namespace tracewell {

/// The panel's own words in the language in force: status line, hints, marks. Captions, messages
/// and log lines are not among them; they come from the language files, or are English in every
/// language.
///
/// This class speaks English; the desktop's translates with Qt (desktop/DesktopWords.h).
class Words {
 public:
  Words() = default;
  virtual ~Words() = default;
  Words(const Words&) = delete;

  /// Returns the sentence `english` with `values` for %1, %2, ... It is the key of its translation,
  /// so write it out where it is said, and never assemble it from parts.
  std::string say(const char* english, std::initializer_list<std::string> values = {}) const;

  /// Language 1 to 5, as the setup table has it; English for any other.
  virtual void use(int /*language*/) {}

 protected:
  virtual std::string translated(const char* english) const { return english; }
};

}  // namespace tracewell
