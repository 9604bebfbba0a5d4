// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsDialog.h"

#include <utility>

namespace tracewell {

SettingsDialog::SettingsDialog(std::string name, std::string captionText, frmDSO& main,
                               Acquisition& acquisition)
    : Window(std::move(name), std::move(captionText), main.services()), acquisition_(acquisition) {}

void SettingsDialog::doubtAnswers() {
  if (isVisible()) unanswered_.doubtAll();
}

void SettingsDialog::edit(Fetching fetching, const Step& fill, const Step& send) {
  // Otherwise it would send what was chosen the time before.
  if (isVisible()) return;
  if (fetching == Fetching::stops) acquisition_.StopAcq();
  fill();
  showModal();
  if (outcome == Outcome::accepted) send();
  acquisition_.runAcquisition();
}

}  // namespace tracewell
