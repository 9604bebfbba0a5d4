// SPDX-License-Identifier: GPL-3.0-or-later
#include "Recorder.h"

#include <utility>

#include "Files.h"
#include "Numbers.h"
#include "RecorderWords.h"
#include "WallTime.h"

namespace tracewell {
namespace {

std::string sizeText(std::uintmax_t bytes) {
  const auto kilobytes = static_cast<double>(bytes) / 1000;
  return kilobytes < 1000 ? formatDecimals(kilobytes, 1) + " kB"
                          : formatDecimals(kilobytes / 1000, 1) + " MB";
}

std::string twoDigits(std::int64_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

/// "1:05:09"
std::string durationText(std::int64_t milliseconds) {
  const std::int64_t seconds = milliseconds / 1000;
  return std::to_string(seconds / 3600) + ":" + twoDigits(seconds / 60 % 60) + ":" +
         twoDigits(seconds % 60);
}

}  // namespace

Recorder::Recorder(frmDSO& main) : main_(main) {
  main_.recordKept = [this](int channel) { keep(channel); };
  main_.mayEnd = [this] { return stopLog(); };
}

Recorder::~Recorder() {
  main_.recordKept = Event<int>::Handler();
  main_.mayEnd = {};
  main_.status.withdraw(StatusLine::logTrouble);
}

void Recorder::keep(int channel) {
  const ChannelRecord& record = main_.channel(channel).record;
  const bool isSimulated = record.line.portNumber == PortList::simulatedPort;
  const auto number = store_.keep(channel, record, {wallTimeNow(), isSimulated});
  if (!number) return;
  if (log_ && store_.facts(*number).fetches == 1) write(*number);
  if (kept) kept(*number);
}

void Recorder::write(RecordStore::Number number) {
  const RecordFacts& facts = store_.facts(number);
  const auto partner = store_.partnerOf(number);
  // Phase and delay are counted from channel 1 on, and stand in the rows of channel 2.
  const OwnMeasurements values = partner && facts.channel == 2
                                     ? measure(store_.record(*partner), store_.record(number))
                                     : OwnMeasurements();
  OwnMeasurements own = measure(store_.record(number));
  for (const Quantity quantity : {Quantity::phase, Quantity::delay})
    own[quantity] = values[quantity];
  log_->append(facts.wallTime, facts.channel, own, main_.services().clock.milliseconds());
  const std::string passed = log_->columns().passed(own);
  if (passed.empty()) return;
  if (atLimit_.pins) isOutOfPins_ = !store_.pin(number, passed);
  if (atLimit_.rings && ring) ring();
}

void Recorder::startLog(const std::filesystem::path& path, MeasurementColumns columns,
                        AtLimit atLimit) {
  if (!stopLog()) return;
  atLimit_ = atLimit;
  isOutOfPins_ = false;
  log_.emplace(path, std::move(columns), main_.services().clock.milliseconds());
}

void Recorder::tick() {
  if (log_) log_->tick(main_.services().clock.milliseconds());
  sayTrouble();
}

/// In the panel, since the recorder's window may be closed.
void Recorder::sayTrouble() {
  const bool isTroubled = !troubleText(main_.services().words).empty();
  if (isTroubled == main_.status.says(StatusLine::logTrouble)) return;
  if (!isTroubled) return main_.status.withdraw(StatusLine::logTrouble);
  main_.status.tell(StatusLine::logTrouble, [this](const Words& words) {
    return words.say("Recorder's log: %1", {troubleText(words)});
  });
}

bool Recorder::stopLog() {
  const bool isDone = !log_ || log_->finish(main_.services().clock.milliseconds()) || isGivenUp();
  if (isDone) log_.reset();
  sayTrouble();
  return isDone;
}

bool Recorder::isGivenUp() const {
  const Services& services = main_.services();
  const std::string question = services.words.say(
      "Recorder's log: %1 cannot be written. %2. Give them up?",
      {rowsText(services.words, log_->held()), log_->trouble().value_or(pathText(log_->path()))});
  return services.dialogs.askYesNo(question, main_.caption(), Answer::No) == Answer::Yes;
}

std::string Recorder::logText(const Words& words) const {
  if (!log_) return "";
  const std::int64_t now = main_.services().clock.milliseconds();
  const std::string trouble = troubleText(words);
  // The recorder's window does not say it elsewhere.
  const bool rests = trouble.empty() && !main_.tmDSO.enabled();
  return trouble + (trouble.empty() ? "" : ". ") +
         (rests ? words.say("No rows while the traces are stopped") + ". " : "") +
         words.say("%1: %2, %3, %4", {pathText(log_->path()), durationText(log_->duration(now)),
                                      rowsText(words, log_->rows()), sizeText(log_->bytes())});
}

std::string Recorder::troubleText(const Words& words) const {
  if (!log_) return "";
  std::string text;
  const auto add = [&text](const std::string& sentence) {
    text += (text.empty() ? "" : ". ") + sentence;
  };
  const std::string held = rowsText(words, log_->held());
  if (log_->isDiskFull())
    add(words.say("The disk is full; waiting in memory: %1", {held}));
  else if (log_->trouble())
    add(words.say("Waiting in memory: %1. %2", {held, *log_->trouble()}));
  if (log_->lost() > 0) add(words.say("Lost: %1", {rowsText(words, log_->lost())}));
  if (isOutOfPins_) add(words.say("No more records can be pinned"));
  return text;
}

}  // namespace tracewell
