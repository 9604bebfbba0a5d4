// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsDialog.h"

#include <optional>
#include <utility>

#include "Doing.h"

namespace tracewell {

SettingsDialog::SettingsDialog(std::string name, std::string captionText, frmDSO& main,
                               Acquisition& acquisition)
    : Window(std::move(name), std::move(captionText), main.services()),
      main_(main),
      acquisition_(acquisition) {}

void SettingsDialog::doubtAnswers() {
  if (isVisible()) unanswered_.doubtAll();
}

void SettingsDialog::edit(Fetching fetching, const Step& fill, const Step& send) {
  // What it would send then is what was chosen the time before.
  if (isVisible()) return;
  std::optional<Doing> pause;
  pause.emplace(main_, sayPaused(caption));
  if (fetching == Fetching::stops) acquisition_.StopAcq();
  fill();
  if (fetching == Fetching::goesOn) pause.reset();
  showModal();
  if (fetching == Fetching::goesOn) pause.emplace(main_, sayPaused(caption));
  if (outcome == Outcome::accepted) send();
  acquisition_.runAcquisition();
}

}  // namespace tracewell
