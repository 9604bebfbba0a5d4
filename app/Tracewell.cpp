// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tracewell.h"

namespace tracewell {

Tracewell::Tracewell(Services& services)
    : main(services),
      panelMarks(main),
      errLog(main),
      errorLog(main, errLog),
      captions(main),
      exchange(main, errorLog),
      commandLine(main, exchange, errorLog),
      rs232(main),
      cursors(main),
      scaleKnobs(main, exchange, cursors),
      instrument(main, exchange, errorLog),
      connect(main, exchange, instrument, errorLog),
      acquisition(main, exchange, errorLog),
      burst(main, exchange),
      channelDialog(main, exchange, errorLog, acquisition, burst, instrument),
      channelScale(main),
      channels(main, exchange, errorLog, acquisition),
      timeControls(main, exchange, errorLog, acquisition),
      timeScale(main),
      trigger(main, exchange, acquisition, burst),
      acquire(main, exchange, errorLog, acquisition, captions),
      display(main, exchange, errorLog, acquisition, burst),
      channelMath(main, exchange),
      message(main),
      autoset(main, exchange, errorLog, acquisition, instrument, message),
      graphStyle(main),
      graphSize(main),
      measurementChoice(main, captions),
      quickMeasurementChoice(main),
      measurements(main, exchange, errorLog, acquisition, measurementChoice,
                   quickMeasurementChoice),
      printing(main, errorLog, acquisition),
      setupFiles(main),
      saveWindow(main),
      loadWindow(main),
      waveformButtons(main, acquisition, saveWindow, loadWindow),
      report(main),
      console(main, errorLog, acquisition, commandLine),
      about(main),
      languageMenu(main, captions),
      lifecycle(main, setupFiles, captions, exchange, errorLog, otherWindows()) {
  captions.setWindows(captionedWindows());
  connectLifecycle();
  connectLink();
  connectPanel();
  connectView();
  connectFiles();
  connectSupport();
}

std::vector<Window*> Tracewell::captionedWindows() {
  return {&acquire,    &channelDialog, &channelScale,
          &console,    &display,       &quickMeasurementChoice,
          &graphStyle, &loadWindow,    &message,
          &rs232,      &saveWindow,    &report,
          &timeScale,  &trigger,       &measurementChoice};
}

std::vector<Window*> Tracewell::otherWindows() {
  std::vector<Window*> windows = captionedWindows();
  windows.push_back(&errLog);
  windows.push_back(&about);
  return windows;
}

}  // namespace tracewell
