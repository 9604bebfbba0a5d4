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

void SettingsDialog::edit(Fetching fetching, const Step& fill, const Step& send) {
  // Otherwise it would send what was chosen the time before.
  if (isVisible()) return;
  std::optional<Doing> doing;
  doing.emplace(main_, fetching == Fetching::stops ? sayPaused(main_, caption) : sayBusy(caption));
  if (fetching == Fetching::stops) acquisition_.StopAcq();
  fill();
  if (fetching == Fetching::goesOn) doing.reset();
  showModal();
  if (fetching == Fetching::goesOn) doing.emplace(main_, sayBusy(caption));
  if (outcome == Outcome::accepted) send();
  acquisition_.runAcquisition();
}

}  // namespace tracewell
