// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "Acquisition.h"
#include "Autoset.h"
#include "ChannelControls.h"
#include "ChannelMath.h"
#include "CommandLine.h"
#include "Connect.h"
#include "GraphSize.h"
#include "LanguageMenu.h"
#include "Lifecycle.h"
#include "Measurements.h"
#include "PagePrinting.h"
#include "PanelMarks.h"
#include "ScaleKnobs.h"
#include "TimeControls.h"
#include "WaveformButtons.h"
#include "frmAbout.h"
#include "frmAcq.h"
#include "frmChDiv.h"
#include "frmChannel.h"
#include "frmCmd.h"
#include "frmDisplay.h"
#include "frmGraph.h"
#include "frmRS232.h"
#include "frmSetup.h"
#include "frmTimeDiv.h"
#include "frmTrig.h"

namespace tracewell {

/// The whole program without a screen: every window and subsystem, put together.
class Tracewell {
 public:
  /// `services` are those that the windows use; they outlive this object.
  explicit Tracewell(Services& services);

  /// Shows the main window. Raises an error when the program cannot start.
  void start() { main.show(); }

  frmDSO main;
  PanelMarks panelMarks;

  frmErrLog errLog;
  ErrorLog errorLog;
  Captions captions;
  CommandExchange exchange;
  CommandLine commandLine;
  frmRS232 rs232;
  Cursors cursors;
  ScaleKnobs scaleKnobs;
  InstrumentState instrument;
  Connect connect;
  Acquisition acquisition;
  SettingsBurst burst;
  frmChannel channelDialog;
  frmChDiv channelScale;
  ChannelControls channels;
  TimeControls timeControls;
  frmTimeDiv timeScale;
  frmTrig trigger;
  frmAcq acquire;
  frmDisplay display;
  ChannelMath channelMath;
  frmMsg message;
  Autoset autoset;
  frmGraph graphStyle;
  GraphSize graphSize;
  frmVMeasure measurementChoice;
  frmFMeasure quickMeasurementChoice;
  Measurements measurements;
  PagePrinting printing;
  SetupFiles setupFiles;
  frmSave saveWindow;
  frmLoad loadWindow;
  WaveformButtons waveformButtons;
  frmSetup report;
  frmCmd console;
  frmAbout about;

  /// The windows that get captions after the main window, in this order.
  std::vector<Window*> captionedWindows();
  /// All windows but the main one.
  std::vector<Window*> otherWindows();

  LanguageMenu languageMenu;
  Lifecycle lifecycle;

 private:
  void connectLifecycle();
  void connectLink();
  void connectPanel();
  void connectView();
  void connectFiles();
  void connectSupport();
  void showMarks();
  void lookAtLine();
  std::function<void()> unlessAutoset(const CaptionedControl& control,
                                      std::function<void()> routine) const;
  void sayAgain();
};

}  // namespace tracewell
