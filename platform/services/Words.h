// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>

namespace tracewell {

/// What the panel says in words of its own, in the language in force: status line, hints, marks.
/// The words of captions, messages and log lines are none of these; they come from the language
/// files, or are English in every language.
///
/// The desktop's one translates by Qt's means (desktop/DesktopWords.h); this one speaks English.
class Words {
 public:
  Words() = default;
  virtual ~Words() = default;
  Words(const Words&) = delete;

  /// The sentence `english` with `values` in the places of %1, %2, ... It is the key of its
  /// translation, so it is written out where it is said, and never put together of parts.
  std::string say(const char* english, std::initializer_list<std::string> values = {}) const;

  /// Language 1 to 5, as the setup table has it; English for any other.
  virtual void use(int /*language*/) {}

 protected:
  virtual std::string translated(const char* english) const { return english; }
};

}  // namespace tracewell
