// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <set>
#include <vector>

#include "Channel.h"
#include "Controls.h"
#include "Dials.h"
#include "KnownInstrument.h"
#include "ModuleState.h"
#include "ScopeGraph.h"
#include "SetupTable.h"
#include "StatusLine.h"
#include "Timer.h"
#include "WaveformRecord.h"

namespace tracewell {

/// The main window: its controls, in the order in which caption files name them, what is known of
/// the instrument, and the little that several subsystems need. What the controls do lives in the
/// subsystems; app/Connections.cpp joins the two.
class frmDSO : public Window {
 public:
  explicit frmDSO(Services& services);

  // Menu bar
  MenuEntry mnbFile{*this, "mnbFile", "File"};
  MenuEntry mnbLoadSetup{*this, "mnbLoadSetup", "Load Setup"};
  MenuEntry mnbSaveSetup{*this, "mnbSaveSetup", "Save Setup"};
  MenuEntry mnbLoad{*this, "mnbLoad", "Load Waveform"};
  MenuEntry mnbSaveWaveform{*this, "mnbSaveWaveform", "Save Waveform"};
  MenuEntry mnbLoadCSV{*this, "mnbLoadCSV", "Load CSV"};
  MenuEntry mnbPrint{*this, "mnbPrint", "Print"};
  MenuEntry mnbPrintSetup{*this, "mnbPrintSetup", "Printer Setup"};
  MenuEntry mnbClose{*this, "mnbClose", "Close"};
  MenuEntry mnbSettings{*this, "mnbSettings", "Settings"};
  MenuEntry mnbRS232{*this, "mnbRS232", "RS-232"};
  MenuEntry mnbCh1{*this, "mnbCh1", "Channel 1"};
  MenuEntry mnbCh2{*this, "mnbCh2", "Channel 2"};
  MenuEntry mnbTrig{*this, "mnbTrig", "Trigger"};
  MenuEntry mnbAcq{*this, "mnbAcq", "Acquire"};
  MenuEntry mnbDisplay{*this, "mnbDisplay", "Display"};
  MenuEntry mnbMeasure{*this, "mnbMeasure", "Measure"};
  MenuEntry mnbVoltage{*this, "mnbVoltage", "Voltage"};
  MenuEntry mnbFrequency{*this, "mnbFrequency", "Frequency"};
  MenuEntry mnbView{*this, "mnbView", "View"};
  MenuEntry mnbGraph{*this, "mnbGraph", "Graph"};
  MenuEntry mnbConf{*this, "mnbConf", "Status Report"};
  MenuEntry mnbDSOcmd{*this, "mnbDSOcmd", "Command List"};
  MenuEntry mnbErrLog{*this, "mnbErrLog", "Error Log"};
  MenuEntry mnbLanguage{*this, "mnbLanguage", "Language"};
  MenuEntry mnbLA1{*this, "mnbLA1", "English"};
  MenuEntry mnbLA2{*this, "mnbLA2", "Chinese"};
  MenuEntry mnbLA3{*this, "mnbLA3", "Franch"};
  MenuEntry mnbLA4{*this, "mnbLA4", "Russian"};
  MenuEntry mnbLA5{*this, "mnbLA5", "yuewry"};
  MenuEntry mnbHelp{*this, "mnbHelp", "Help"};
  MenuEntry mnbAbout{*this, "mnbAbout", "About"};

  // Connection
  Lamp spConnect{*this, "spConnect"};
  ValueLabel lblConnect{*this, "lblConnect", ""};
  Label lblTest{*this, "lblTest", "Waiting"};
  ValueLabel lblPort{*this, "lblPort", ""};
  Button cmdStart{*this, "cmdStart", "Connect"};
  Button cmdRS232{*this, "cmdRS232", "RS-232"};
  Button cmdRunStop{*this, "cmdRunStop", "Run/Stop"};
  Button cmdAutoset{*this, "cmdAutoset", "Autoset"};
  Switch cmdLock{*this, "cmdLock", "Lock"};

  ScopeGraph graphDSO{*this, "graphDSO"};
  Property<bool>& GraphEnlarged = graphDSO.enlarged;

  // Vertical
  Frame fmCh1{*this, "fmCh1", "Channel 1"};
  CheckBox cbCh1{*this, "cbCh1", "CH1"};
  Knob knobChan1{*this, "knobChan1", voltDetents()};
  ValueLabel lblChan1{*this, "lblChan1", "Null"};
  Slide slideCH1{*this, "slideCH1", "Channel One Position : 0.00 V", {-4, 4, 0.1}};
  Button cmdChannel1{*this, "cmdChannel1", "Channel One"};
  Button cmdCh1{*this, "cmdCh1", "Channel 1"};
  Frame fmCh2{*this, "fmCh2", "Channel 2"};
  CheckBox cbCh2{*this, "cbCh2", "CH2"};
  Knob knobChan2{*this, "knobChan2", voltDetents()};
  ValueLabel lblChan2{*this, "lblChan2", "Null"};
  Slide slideCH2{*this, "slideCH2", "Channel Two Position : 0.00 V", {-4, 4, 0.1}};
  Button cmdChannel2{*this, "cmdChannel2", "Channel Two"};
  Button cmdCh2{*this, "cmdCh2", "Channel 2"};

  // Horizontal and trigger
  Frame fmTime{*this, "fmTime", "Horizontal"};
  Knob knobTime{*this, "knobTime", timeDetents()};
  ValueLabel lblTime{*this, "lblTime", "Not Initialized"};
  Slide slideTime{*this, "slideTime", "Time Position : 0.00 Div", {-5, 5, 0.1}};
  Button cmdTime{*this, "cmdTime", "Time"};
  Frame fmTrig{*this, "fmTrig", "Trigger"};
  Slide slideTrig{*this, "slideTrig", "Trigger Level : 0.00 V", {-5, 5, 0.05}};
  Button cmdTrig{*this, "cmdTrig", "Trigger"};

  // Cursors, math and waveforms
  Frame fmCursor{*this, "fmCursor", "Cursors"};
  OptionButton opOff{*this, "opOff", "Off", "cursorMode"};
  OptionButton opTime{*this, "opTime", "Time", "cursorMode"};
  OptionButton opVoltage{*this, "opVoltage", "Voltage", "cursorMode"};
  ComboBox cbCurChan{*this, "cbCurChan", {"1", "2"}};
  Button cmdCursor{*this, "cmdCursor", "Cursor"};
  Label lblMath{*this, "lblMath", "Math :"};
  ComboBox cbMath{*this, "cbMath", {"1+2", "1-2", "2-1", "Off"}};
  Frame fmWaveform{*this, "fmWaveform", "Waveform"};
  Button cmdSave{*this, "cmdSave", "Save"};
  Button cmdLoad{*this, "cmdLoad", "Load"};
  Button cmdLoadCSV{*this, "cmdLoadCSV", "Load CSV"};
  Button cmdRemove{*this, "cmdRemove", "Remove"};
  Button cmdGraph{*this, "cmdGraph", "Graph"};
  Button cmdPrint{*this, "cmdPrint", "Print"};

  // Measurements, command line, instrument
  Frame fmMeasure{*this, "fmMeasure", "Measurements"};
  Button cmdVMeasure{*this, "cmdVMeasure", "Voltage"};
  Button cmdFMeasure{*this, "cmdFMeasure", "Frequency"};
  ControlArray<ValueLabel> lblMeasure{*this, "lblMeasure", 16};
  Label lblDSOCmd{*this, "lblDSOCmd", "Command"};
  TextBox txtTest{*this, "txtTest"};
  Button cmdTest{*this, "cmdTest", "Test"};
  Button cmdDSOcmd{*this, "cmdDSOcmd", "List"};
  TextBox txtMsg{*this, "txtMsg"};
  Frame fmInstrument{*this, "fmInstrument", "Instrument"};
  Button cmdAcq{*this, "cmdAcq", "Acquire"};
  Button cmdDisplay{*this, "cmdDisplay", "Display"};
  Button cmdExportCSV{*this, "cmdExportCSV", "Export CSV"};
  Button cmdClose{*this, "cmdClose", "Close"};

  ModuleState state;
  /// The last exchange succeeded, or failed otherwise than by a read time-out after one that did.
  /// Reading the instrument clears it first.
  bool LinkOK = false;
  /// A first connect has read the instrument.
  bool Initialised = false;
  /// x of each sample in graph units: -250 to 249.
  Samples XIndex{};
  /// The setup table.
  SetupTable gridMeasure;
  /// Whole paths, in the order in which they were noted. Kept through files/kept/KeptFiles.h.
  std::vector<std::filesystem::path> filesToKeep;
  /// Number of the message that stands on each of these captions; 0 while it is the caption file's.
  /// Kept through app/window/ConnectionIndicator.h.
  struct ShownMessages {
    /// With these the start button starts, and Run/Stop runs the instrument.
    static constexpr std::size_t start = 3;
    static constexpr std::size_t run = 5;
    std::size_t lblConnect = 0;
    std::size_t cmdStart = 0;
    std::size_t cmdRunStop = 0;
  } shownMessages;

  /// The scale in which the cursors' read-out was counted last, and its caption then; none if that
  /// failed. Kept by view/marks/Cursors.h.
  struct Readout {
    const ValueLabel* scale = nullptr;
    std::string caption;
  } readout;

  /// The replies that were shown in txtMsg last, by their numbers, and its text then. Kept by
  /// link/ShownReplies.h.
  struct RepliesInBox {
    std::string text;
    std::vector<int> numbers;
  } repliesInBox;

  /// What the instrument is busy with instead of records, if with anything. Kept by
  /// app/window/Doing.h.
  StatusLine::Sentence doing;
  /// When it was last over, on Clock's scale.
  std::int64_t doneAt = 0;
  /// What stands beside the values, marks and ages, is to be looked at anew.
  Event<> marksDue;
  /// Asked before the program ends, if it is there; false: the user wants it to go on.
  std::function<bool()> mayEnd;
  /// The record of a channel, 1 or 2, has come; the channel holds it.
  Event<int> recordKept;
  /// Kept apart from what the controls show: marks come of comparing the two.
  KnownInstrument known;
  std::array<Channel, 2> channels{{
      {1, cbCh1, knobChan1, lblChan1, slideCH1, mnbCh1, graphDSO.plot(1), ScaleKnob::Chan1},
      {2, cbCh2, knobChan2, lblChan2, slideCH2, mnbCh2, graphDSO.plot(2), ScaleKnob::Chan2},
  }};
  std::string& Ch1Raw = channels[0].record.bytes;
  std::string& Ch2Raw = channels[1].record.bytes;
  double& Ch1Pos = channels[0].position;
  double& Ch2Pos = channels[1].position;
  std::int16_t& Ch1PosCounts = channels[0].positionCounts;
  std::int16_t& Ch2PosCounts = channels[1].positionCounts;
  /// Number 1 or 2.
  Channel& channel(int number) { return channels.at(static_cast<std::size_t>(number - 1)); }
  const Channel& channel(int number) const {
    return channels.at(static_cast<std::size_t>(number - 1));
  }

  ValueLabel lblStatus{*this, "lblStatus", ""};
  StatusLine status{lblStatus, services().words, services().clock};
  /// How old the traces are.
  ValueLabel lblAge{*this, "lblAge", ""};
  /// Opens the error log.
  ValueButton cmdNewErrors{*this, "cmdNewErrors"};
  /// Written through files/kept/KeptFiles.h.
  ValueLabel lblNotice{*this, "lblNotice", ""};

  /// Waveform requests, and a bench diagnostic that nothing enables. Milliseconds.
  static constexpr int tickInterval = 1200;
  Timer tmDSO{*this, tickInterval};
  Timer tmTest{*this, tickInterval};
  /// What the panel says of itself is looked at anew.
  Timer tmStatus{*this, 1000};

  /// Those that have been moved or read; the captions of the others are the caption file's.
  std::set<Slide*> slidesWithValue;

 private:
  static std::vector<std::string> voltDetents();
  static std::vector<std::string> timeDetents();
};

}  // namespace tracewell
