// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <sstream>

#include "Doubles.h"
#include "LinePort.h"
#include "Tracewell.h"

namespace tracewell {

/// A folder of its own under the system's temporary one, with the files that the program ships.
class ProgramFolderCopy {
 public:
  ProgramFolderCopy();
  ~ProgramFolderCopy();
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Time, the user and the event queue around a port of some kind.
template <class TimeKeeper>
struct SurroundingsBy {
  TimeKeeper clock;
  Gate gate;
  StandBy standBy{clock, gate};
  RecordingDialogs dialogs{gate};
  EventDispatcher dispatcher{gate, dialogs};
};

using Surroundings = SurroundingsBy<VirtualClock>;

struct OnAScript : Surroundings {
  ScriptedPort port{gate};
};

/// The port's real rules on the channels of an opener that goes by the virtual clock.
template <class Opener>
struct OnALine : Surroundings {
  Opener opener{clock};
  LinePort port{opener, clock, gate, dispatcher, standBy};
};

/// The whole program on doubles.
template <class Port>
struct BenchOf : Port {
  ProgramFolderCopy folder;
  ScriptedPort list{this->gate};
  ScriptedWindows windows;
  RecordingPictures pictures;
  RecordingPrinter printer;
  RecordingClipboard clipboard;
  NumberedWords words;
  Services services{this->clock, this->dialogs, this->gate,   this->dispatcher, this->standBy,
                    this->port,  list,          windows,      pictures,         printer,
                    clipboard,   words,         folder.path()};
  Tracewell program{services};
  frmDSO& main = program.main;

  /// What has been written since the last call.
  Lines takeWire() { return std::exchange(this->port.wire, {}); }
  std::string cell(int row, int column) { return main.gridMeasure.text(row, column); }
  Lines row(int number) {
    Lines values;
    for (int i = 0; i < main.gridMeasure.valueCount(number); ++i)
      values.push_back(cell(number, 2 + i));
    return values;
  }
  void setRow(int number, const Lines& values) {
    int column = 2;
    for (const std::string& value : values) main.gridMeasure.setText(number, column++, value);
  }
  /// The log without its dates.
  Lines logLines() {
    const std::size_t dateLength = this->clock.dateAndTime().size() + 2;
    Lines lines;
    std::istringstream log(program.errLog.txtErrLog.text());
    for (std::string line; std::getline(log, line, '\r'); log.get())
      lines.push_back(line.substr(dateLength));
    return lines;
  }
};
using Bench = BenchOf<OnAScript>;

/// A test of the started program.
class ProgramTest : public testing::Test, protected Bench {
 protected:
  ProgramTest() { program.start(); }
};

}  // namespace tracewell
