// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

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
    /// What the user has had done last.
    happened
  };
  /// Said in the language in force, again in each that follows; empty: there is nothing to say.
  using Sentence = std::function<std::string(const Words&)>;

  /// Writes into `label`; both stay the caller's and outlive this.
  StatusLine(ValueLabel& label, const Words& words) : label_(label), words_(words) {}

  /// Instead of what the topic said before, and in front of the others.
  void tell(Topic topic, Sentence sentence);
  /// Behind what the topic says already.
  void tellToo(Topic topic, Sentence sentence);
  void withdraw(Topic topic);
  bool says(Topic topic) const;
  /// In the language in force.
  void tellAgain();

 private:
  struct Told {
    Topic topic;
    Sentence sentence;
  };
  void remove(Topic topic);

  ValueLabel& label_;
  const Words& words_;
  /// The newest in front.
  std::vector<Told> told_;
};

}  // namespace tracewell
