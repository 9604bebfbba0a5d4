// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopProgram.h"

#include "QtValues.h"
#ifdef TRACEWELL_RECORDER
#include "DesktopRecorder.h"
#endif

namespace tracewell {

DesktopProgram::DesktopProgram(const std::filesystem::path& programFolder)
    : ports(programFolder, clock, standBy),
      windows(programFolder),
      services{clock,   dialogs,  gate,    dispatcher, standBy, port,         ports,
               windows, pictures, printer, clipboard,  words,   programFolder} {
  windows.manualRefused = [this](const QString& file) {
    program.main.status.tell(StatusLine::failed, [file = fromQt(file)](const Words& said) {
      return said.say("No program here shows the manual. It is %1", {file});
    });
  };
#ifdef TRACEWELL_RECORDER
  auto made = std::make_unique<DesktopRecorder>(program.main);
  windows.mainMade = [&entry = *made](QWidget& form) { entry.addTo(form); };
  recorder = std::move(made);
#endif
}

/// However the event loop has ended, forms go before the windows that they show.
DesktopProgram::~DesktopProgram() {
  recorder.reset();
  windows.unloadAll();
}

bool DesktopProgram::start() {
  try {
    program.start();
    return true;
  } catch (const Error& error) {
    dialogs.showRunTimeError(error);
  } catch (const std::exception& error) {
    dialogs.showRunTimeError(Error(invalidProcedureCall, "Tracewell", error.what()));
  }
  return false;
}

}  // namespace tracewell
