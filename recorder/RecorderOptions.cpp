// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderOptions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <iomanip>
#include <optional>
#include <sstream>

#include "Error.h"
#include "Numbers.h"

namespace tracewell {
namespace {

/// What is wrong with a value; the option's name is put in front.
struct BadValue {
  const char* wanted;
  /// The word of a list; none for the whole value.
  std::optional<std::string> word = {};
};

int whole(const std::string& text, int lowest, int highest, const char* wanted) {
  int value = 0;
  const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isWhole = failed == std::errc() && end == text.data() + text.size();
  if (!isWhole || value < lowest || value > highest) throw BadValue{wanted};
  return value;
}

int milliseconds(const std::string& text) {
  constexpr double longest = 86400;
  double seconds = -1;
  try {
    seconds = toDouble(text);
  } catch (const Error&) {
    // No number, or larger than one can be.
  }
  if (seconds < 0 || seconds > longest) throw BadValue{"seconds, at most a day"};
  return static_cast<int>(std::lround(1000 * seconds));
}

std::vector<int> channelsOf(const std::string& text) {
  if (text == "1" || text == "2") return {text[0] - '0'};
  if (text == "1,2" || text == "2,1") return {1, 2};
  throw BadValue{"1, 2 or 1,2"};
}

std::int16_t oneOf(const std::string& text,
                   std::initializer_list<std::pair<const char*, std::int16_t>> codes,
                   const char* wanted) {
  for (const auto& [name, code] : codes)
    if (text == name) return code;
  throw BadValue{wanted};
}

/// Whether the whole text is a time of that form; what it does not name stays as it was.
bool reads(const std::string& text, const char* form, std::tm& time) {
  std::istringstream stream(text);
  std::tm read = time;
  stream >> std::get_time(&read, form);
  if (stream.fail() || stream.peek() != std::istringstream::traits_type::eof()) return false;
  time = read;
  return true;
}

/// A time of day is the next one.
std::int64_t momentOf(const std::string& text, std::int64_t now) {
  const auto seconds = static_cast<std::time_t>(now / 1000);
  std::tm time = *std::localtime(&seconds);
  time.tm_sec = 0;
  time.tm_isdst = -1;
  const bool isTimeOfDay = reads(text, "%H:%M:%S", time) || reads(text, "%H:%M", time);
  if (!isTimeOfDay && !reads(text, "%Y-%m-%dT%H:%M:%S", time) &&
      !reads(text, "%Y-%m-%dT%H:%M", time))
    throw BadValue{"a time as 18:30 or 2026-03-15T18:30"};
  std::int64_t moment = std::int64_t{std::mktime(&time)} * 1000;
  if (moment <= now && isTimeOfDay) {
    ++time.tm_mday;
    time.tm_isdst = -1;
    moment = std::int64_t{std::mktime(&time)} * 1000;
  }
  if (moment <= now) throw BadValue{"a time that is still to come"};
  return moment;
}

struct Reading {
  RecorderOptions options;
  bool hasPort = false;
  std::int64_t now = 0;
};

struct RecorderOption {
  const char* name;
  /// What stands behind the name; empty for nothing.
  const char* value;
  const char* help;
  void (*take)(Reading&, const std::string&);
};

constexpr std::array<RecorderOption, 17> table = {{
    {"--port", "N", "the port's number; 0 is the simulated instrument",
     [](Reading& reading, const std::string& text) {
       reading.options.line.portNumber =
           static_cast<std::int16_t>(whole(text, 0, 256, "a number from 0 to 256"));
       reading.hasPort = true;
     }},
    {"--baud", "N", "the line's rate (19200)",
     [](Reading& reading, const std::string& text) {
       reading.options.line.baudRate = whole(text, 1, 4000000, "a rate");
     }},
    {"--data-bits", "N", "7 or 8 (8)",
     [](Reading& reading, const std::string& text) {
       reading.options.line.dataBits = static_cast<std::int16_t>(whole(text, 7, 8, "7 or 8"));
     }},
    {"--parity", "P", "none, odd or even (none)",
     [](Reading& reading, const std::string& text) {
       reading.options.line.parity =
           oneOf(text, {{"none", 0}, {"even", 1}, {"odd", 3}}, "none, odd or even");
     }},
    {"--stop-bits", "N", "1 or 2 (1)",
     [](Reading& reading, const std::string& text) {
       reading.options.line.stopBits = oneOf(text, {{"1", 0}, {"2", 2}}, "1 or 2");
     }},
    {"--channels", "LIST", "1, 2 or 1,2 (1)",
     [](Reading& reading, const std::string& text) {
       reading.options.channels = channelsOf(text);
     }},
    {"--measure", "LIST", "what the rows tell (max,min,vpp,mean,rms,freq)",
     [](Reading& reading, const std::string& text) {
       std::string wrong;
       const auto quantities = quantitiesOf(text, wrong);
       if (!quantities) throw BadValue{"names as vpp,freq", wrong};
       reading.options.columns.quantities = *quantities;
     }},
    {"--csv", "FILE", "rows of measurements; - is the standard output",
     [](Reading& reading, const std::string& text) { reading.options.csv = text; }},
    {"--samples", "FILE", "all samples, in volts and seconds; - as well",
     [](Reading& reading, const std::string& text) { reading.options.samples = text; }},
    {"--limit", "TEXT", "mark rows, as \"vpp > 1.2\"; may be repeated",
     [](Reading& reading, const std::string& text) {
       const auto limit = limitOf(text);
       if (!limit) throw BadValue{"a limit as \"vpp > 1.2\" or \"freq < 1 kHz\""};
       reading.options.columns.limits.push_back(*limit);
     }},
    {"--interval", "S", "seconds from request to request (1.2)",
     [](Reading& reading, const std::string& text) {
       reading.options.interval = milliseconds(text);
     }},
    {"--count", "N", "end after N new records of each channel",
     [](Reading& reading, const std::string& text) {
       reading.options.count = whole(text, 1, 1000000000, "a number from 1 on");
     }},
    {"--until", "TIME", "end at 18:30, or at 2026-03-15T18:30",
     [](Reading& reading, const std::string& text) {
       reading.options.until = momentOf(text, reading.now);
     }},
    {"--patience", "S", "end after so many seconds without a record (30)",
     [](Reading& reading, const std::string& text) {
       reading.options.patience = milliseconds(text);
     }},
    {"--quiet", "", "no progress, also on a terminal",
     [](Reading& reading, const std::string&) { reading.options.isQuiet = true; }},
    {"--help", "", "this text",
     [](Reading& reading, const std::string&) { reading.options.wantsHelp = true; }},
    {"--version", "", "the program's version",
     [](Reading& reading, const std::string&) { reading.options.wantsVersion = true; }},
}};

const RecorderOption& optionNamed(const std::string& name) {
  const auto found = std::ranges::find_if(table, [&](const auto& one) { return one.name == name; });
  if (found == table.end()) throw RecorderUsageError("there is no option " + name);
  return *found;
}

void check(const Reading& reading) {
  const RecorderOptions& options = reading.options;
  if (options.wantsHelp || options.wantsVersion) return;
  if (!reading.hasPort) throw RecorderUsageError("--port is missing");
  if (options.csv == "-" && options.samples == "-")
    throw RecorderUsageError("only one of --csv and --samples can be the standard output");
}

}  // namespace

RecorderOptions recorderOptions(const std::vector<std::string>& arguments, std::int64_t now) {
  Reading reading{{}, false, now};
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    // "--port=7" is "--port 7".
    const std::size_t sign = arguments[i].find('=');
    const std::string name = arguments[i].substr(0, sign);
    const RecorderOption& option = optionNamed(name);
    const bool hasValue = *option.value != '\0';
    if (!hasValue && sign != std::string::npos) throw RecorderUsageError(name + " has no value");
    if (hasValue && sign == std::string::npos && i + 1 == arguments.size())
      throw RecorderUsageError(name + " wants a value");
    std::string value;
    if (hasValue)
      value = sign == std::string::npos ? arguments[++i] : arguments[i].substr(sign + 1);
    try {
      option.take(reading, value);
    } catch (const BadValue& bad) {
      throw RecorderUsageError(name + " wants " + bad.wanted + ", not \"" +
                               bad.word.value_or(value) + "\"");
    }
  }
  check(reading);
  if (!reading.options.csv && !reading.options.samples) reading.options.csv = "-";
  return reading.options;
}

std::string recorderHelp() {
  constexpr std::size_t column = 20;
  std::string text =
      "tracewell-record: records of a KRM-410 as rows of measurements, or as samples\n\n";
  for (const RecorderOption& option : table) {
    std::string line = std::string("  ") + option.name + " " + option.value;
    line.resize(std::max(column, line.size() + 1), ' ');
    text += line + option.help + "\n";
  }
  text += "\nMeasurements:";
  for (const QuantityName& name : quantityNames) text.append(" ").append(name.shortName);
  text +=
      "\n\nExit status: 0 done, 1 wrong options, 2 no line, 3 no answer, 4 nothing could be "
      "written,\n"
      "5 a limit was passed, 6 ended by a signal before its time.\n";
  return text;
}

}  // namespace tracewell
