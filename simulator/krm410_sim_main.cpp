// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "PseudoTerminalServer.h"

namespace {

constexpr std::string_view usage = R"(krm410-sim: a simulated KRM-410 on a pseudo-terminal

  --link PATH       a symbolic link to the terminal, removed at the end
  --baud N          line rate (19200)
  --data-bits N     7 or 8 (8)
  --parity P        none, odd or even (none)
  --stop-bits N     1 or 2 (1)
  --fault "NAME N"  a fault from the start, as under :SIM: (may be repeated)
  --replug MS       after a hang-up, be back after so many milliseconds
  --help            this text

It prints the terminal's path and serves until it is killed. Lines on the standard input are
faults, for example "SILENT 1", "DROP 7", "CUT 500", "HANGUP 0", "OFF".
)";

class UsageError : public std::exception {};

int number(std::string_view text) {
  int value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (status != std::errc() || end != text.data() + text.size() || value < 0) throw UsageError();
  return value;
}

int oneOf(std::string_view text, int first, int second) {
  const int value = number(text);
  if (value != first && value != second) throw UsageError();
  return value;
}

bool hasParity(std::string_view text) {
  if (text == "none") return false;
  if (text == "odd" || text == "even") return true;
  throw UsageError();
}

tracewell::PseudoTerminalServer::Options readOptions(int count, char** arguments,
                                                     tracewell::Instrument& instrument) {
  tracewell::PseudoTerminalServer::Options options;
  for (int i = 1; i < count; i += 2) {
    const std::string_view name = arguments[i];
    if (i + 1 >= count) throw UsageError();
    const std::string value = arguments[i + 1];
    if (name == "--link") {
      options.link = value;
    } else if (name == "--baud") {
      options.rate.baudRate = std::max(number(value), 1);
    } else if (name == "--data-bits") {
      options.rate.dataBits = oneOf(value, 7, 8);
    } else if (name == "--parity") {
      options.rate.hasParity = hasParity(value);
    } else if (name == "--stop-bits") {
      options.rate.stopBits = oneOf(value, 1, 2);
    } else if (name == "--replug") {
      options.replugAfter = number(value);
    } else if (name != "--fault" || !instrument.setFault(value)) {
      throw UsageError();
    }
  }
  return options;
}

}  // namespace

int main(int count, char** arguments) {
  if (count > 1 && std::string_view(arguments[1]) == "--help") {
    std::cout << usage;
    return EXIT_SUCCESS;
  }
  try {
    tracewell::Instrument instrument;
    tracewell::PseudoTerminalServer server(instrument, readOptions(count, arguments, instrument));
    std::cout << server.path() << std::endl;
    server.serve();
  } catch (const UsageError&) {
    std::cerr << usage;
    return EXIT_FAILURE;
  } catch (const std::exception& error) {
    std::cerr << "krm410-sim: " << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
