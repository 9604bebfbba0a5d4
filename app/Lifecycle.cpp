// SPDX-License-Identifier: GPL-3.0-or-later
#include "Lifecycle.h"

#include <utility>

#include "ConnectionIndicator.h"
#include "Files.h"
#include "GraphSetup.h"
#include "KeptFiles.h"
#include "LinkSettings.h"
#include "Messages.h"
#include "Numbers.h"

namespace tracewell {

Lifecycle::Lifecycle(frmDSO& main, SetupFiles& setupFiles, Captions& captions,
                     CommandExchange& exchange, ErrorLog& errorLog, std::vector<Window*> windows)
    : main_(main),
      setupFiles_(setupFiles),
      captions_(captions),
      exchange_(exchange),
      errorLog_(errorLog),
      windows_(std::move(windows)) {}

void Lifecycle::Form_Load() {
  setUpCursors(main_.graphDSO);
  for (int i = 0; i < WaveformRecord::sampleCount; ++i)
    main_.XIndex[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i - 250);
  main_.channels[0].isDisplayed = true;
  main_.state.ChanCount = 1;
  setUpSecondAxis(main_.graphDSO);
  setupFiles_.ReadSetupFile(setupFiles_.defaultPath());
  captions_.LoadCaptions();
  LoadMessages(main_);
  applyLinkSettings(main_);
  showFilesToKeep(main_);
  showWaitingForConnect(main_);
  main_.tmStatus.enabled = true;
  main_.marksDue.raise();
}

void Lifecycle::Form_Unload() {
  Gate& gate = main_.services().gate;
  if (gate.isClosed() || (main_.mayEnd && !main_.mayEnd())) return;
  main_.tmDSO.enabled = false;
  exchange_.LoadSetup();
  gate.close();
  saveSetup();
  for (Window* window : windows_) window->unload();
  main_.unload();
}

void Lifecycle::saveSetup() {
  const std::filesystem::path path = setupFiles_.defaultPath();
  const Services& services = main_.services();
  try {
    const StatusLine::Sentence said = setupFiles_.WriteSetupFile(path);
    if (said) services.dialogs.showMessage(said(services.words));
  } catch (const Error& error) {
    services.dialogs.showMessage(
        services.words.say("The setup could not be saved to %1.", {pathText(path)}) + "\n" +
        error.description());
  }
}

void Lifecycle::cmdClose_Click() {
  const Answer answer = main_.services().dialogs.askYesNo(main_.state.Msg[0], main_.caption());
  if (answer == Answer::Yes) Form_Unload();
}

void Lifecycle::tmTest_Timer() {
  try {
    const std::int16_t code = TestChar;
    main_.lblTest.caption = std::to_string(code) + ":" + static_cast<char>(code);
    TestChar = addInt16(code, 1);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, error.source());
  }
}

}  // namespace tracewell
