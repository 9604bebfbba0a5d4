// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "BusyPointer.h"
#include "DesktopClipboard.h"
#include "DesktopClock.h"
#include "DesktopDialogs.h"
#include "DesktopPictures.h"
#include "DesktopPrinter.h"
#include "DesktopWindows.h"
#include "DesktopWords.h"
#include "LinePort.h"
#include "PortDirectory.h"
#include "Tracewell.h"
#include "UserInput.h"

namespace tracewell {

/// The program with all its services, on this desktop. Needs a QApplication.
struct DesktopProgram {
  explicit DesktopProgram(const std::filesystem::path& programFolder);

  ~DesktopProgram();

  /// Loads and shows the main window. If the program cannot start, says why and returns false.
  bool start();

  DesktopClock clock;
  Gate gate;
  StandBy standBy{clock, gate};
  DesktopDialogs dialogs{gate};
  EventDispatcher dispatcher{gate, dialogs};
  PortDirectory ports;
  LinePort port{ports, clock, gate, dispatcher, standBy};
  DesktopWindows windows;
  DesktopPictures pictures{windows};
  DesktopPrinter printer;
  DesktopClipboard clipboard;
  DesktopWords words;
  Services services;
  Tracewell program{services};
  UserInput input{gate, standBy};
  BusyPointer pointer{gate};
  /// Keeps every record; none where the program is built without it (TRACEWELL_RECORDER).
  std::unique_ptr<QObject> recorder;
};

}  // namespace tracewell
