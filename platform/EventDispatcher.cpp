// SPDX-License-Identifier: GPL-3.0-or-later
#include "EventDispatcher.h"

namespace tracewell {

void EventDispatcher::dispatch(const std::function<void()>& handler) const {
  try {
    handler();
  } catch (const Error& error) {
    dialogs_.showRunTimeError(error);
  } catch (const ProgramEnded&) {
    // The window is closed already; nobody is left to tell.
  } catch (const std::exception& error) {
    dialogs_.showRunTimeError(Error(invalidProcedureCall, "Tracewell", error.what()));
  }
}

}  // namespace tracewell
