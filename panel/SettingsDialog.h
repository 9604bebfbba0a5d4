// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "Acquisition.h"
#include "Unanswered.h"
#include "Window.h"

namespace tracewell {

/// A dialog over settings of the instrument: it is filled with what the instrument has, and after
/// OK what the user has chosen is sent.
class SettingsDialog : public Window {
 public:
 protected:
  SettingsDialog(std::string name, std::string caption, frmDSO& main, Acquisition& acquisition);

  /// What the periodic fetch does while the user chooses.
  enum class Fetching { stops, goesOn };
  using Step = std::function<void()>;
  /// Fills the dialog, shows it, sends after OK, and has the fetch run, whether it ran before or
  /// not. An error ends it there and leaves the fetch as it stands, unlike Paused.
  void edit(Fetching fetching, const Step& fill, const Step& send);

  frmDSO& main_;
  Unanswered unanswered_{main_.services().port, main_.known};

 private:
  Acquisition& acquisition_;
};

}  // namespace tracewell
