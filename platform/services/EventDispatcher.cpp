// SPDX-License-Identifier: GPL-3.0-or-later
#include "EventDispatcher.h"

namespace tracewell {

void EventDispatcher::dispatch(const std::function<void()>& handler) const {
  if (gate_.isHeld() || gate_.isClosed()) return;
  run(handler);
  if (const std::function<void()> end = gate_.takeEnd()) run(end);
}

void EventDispatcher::dispatchEnd(const std::function<void()>& handler) const {
  if (gate_.isHeld())
    gate_.keepEnd(handler);
  else
    dispatch(handler);
}

void EventDispatcher::run(const std::function<void()>& handler) const {
  try {
    handler();
  } catch (const Error& error) {
    show(error);
  } catch (const ProgramEnded&) {
    // Whoever waited is over; nobody is left to tell.
  } catch (const std::exception& error) {
    show(Error(invalidProcedureCall, "Tracewell", error.what()));
  }
}

void EventDispatcher::show(const Error& error) const {
  if (failed) failed();
  dialogs_.showRunTimeError(error);
}

}  // namespace tracewell
