// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "frmDSO.h"

namespace tracewell {

/// Says what the instrument is busy with instead of records, as long as it lives. An empty sentence
/// leaves what is said already.
class Doing {
 public:
  Doing(frmDSO& main, StatusLine::Sentence sentence) : main_(main), outer_(main.doing) {
    if (sentence) main.doing = std::move(sentence);
    main.marksDue.raise();
  }
  ~Doing() {
    main_.doing = std::move(outer_);
    main_.doneAt = main_.services().clock.milliseconds();
    main_.marksDue.raise();
  }
  Doing(const Doing&) = delete;

 private:
  frmDSO& main_;
  StatusLine::Sentence outer_;
};

/// The traces stand still for a dialog of that caption, which outlives the sentence. Empty if they
/// stand still already.
StatusLine::Sentence sayPaused(const frmDSO& main, const Property<std::string>& caption);
/// The instrument answers a dialog of that caption; records may come in between.
StatusLine::Sentence sayBusy(const Property<std::string>& caption);

}  // namespace tracewell
