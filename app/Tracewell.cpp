// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tracewell.h"

namespace tracewell {

Tracewell::Tracewell(Services& services)
    : main(services),
      errLog(main),
      errorLog(main, errLog),
      exchange(main, errorLog),
      commandLine(main, exchange, errorLog),
      rs232(main),
      cursors(main),
      scaleKnobs(main, exchange, cursors),
      instrument(main, exchange, errorLog),
      connect(main, exchange, instrument, errorLog),
      acquisition(main, exchange, errorLog),
      burst(main, exchange),
      channelDialog(main),
      channelScale(main),
      channels(main, exchange, errorLog, instrument, acquisition, burst, channelDialog,
               channelScale),
      timeControls(main, exchange, errorLog, acquisition),
      timeScale(main),
      trigger(main, exchange, acquisition, burst),
      graphStyle(main),
      graphSize(main),
      setupFiles(main),
      captions(main, captionedWindows()),
      lifecycle(main, setupFiles, captions, exchange, otherWindows()) {
  connectLifecycle();
  connectLink();
  connectPanel();
  connectView();
  connectFiles();
  connectSupport();
}

std::vector<Window*> Tracewell::otherWindows() {
  std::vector<Window*> windows = captionedWindows();
  windows.push_back(&errLog);
  return windows;
}

}  // namespace tracewell
