// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Acquisition.h"
#include "Inquiry.h"
#include "frmFMeasure.h"
#include "frmVMeasure.h"

namespace tracewell {

/// The instrument's own measurements, queried one by one and shown as they arrive, without
/// conversion.
class Measurements {
 public:
  Measurements(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
               Acquisition& acquisition, frmVMeasure& selection, frmFMeasure& quickSelection);

  /// While a measurement is under way no other one begins.
  ///
  /// Stops the acquisition, has the user choose, measures, and leaves the acquisition stopped. Logs
  /// its failure, as the next one does.
  void cmdVMeasure_Click();
  void mnbVoltage_Click() { cmdVMeasure_Click(); }
  /// Measures the times of one channel with the last choice. The acquisition goes on.
  void cmdFMeasure_Click();
  /// The same after the user has chosen.
  void mnbFrequency_Click();

  /// Hands the results to other programs: a line for each, a tab between name and value. Those
  /// that are of an earlier measurement or have no value are left out.
  void fmMeasure_Copied();

 private:
  void chooseAndMeasure();
  /// Measures what is flagged of both channels, unless the choice was cancelled. A value that the
  /// instrument does not have is asked for up to three times more. Throws ProgramEnded when the
  /// window is closed in between.
  void RunMeasurements();
  void ClearMeasureLabels();
  void measureQuickly();
  void measureFlagged(Inquiry& inquiry, int channel, std::span<const std::string_view> names,
                      std::span<const std::string_view> queries, int flagRow);
  void chooseSource(int channel);
  void showNext(int channel, const std::string& title, const std::string& reply,
                std::string_view query);
  void showResult(int label, int channel, const std::string& title, const std::string& reply,
                  std::string_view query);
  int flaggedCount(int row, std::size_t items) const;
  std::string askPatiently(int channel, const std::string& query);
  /// The reply; "" without asking when the source could not be chosen, since the answer would be
  /// that of the source before.
  std::string ask(const std::string& query);
  bool isFlagged(int row, std::size_t item) const;

  /// What stands on a label of results.
  struct Result {
    int channel = 0;
    /// None where there is no value.
    std::optional<int> reply;
    InstrumentLine line;
    KnownInstrument::Moment measuredAt = 0;
    /// Of the measurement before the last.
    bool isLeftOver = false;
  };
  Trust trustOf(const Result& result) const;

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
  frmVMeasure& selection_;
  frmFMeasure& quickSelection_;
  /// Label that the next result goes to; the last one takes all that find no room.
  int nextLabel_ = 0;
  bool isSourceChosen_ = false;
  /// By label; none where it is empty.
  std::array<std::optional<Result>, 16> results_;
};

}  // namespace tracewell
