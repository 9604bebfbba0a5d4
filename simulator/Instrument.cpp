// SPDX-License-Identifier: GPL-3.0-or-later
#include "Instrument.h"

#include <algorithm>
#include <utility>

#include "MeasuredSignal.h"

namespace tracewell {
namespace {

/// Milliseconds from the end of a command to the first bit of its answer.
constexpr double thought = 4;
constexpr double autosetTime = 1000;

std::string capitals(std::string text) {
  // Whatever the locale is.
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

/// "NAME value" at its first blank.
std::pair<std::string, std::string> split(const std::string& line) {
  const std::size_t blank = line.find(' ');
  if (blank == std::string::npos) return {capitals(line), ""};
  return {capitals(line.substr(0, blank)), line.substr(blank + 1)};
}

}  // namespace

void Instrument::receive(std::string_view bytes, double now) {
  receivedUntil_ = std::max(receivedUntil_, now);
  for (const char byte : bytes) {
    receivedUntil_ += rate_.byteTime();
    if (byte != '\n') {
      line_ += byte;
      continue;
    }
    if (line_.ends_with('\r')) line_.pop_back();
    obey(std::exchange(line_, {}), std::max(receivedUntil_, busyUntil_));
  }
}

std::string Instrument::transmit(double now) {
  std::string bytes;
  while (!sending_.empty() && sending_.front().at <= now && !hasHungUp()) {
    bytes += sending_.front().byte;
    sending_.pop_front();
    if (faults_.hangUpAfter > 0) --faults_.hangUpAfter;
  }
  return bytes;
}

std::optional<double> Instrument::nextByteAt() const {
  if (sending_.empty()) return std::nullopt;
  return sending_.front().at;
}

void Instrument::plugIn() {
  sending_.clear();
  line_.clear();
  if (hasHungUp()) faults_.hangUpAfter = -1;
}

bool Instrument::setFault(const std::string& line) {
  const auto [name, value] = split(line);
  const std::optional<double> number = strictNumber(value);
  return faults_.set(name, number ? static_cast<int>(std::clamp(*number, 0.0, 1e9)) : 0);
}

void Instrument::obey(std::string line, double at) {
  if (line.starts_with(':')) line.erase(0, 1);
  if (line.empty()) return;
  const auto [name, value] = split(line);
  if (name.starts_with("SIM:")) {
    if (!setFault(line.substr(4))) ++errorCount_;
    return;
  }
  if (name.ends_with('?')) {
    answerQuery(name.substr(0, name.size() - 1), at);
  } else if (name == "ACQ1:POIN" || name == "ACQ2:POIN") {
    sendRecord(name[3] - '0', at);
  } else if (name == "AUT") {
    autoset(at);
  } else if (name == "RUN") {
    screen_.run();
  } else if (name == "STOP") {
    screen_.stop();
  } else if (name != "SYST:UNL" && !settings_.set(name, value)) {
    ++errorCount_;
  }
}

void Instrument::autoset(double at) {
  Screen::autoset(settings_);
  screen_.run();
  busyUntil_ = at + autosetTime;
}

void Instrument::answerQuery(const std::string& name, double at) {
  ++queryCount_;
  if (faults_.missEvery > 0 && queryCount_ % faults_.missEvery == 0) return;
  if (name.starts_with("MEAS:")) screen_.sweep(settings_, at / 1000);
  if (const std::optional<std::string> reply = replyTo(name))
    sendLine(*reply, at);
  else
    ++errorCount_;
}

std::optional<std::string> Instrument::replyTo(const std::string& name) {
  if (name == "*IDN") return "KRM-410 SIMULATED";
  if (name == "SYST:ERR") return std::to_string(std::exchange(errorCount_, 0));
  if (auto setting = settings_.reply(name)) return setting;
  if (!name.starts_with("MEAS:")) return std::nullopt;
  const int channel = settings_.option("MEAS:SOUR");
  const double scale = settings_.number("CHAN" + std::to_string(channel) + ":SCAL");
  return measure(name.substr(5), screen_.trace(channel), scale, settings_.number("TIM:SCAL"));
}

void Instrument::sendRecord(int channel, double at) {
  screen_.sweep(settings_, at / 1000);
  std::string record = recordBytes(channel, screen_.trace(channel));
  if (faults_.cutRecordsAt > 0)
    record.resize(std::min(record.size(), static_cast<std::size_t>(faults_.cutRecordsAt)));
  send(record, at);
}

void Instrument::sendLine(std::string reply, double at) {
  if (faults_.isNonNumeric) reply = "x" + reply;
  if (faults_.hasTrailingBlank) reply += ' ';
  send(reply + "\n", at);
}

void Instrument::send(const std::string& bytes, double at) {
  if (faults_.isSilent) return;
  sentUntil_ = std::max(sentUntil_, at + thought + faults_.slowMilliseconds);
  for (char byte : bytes) {
    sentUntil_ += rate_.byteTime() + faults_.trickleMilliseconds;
    ++sentCount_;
    if (faults_.dropEvery > 0 && sentCount_ % faults_.dropEvery == 0) continue;
    if (faults_.isGarbage) byte = static_cast<char>(sentCount_ * 7919 >> 3);
    sending_.push_back({sentUntil_, byte});
  }
}

}  // namespace tracewell
