// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doing.h"

namespace tracewell {

StatusLine::Sentence sayPaused(const frmDSO& main, const Property<std::string>& caption) {
  if (!main.tmDSO.enabled()) return {};
  return [&caption](const Words& words) { return words.say("Traces paused for %1", {caption()}); };
}

StatusLine::Sentence sayBusy(const Property<std::string>& caption) {
  return [&caption](const Words& words) {
    return words.say("The instrument is busy: %1", {caption()});
  };
}

}  // namespace tracewell
