// SPDX-License-Identifier: GPL-3.0-or-later
#include "Measurements.h"

#include <algorithm>

#include "ConnectionIndicator.h"
#include "Doing.h"
#include "MeasurementItems.h"
#include "Numbers.h"
#include "Waiting.h"

namespace tracewell {
namespace {

/// "Vpp(1)    ": at least ten characters.
std::string labelText(std::string_view name, int channel) {
  constexpr std::size_t shortest = 10;
  std::string text = std::string(name) + "(" + std::to_string(channel) + ")";
  text.resize(std::max(text.size(), shortest), ' ');
  return text;
}

/// "N/A" and its like, or nothing at all.
bool isNoValue(const std::string& reply) {
  return reply.empty() || reply.starts_with('N');
}

/// "Vpp(1)\t1.000 V". A quick result has nothing between its name and its value.
std::string rowOf(const std::string& result) {
  const std::string_view separator = ": ";
  if (const std::size_t end = result.find(separator); end != std::string::npos)
    return std::string(trimBlanks(result.substr(0, end))) + "\t" +
           result.substr(end + separator.size());
  for (const std::string_view name : FreqMeasName)
    if (result.starts_with(name)) return std::string(name) + "\t" + result.substr(name.size());
  return result;
}

std::string sayMeasuring(const Words& words) {
  return words.say("Measuring");
}

/// A stopped instrument measures what it made under the scales of its stop.
MeasuredUnder measuredUnder(const KnownInstrument& known, int channel) {
  MeasuredUnder scales;
  if (known.isStopped()) return scales;
  scales.voltsPerDivision = known.voltsPerDivision(channel).value_or(scales.voltsPerDivision);
  scales.secondsPerDivision = known.secondsPerDivision().value_or(scales.secondsPerDivision);
  return scales;
}

}  // namespace

Measurements::Measurements(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                           Acquisition& acquisition, frmVMeasure& selection,
                           frmFMeasure& quickSelection)
    : main_(main),
      exchange_(exchange),
      errorLog_(errorLog),
      acquisition_(acquisition),
      selection_(selection),
      quickSelection_(quickSelection) {
  for (ValueLabel& label : main.lblMeasure)
    label.trust = [this, &result = results_.at(static_cast<std::size_t>(label.index()))] {
      return result ? trustOf(*result) : Trust::holds;
    };
}

/// It is of the signal and the settings of its time. Math takes the place of its channel.
Trust Measurements::trustOf(const Result& result) const {
  if (!result.reply || !main_.services().port.isSure(*result.reply)) return Trust::unread;
  const KnownInstrument& known = main_.known;
  const bool isMath = known.mathChannel() == result.channel || known.mayMathBeOn();
  const bool isOfNow = !result.isLeftOver && !known.isUpset() && !isMath &&
                       result.line == known.presentLine() &&
                       known.signalChangedAt(result.channel) <= result.measuredAt;
  return isOfNow ? Trust::holds : Trust::stale;
}

void Measurements::cmdVMeasure_Click() {
  try {
    chooseAndMeasure();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdVMeasure_Click : ");
  }
  main_.tmDSO.enabled = false;
  showStopped(main_);
}

void Measurements::chooseAndMeasure() {
  const Doing pause(main_, sayPaused(main_, selection_.caption));
  acquisition_.StopAcq();
  selection_.showFlags();
  selection_.showModal();
  RunMeasurements();
}

void Measurements::RunMeasurements() {
  if (selection_.outcome != Outcome::accepted) return;
  const Doing measuring(main_, sayMeasuring);
  main_.refresh();
  ClearMeasureLabels();
  const ShortTimeOut shortTimeOut(main_.state, exchange_);
  nextLabel_ = 0;
  int count = 0;
  for (const int channel : {1, 2})
    count += flaggedCount(SetupTable::voltageRow(channel), VoltMeasName.size()) +
             flaggedCount(SetupTable::timeRow(channel), FreqMeasName.size());
  Inquiry inquiry(exchange_.inquiries(), main_.fmMeasure.caption, Inquiry::Of::questions, count);
  for (const int channel : {1, 2}) {
    chooseSource(channel);
    measureFlagged(inquiry, channel, VoltMeasName, VoltMeasQuery, SetupTable::voltageRow(channel));
    measureFlagged(inquiry, channel, FreqMeasName, FreqMeasQuery, SetupTable::timeRow(channel));
  }
}

void Measurements::chooseSource(int channel) {
  exchange_.SendDSOCmd(":MEAS:SOUR " + std::to_string(channel));
  isSourceChosen_ = exchange_.wasSent();
}

void Measurements::ClearMeasureLabels() {
  results_ = {};
  for (ValueLabel& label : main_.lblMeasure) label.caption = "";
}

void Measurements::measureFlagged(Inquiry& inquiry, int channel,
                                  std::span<const std::string_view> names,
                                  std::span<const std::string_view> queries, int flagRow) {
  for (std::size_t item = 0; item < names.size(); ++item) {
    if (!isFlagged(flagRow, item)) continue;
    inquiry.next();
    const std::string reply = askPatiently(channel, std::string(queries[item]));
    showNext(channel, labelText(names[item], channel) + ": ", reply, queries[item]);
    inquiry.note(!reply.empty());
  }
}

int Measurements::flaggedCount(int row, std::size_t items) const {
  int count = 0;
  for (std::size_t item = 0; item < items; ++item) count += isFlagged(row, item) ? 1 : 0;
  return count;
}

void Measurements::showResult(int label, int channel, const std::string& title,
                              const std::string& reply, std::string_view query) {
  const KnownInstrument& known = main_.known;
  std::optional<int> number;
  if (isResult(reply, query, measuredUnder(known, channel)))
    number = main_.services().port.lastReply();
  results_.at(static_cast<std::size_t>(label)) =
      Result{channel, number, known.presentLine(), known.now(), false};
  main_.lblMeasure(label).caption = title + reply;
}

bool Measurements::isFlagged(int row, std::size_t item) const {
  return main_.gridMeasure.text(row, SetupTable::columnOf(static_cast<int>(item))) == "1";
}

void Measurements::showNext(int channel, const std::string& title, const std::string& reply,
                            std::string_view query) {
  showResult(nextLabel_, channel, title, reply, query);
  main_.lblMeasure(nextLabel_).refresh();
  nextLabel_ = std::min(nextLabel_ + 1, main_.lblMeasure.size() - 1);
}

std::string Measurements::askPatiently(int channel, const std::string& query) {
  constexpr int mostAttempts = 4;
  std::string reply = ask(query);
  for (int attempt = 1; attempt < mostAttempts && isNoValue(reply); ++attempt) {
    if (!reply.empty()) {
      // Brings the instrument back to a known state.
      chooseSource(channel);
      ask("*IDN?");
    }
    reply = ask(query);
  }
  return reply;
}

std::string Measurements::ask(const std::string& query) {
  return isSourceChosen_ ? exchange_.SendDSOCmd(query) : "";
}

void Measurements::mnbFrequency_Click() {
  quickSelection_.showModal();
  if (quickSelection_.outcome == Outcome::accepted) cmdFMeasure_Click();
}

void Measurements::cmdFMeasure_Click() {
  try {
    measureQuickly();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdFMeasure_Click : ");
  }
}

void Measurements::measureQuickly() {
  const Doing measuring(main_, sayMeasuring);
  const ShortTimeOut shortTimeOut(main_.state, exchange_, 1);
  const int channel = quickSelection_.FMeasChan;
  chooseSource(channel);
  Inquiry inquiry(exchange_.inquiries(), main_.fmMeasure.caption, Inquiry::Of::questions,
                  flaggedCount(SetupTable::voltageChannel1, FreqMeasQuery.size()));
  // Those that it does not write over are of another time, and perhaps of the other channel.
  for (auto& result : results_)
    if (result) result->isLeftOver = true;
  for (const ValueLabel& old : main_.lblMeasure) old.notifyChanged();
  int label = 0;
  for (std::size_t item = 0; item < FreqMeasQuery.size(); ++item) {
    if (!isFlagged(SetupTable::voltageChannel1, item)) continue;
    inquiry.next();
    const std::string reply = ask(std::string(FreqMeasQuery[item]));
    inquiry.note(!reply.empty());
    showResult(label++, channel, std::string(FreqMeasName[item]), reply, FreqMeasQuery[item]);
    main_.refresh();
  }
}

void Measurements::fmMeasure_Copied() {
  std::string table;
  for (const ValueLabel& label : main_.lblMeasure)
    if (!label.caption().empty() && label.trust() == Trust::holds)
      table += rowOf(label.caption()) + "\n";
  if (table.empty()) return;
  main_.services().clipboard.put(table, Image());
  main_.status.tell(StatusLine::happened, [](const Words& words) { return words.say("Copied"); });
}

}  // namespace tracewell
