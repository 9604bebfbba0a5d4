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
      connect(main, exchange, instrument),
      acquisition(main, exchange, errorLog),
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

}  // namespace tracewell
