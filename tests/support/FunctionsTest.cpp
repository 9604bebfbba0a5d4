// SPDX-License-Identifier: GPL-3.0-or-later
#include <map>

#include "Numbers.h"
#include "OutstandingRecords.h"
#include "Played.h"
#include "ScaleTables.h"
#include "ServerAddress.h"
#include "TrueNumbers.h"
#include "TrueUnits.h"
#include "Waiting.h"
#include "WaveformRecord.h"
#include "WaveformSetReader.h"
#include "WaveformSetWriter.h"

namespace tracewell {
namespace {

double number(const std::string& text) {
  return std::stod(text);
}

std::int16_t whole(const std::string& text) {
  return static_cast<std::int16_t>(std::stoi(text));
}

ScaleKnob knob(const std::string& name) {
  return name == "T" ? ScaleKnob::Time : name == "1" ? ScaleKnob::Chan1 : ScaleKnob::Chan2;
}

std::string joined(const Lines& parts) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : " / ") + part;
  return text;
}

/// Samples are 7, then always the same; of a short record they are 0, 1, 2, ...
std::string samples(int bits, std::int16_t offset, std::size_t bytes = 1014) {
  const bool isCut = bytes < 1014;
  const auto sample = [&](int i) { return isCut ? i : i == 0 ? 7 : bits; };
  const Samples decoded = decodeSamples(makeRecord(sample).substr(0, bytes), offset);
  return std::to_string(decoded[0]) + " ... " + std::to_string(decoded[499]);
}

std::string waveforms(const Lines& of) {
  std::string text = of[0];
  if (of.size() > 3)
    for (int i = 0; i < std::stoi(of[3]); ++i) text += "1\r\n";
  const LoadedWaveforms loaded = readWaveforms(text, of[1], of[2]);
  std::string points;
  for (const auto* channel : {&loaded.channel1, &loaded.channel2}) {
    points += (points.empty() ? "" : " and ") + std::to_string(channel->size());
    for (std::size_t i = 0; i < channel->size() && i < 4; ++i)
      points += ":" + numberText((*channel)[i]);
  }
  return points;
}

std::string address(const std::string& text) {
  const ProgramFolderCopy folder;
  const std::filesystem::path file = folder.path() / "server";
  writeWholeFile(file, text);
  std::string address;
  const std::string error = errorOf([&] { address = addressText(readServerAddress(file)); });
  EXPECT_TRUE(error.empty() || error.find(pathText(file)) != std::string::npos);
  return error.empty() ? address : error.substr(0, error.find(':'));
}

std::string timeOuts(const Lines& of) {
  ModuleState state;
  state.BaudRate = whole(of[0]);
  state.ChanCount = whole(of[1]);
  return std::to_string(ReplyTimeout(state)) + " " + std::to_string(ShortReplyTimeout(state));
}

/// Records of so many bytes were given up; then what is heard, and how many bytes of it are theirs.
/// "<", "^", "_" stand for CR, LF, 0; "*" behind a number for each record that became whole.
std::string outstandingRecords(const Lines& of) {
  OutstandingRecords records;
  std::string taken;
  for (std::string heard : of) {
    if (heard == "record") records.heardRecord();
    if (heard == "other") records.heardOther();
    if (heard == "record" || heard == "other") continue;
    if (std::isdigit(heard[0]) != 0 && heard.size() == 1) {
      records.add(std::stoul(heard), 0);
      continue;
    }
    for (char& byte : heard)
      byte = byte == '<' ? '\r' : byte == '^' ? '\n' : byte == '_' ? 0 : byte;
    const OutstandingRecords::Taken its = records.take(heard);
    taken += (taken.empty() ? "" : " ") + std::to_string(its.bytes) + std::string(its.whole, '*') +
             (its.areOfRecord ? "" : "-");
  }
  return taken;
}

using Function = std::function<std::string(const Lines& of)>;

/// By the name under which tests/scripts/functions.txt calls them.
const std::map<std::string, Function> functions = {
    {"outstandingRecords", outstandingRecords},
    {"toInt16", [](auto& of) { return std::to_string(toInt16(number(of[0]))); }},
    {"addInt16", [](auto& of) { return std::to_string(addInt16(whole(of[0]), whole(of[1]))); }},
    {"mulInt16", [](auto& of) { return std::to_string(mulInt16(whole(of[0]), whole(of[1]))); }},
    {"divide", [](auto& of) { return numberText(divide(number(of[0]), number(of[1]))); }},
    {"toDouble", [](auto& of) { return numberText(toDouble(of[0])); }},
    {"leadingNumber", [](auto& of) { return numberText(leadingNumber(of[0])); }},
    {"isNumeric", [](auto& of) { return isNumeric(of[0]) ? "yes" : "no"; }},
    {"formats",
     [](auto& of) {
       const double value = number(of[0]);
       return formatExponent(value) + " " + formatTwoDecimals(value) + " " + numberText(value);
     }},
    {"ParseScaleCaption", [](auto& of) { return numberText(ParseScaleCaption(of[0])); }},
    {"ScaleCommandForKnob",
     [](auto& of) { return ScaleCommandForKnob(knob(of[0]), number(of[1])); }},
    {"ScaleStepForReply",
     [](auto& of) { return std::to_string(ScaleStepForReply(knob(of[0]), of[1]).value_or(-1)); }},
    {"trueScale",
     [](auto& of) {
       const auto scale = trueScale(of[0], of.at(1));
       return scale ? numberText(*scale) : "none";
     }},
    {"timeBadge",
     [](auto& of) { return joined(timeBadge(number(of[0]), number(of[1]), number(of[2]))); }},
    {"voltageBadge",
     [](auto& of) {
       const auto zero = of[1].empty() ? std::nullopt : std::optional(number(of[1]));
       return joined(voltageBadge(number(of[0]), zero, number(of[2]), number(of[3])));
     }},
    {"samples", [](auto& of) { return samples(std::stoi(of[0], nullptr, 16), whole(of[1])); }},
    {"firstSample",
     [](auto& of) {
       const int bits = std::stoi(of[0], nullptr, 16);
       return std::to_string(decodeSamples(makeRecord([=](int) { return bits; }), whole(of[1]))[0]);
     }},
    {"samplesOfBytes", [](auto& of) { return samples(0, 0, std::stoul(of[0])); }},
    {"readWaveforms", waveforms},
    {"setWasSaved",
     [](auto& of) {
       return split(pathOf(setWasSaved(Words(), of[0])).generic_string(), " in ")[0];
     }},
    {"withoutExtension", [](auto& of) { return withoutExtension(of[0]); }},
    {"readServerAddress", [](auto& of) { return address(of[0]); }},
    {"readServerAddressBefore",
     [](auto& of) { return address("tcp://a:1" + std::string(std::stoul(of[0]), ' ')); }},
    {"ReplyTimeout", timeOuts}};

/// A function stands in front of what it is called with; | is between arguments, ^ is a line feed,
/// < a carriage return, > a tabulator.
std::string play(const std::string& script) {
  std::string results;
  const Function* function = nullptr;
  for (std::string step : split(script, ", ")) {
    if (const auto found = functions.find(step); found != functions.end()) {
      function = &found->second;
      continue;
    }
    for (char& c : step) c = c == '^' ? '\n' : c == '<' ? '\r' : c == '>' ? '\t' : c;
    std::string result;
    const std::string error = errorOf([&] { result = (*function)(split(step, "|")); });
    results += (results.empty() ? "" : "; ") + (error.empty() ? result : error);
  }
  return results;
}

}  // namespace

TEST(FunctionsTest, ComeToWhatStandsBelowThem) {
  playFile("functions.txt", play);
}

}  // namespace tracewell
