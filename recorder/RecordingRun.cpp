// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordingRun.h"

#include <algorithm>
#include <utility>

#include "Error.h"
#include "Numbers.h"
#include "WallTime.h"
#include "WaveformRecord.h"

namespace tracewell {

RecordingRun::RecordingRun(const RecorderOptions& options, RecorderOutput& output, SerialPort& port,
                           Clock& clock, const EventDispatcher& dispatcher, Told told)
    : options_(options),
      output_(output),
      port_(port),
      clock_(clock),
      dispatcher_(dispatcher),
      told_(std::move(told)) {
  port_.settings = options_.line;
  port_.dataReady = [this](const LineRecord& record) { arrived(record); };
}

/// Files are begun when there is something to write into them.
void RecordingRun::begin() {
  try {
    port_.prepare();
    readScales();
  } catch (const Error& error) {
    told_.message(error.description());
    return end(error.number() == portReadTimeOut ? RecorderEnd::noAnswer : RecorderEnd::noLine);
  }
  try {
    output_.begin(clock_.milliseconds());
  } catch (const Error& error) {
    told_.message(error.description());
    return end(RecorderEnd::notWritten);
  }
  turn();
}

void RecordingRun::endBySignal() {
  end(options_.hasEnd() ? RecorderEnd::endedEarly : RecorderEnd::done);
}

/// Looks again when the next request is due, and at least once a second.
void RecordingRun::turn() {
  constexpr std::int64_t longest = 1000;
  constexpr std::int64_t shortest = 5;
  dispatcher_.dispatch([this] { tick(); });
  if (isOver_) return;
  const std::int64_t rest = nextRequestAt_ - clock_.milliseconds();
  clock_.callAfter(static_cast<int>(std::clamp(rest, shortest, longest)),
                   [this, alive = std::weak_ptr(alive_)] {
                     if (!alive.expired() && !isOver_) turn();
                   });
}

void RecordingRun::tick() {
  const std::int64_t now = clock_.milliseconds();
  output_.tick(now);
  tellTrouble();
  if (options_.until && wallTimeNow() >= *options_.until) return end(RecorderEnd::done);
  if (waitingSince_ && now - *waitingSince_ >= options_.patience) {
    told_.message(failure_.empty() ? "No record has come for too long" : failure_);
    return end(isLineFailing_ ? RecorderEnd::noLine : RecorderEnd::noAnswer);
  }
  if (now >= nextRequestAt_) request(now);
}

/// A line that has failed is opened anew with the next request.
void RecordingRun::request(std::int64_t now) {
  constexpr int soonest = 50;
  // Without an interval the next request follows the record.
  nextRequestAt_ = now + std::max(options_.interval, soonest);
  if (!waitingSince_) waitingSince_ = now;
  while (isComplete(options_.channels[next_])) next_ = (next_ + 1) % options_.channels.size();
  const auto channel = static_cast<std::int16_t>(options_.channels[next_]);
  next_ = (next_ + 1) % options_.channels.size();
  try {
    port_.prepare();
    if (isScaleWrong() && hasComeSinceReading_) readOn_.reset();
    if (readOn_ != port_.openings()) readScales();
    const KnownInstrument::Moment stamp = known_.now();
    known_.requested();
    isLocked_ = true;
    port_.request({.request = ":ACQ" + std::to_string(channel) + ":POIN\r\n",
                   .channel = channel,
                   .stamp = stamp,
                   .count = WaveformRecord::byteCount});
    failure_.clear();
    isLineFailing_ = false;
  } catch (const Error& error) {
    isLineFailing_ = error.number() != portReadTimeOut;
    failed(error.description());
  }
}

void RecordingRun::failed(const std::string& why) {
  if (why != failure_) told_.message(why);
  failure_ = why;
}

/// What was told has turned out to be the reply to another query.
bool RecordingRun::isScaleWrong() const {
  using enum Setting;
  return std::ranges::any_of(std::array{scale1, scale2, timeBase}, [this](Setting scale) {
    return known_.doubt(scale) == Doubt::wrongAnswer;
  });
}

/// The first question decides whether anybody is there; what has no answer else is not known.
void RecordingRun::readScales() {
  struct Scale {
    const char* query;
    Setting setting;
  };
  constexpr std::array<Scale, 3> scales = {{{":CHAN1:SCAL?", Setting::scale1},
                                            {":CHAN2:SCAL?", Setting::scale2},
                                            {":TIM:SCAL?", Setting::timeBase}}};
  hasComeSinceReading_ = false;
  known_.reading();
  for (const auto& [query, setting] : scales) {
    try {
      ask(query, setting);
    } catch (const Error& error) {
      if (error.number() != portReadTimeOut || setting == Setting::scale1) throw;
    }
    if (!isTold(setting))
      told_.message(std::string(query) + " has no answer: what depends on it has no value");
  }
  readOn_ = port_.openings();
}

/// Surely or not.
bool RecordingRun::isTold(Setting scale) const {
  const Doubt doubt = known_.doubt(scale);
  return doubt == Doubt::none || doubt == Doubt::unsureAnswer;
}

/// Once again where the reply is blank, or no scale, or does not come.
void RecordingRun::ask(const std::string& query, Setting scale) {
  constexpr int tries = 2;
  for (int i = 1; i <= tries; ++i) {
    isLocked_ = true;
    try {
      const std::string line = port_.query(query + "\r\n", SerialPort::defaultReadTimeOut);
      const std::string_view reply = trimBlanks(std::string_view(line).substr(0, line.find('\n')));
      if (reply.empty())
        known_.notAnswered(query);
      else
        known_.answered(query, reply, port_.lastReply());
      if (isTold(scale)) return;
    } catch (const Error& error) {
      known_.notAnswered(query);
      if (error.number() != portReadTimeOut || i == tries) throw;
    }
  }
}

void RecordingRun::arrived(const LineRecord& fetched) {
  if (isOver_) return;
  const std::int64_t now = clock_.milliseconds();
  waitingSince_.reset();
  hasComeSinceReading_ = true;
  if (options_.interval == 0) nextRequestAt_ = now;
  const int channel = fetched.channel;
  ChannelRecord& record = records_[static_cast<std::size_t>(channel - 1)];
  const RecordArrival arrival{channel, line(), fetched.stamp, now};
  if (!takeRecord(record, fetched.bytes, arrival, known_)) return tellSame();
  if (isComplete(channel)) return;
  try {
    take(channel, record);
  } catch (const Error& error) {
    told_.message(error.description());
    return end(RecorderEnd::notWritten);
  }
  if (isComplete()) end(RecorderEnd::done);
}

void RecordingRun::take(int channel, const ChannelRecord& record) {
  const OwnMeasurements values = measure(record, records_[channel == 1 ? 1 : 0]);
  isLimitPassed_ = isLimitPassed_ || !options_.columns.passed(values).empty();
  if (!options_.columns.areDecided(values)) ++undecidedRows_;
  isSameTold_ = false;
  output_.take(channel, record, values, wallTimeNow(), clock_.milliseconds());
  ++countOf(channel);
  tellProgress(channel, values);
}

/// An instrument may wait for its trigger for hours. One channel may be flat while the other
/// sweeps.
void RecordingRun::tellSame() {
  std::int64_t newest = 0;
  for (const ChannelRecord& record : records_) newest = std::max(newest, record.sweepAt);
  if (clock_.milliseconds() - newest < options_.patience || std::exchange(isSameTold_, true))
    return;
  told_.message(
      "The same sweep again and again: the instrument is stopped or waits for its trigger");
}

void RecordingRun::tellTrouble() {
  const std::string trouble = output_.trouble().value_or("");
  if (!trouble.empty() && trouble != trouble_) told_.message(trouble + "; rows are held");
  if (trouble.empty() && !trouble_.empty()) told_.message("Rows are written again");
  trouble_ = trouble;
}

void RecordingRun::tellProgress(int channel, const OwnMeasurements& values) {
  constexpr int digits = 4;
  std::string text = "CH" + std::to_string(channel) + " " + std::to_string(countOf(channel));
  if (options_.count) text += "/" + std::to_string(*options_.count);
  for (const Quantity quantity : options_.columns.quantities) {
    const QuantityName& name = nameOf(quantity);
    text.append("  ").append(name.shortName).append(" ");
    if (values[quantity].value)
      text.append(shortNumberText(*values[quantity].value, digits))
          .append(" ")
          .append(unitText(name.unit));
    else
      text.append(reasonText(values[quantity].reason));
  }
  told_.progress(text);
}

bool RecordingRun::isComplete(int channel) const {
  return options_.count && counts_[static_cast<std::size_t>(channel - 1)] >= *options_.count;
}

bool RecordingRun::isComplete() const {
  return std::ranges::all_of(options_.channels, [this](int one) { return isComplete(one); });
}

/// Whatever was sent has locked the instrument's own panel.
void RecordingRun::release() {
  if (!std::exchange(isLocked_, false)) return;
  try {
    port_.prepare();
    port_.command(":SYST:UNL\r\n", SerialPort::Reply::none);
  } catch (const Error& error) {
    told_.message("The instrument's panel is perhaps still locked: " + error.description());
  }
}

void RecordingRun::end(RecorderEnd how) {
  if (std::exchange(isOver_, true)) return;
  release();
  if (!output_.finish(clock_.milliseconds())) {
    told_.message(output_.trouble().value_or("Not all has been written"));
    how = RecorderEnd::notWritten;
  }
  if (undecidedRows_ > 0)
    told_.message("Rows for which a limit could not be decided: " + std::to_string(undecidedRows_));
  if (how == RecorderEnd::done && isLimitPassed_) how = RecorderEnd::limitPassed;
  told_.ended(how);
}

}  // namespace tracewell
