// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <span>
#include <string>
#include <string_view>

#include "CommandExchange.h"

namespace tracewell {

/// How the settings dialogs send a row of the setup table: each value is written, given a second,
/// and read back.
class SettingsBurst {
 public:
  static constexpr int settlingTime = 1000;

  SettingsBurst(frmDSO& main, CommandExchange& exchange) : main_(main), exchange_(exchange) {}

  /// Sends the values of `row` with the commands `stems`, from the `first` one on. Each is tried up
  /// to three times, until the instrument's reply is the cell's text to the letter; then the next
  /// follows without a word. The reply box shows every line as it goes out. Replies are given
  /// the short time-out meanwhile. Throws ProgramEnded when the window is closed in between.
  /// The status line calls them by `caption`. After Escape each is written once, unverified.
  void writeAndVerify(const Property<std::string>& caption, std::span<const std::string_view> stems,
                      int row, int first);

  /// A row of the setup table is being sent as long as it lives.
  class Sending {
   public:
    Sending(SettingsBurst& burst, int row) : burst_(burst), row_(row) { burst_.rows_.insert(row); }
    ~Sending() {
      burst_.rows_.erase(row_);
      burst_.main_.status.withdraw(StatusLine::refused);
    }
    Sending(const Sending&) = delete;

   private:
    SettingsBurst& burst_;
    int row_;
  };

  /// Whether that is so. Then the dialog that edits the row, whose name is `caption`, may not open:
  /// it would put other settings into the row. The status line says so.
  bool isSending(int row, const Property<std::string>& caption) const;

 private:
  static constexpr int attempts = 3;
  bool isAccepted(const std::string& stem, const std::string& value);

  frmDSO& main_;
  CommandExchange& exchange_;
  std::set<int> rows_;
};

}  // namespace tracewell
