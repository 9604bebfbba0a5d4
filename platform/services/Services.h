// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "Clipboard.h"
#include "Clock.h"
#include "Dialogs.h"
#include "EventDispatcher.h"
#include "Gate.h"
#include "Pictures.h"
#include "Printer.h"
#include "SerialPort.h"
#include "StandBy.h"
#include "WindowHost.h"
#include "Words.h"

namespace tracewell {

/// Everything that the program asks of the outside. The creator owns the parts, and they outlive
/// the program.
struct Services {
  Clock& clock;
  Dialogs& dialogs;
  Gate& gate;
  EventDispatcher& dispatcher;
  StandBy& standBy;
  SerialPort& port;
  PortList& ports;
  WindowHost& windows;
  Pictures& pictures;
  Printer& printer;
  Clipboard& clipboard;
  Words& words;
  /// Where the setup, the language files and the error log are. Writable.
  std::filesystem::path programFolder;
};

}  // namespace tracewell
