// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinkSettings.h"

#include "Numbers.h"
#include "PortNotice.h"

namespace tracewell {
namespace {

/// "port 7, 9600 baud 8-N-1".
std::string lineText(const Words& words, const LineSettings& settings) {
  const char parity = settings.parity == 0 ? 'N' : settings.parity == 3 ? 'O' : 'E';
  const std::string bits =
      std::to_string(settings.dataBits) + "-" + parity + "-" + (settings.stopBits == 0 ? "1" : "2");
  return words.say("port %1, %2 baud %3",
                   {std::to_string(settings.portNumber), std::to_string(settings.baudRate), bits});
}

/// Empty where the table and the port agree.
std::string differingLink(const Words& words, const frmDSO& main) {
  const LineSettings& settings = main.services().port.settings;
  const std::string inUse = lineText(words, settings);
  try {
    const LineSettings wanted = linkSettings(main.gridMeasure);
    if (wanted == settings) return "";
    return words.say("In use: %1. The setup: %2 (OK in the RS-232 dialog applies it)",
                     {inUse, lineText(words, wanted)});
  } catch (const Error& error) {
    return words.say("In use: %1. The line settings of the setup: %2",
                     {inUse, error.description()});
  }
}

}  // namespace

std::int16_t dataBitsCode(const std::string& text) {
  return text == "7" ? 7 : 8;
}

std::int16_t stopBitsCode(const std::string& text) {
  return text == "1" ? 0 : 2;
}

std::int16_t parityCode(const std::string& text) {
  if (text == "None") return 0;
  return text == "Odd" ? 3 : 1;
}

LineSettings linkSettings(const SetupTable& table) {
  const auto text = [&](int value) {
    return table.text(SetupTable::link, SetupTable::columnOf(value));
  };
  return {.portNumber = toInt16(text(portValue)),
          .baudRate = toInt16(text(baudRateValue)),
          .dataBits = dataBitsCode(text(dataBitsValue)),
          .stopBits = stopBitsCode(text(stopBitsValue)),
          .parity = parityCode(text(parityValue))};
}

void applyLinkSettings(frmDSO& main) {
  LineSettings& settings = main.services().port.settings;
  try {
    settings = linkSettings(main.gridMeasure);
  } catch (const Error&) {
    // The port keeps its settings, and the notice says so.
  }
  showPort(main, settings.portNumber);
  showDifferingLink(main);
}

void showDifferingLink(frmDSO& main) {
  main.status.tell(StatusLine::otherLineSettings,
                   [&main](const Words& words) { return differingLink(words, main); });
}

}  // namespace tracewell
