// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Clock.h"
#include "Controls.h"
#include "Words.h"

namespace tracewell {

/// What the user should know and need not answer. Each sentence belongs to a topic and is said
/// until the topic has another one or takes it back, so none outlives what it is true of, and none
/// hides another. While questions are put to the instrument, their progress is all that is said.
class StatusLine {
 public:
  enum Topic {
    /// Which question of how many waits for its answer.
    progress,
    /// Why what the user wants waits until that is done; said beside it.
    refused,
    /// What a series of questions, and what a single one, has missed.
    missedBySeries,
    missedByOne,
    /// The start button does nothing until something reaches the instrument.
    linkLost,
    /// The setup has other line settings than the port.
    otherLineSettings,
    /// The scales may be another instrument's.
    staleScales,
    /// What comes from the instrument, or does not, is not what was asked for.
    lineTrouble,
    /// An error has ended the acquisition.
    stoppedByError,
    /// Nothing is written to the program's folder.
    nothingKept,
    /// Rows of the recorder's log wait, or are lost.
    logTrouble,
    /// What the user has had done last, or wanted to and it did not come about: one of the two.
    happened,
    failed
  };
  /// Said in the language in force, again in each that follows; empty: there is nothing to say.
  using Sentence = std::function<std::string(const Words&)>;

  /// Writes into `label`; all stay the caller's and outlive this.
  StatusLine(ValueLabel& label, const Words& words, const Clock& clock)
      : label_(label), words_(words), clock_(clock) {}

  /// What a series of questions has missed is said for so long; the marks stay. Milliseconds.
  static constexpr int missedIsSaid = 60000;

  /// Instead of what the topic said before, and in front of the others.
  void tell(Topic topic, Sentence sentence);
  /// Behind what the topic says already.
  void tellToo(Topic topic, Sentence sentence);
  void withdraw(Topic topic);
  bool says(Topic topic) const;
  /// In the language in force, and as things are now.
  void tellAgain();

 private:
  struct Told {
    Topic topic;
    Sentence sentence;
    std::int64_t since;
  };
  bool isOver(const Told& told) const;
  static bool isWarning(const Told& told);
  void remove(Topic topic);

  ValueLabel& label_;
  const Words& words_;
  const Clock& clock_;
  /// The newest in front.
  std::vector<Told> told_;
};

}  // namespace tracewell
