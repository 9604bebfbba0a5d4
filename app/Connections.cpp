// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeptFiles.h"
#include "LineNotice.h"
#include "LinkSettings.h"
#include "PortNotice.h"
#include "TraceMarks.h"
#include "Tracewell.h"

/// Which routine answers which control of the main window. A dialog joins its own controls to its
/// own routines in its constructor.
namespace tracewell {
namespace {

/// How often the marks of an open window are looked at. Milliseconds.
constexpr int everySecond = 1000;

}  // namespace

void Tracewell::connectLifecycle() {
  main.formLoad = [this] { lifecycle.Form_Load(); };
  main.formClose = [this] { lifecycle.Form_Unload(); };
  main.cmdClose.click = [this] { lifecycle.cmdClose_Click(); };
  main.mnbClose.click = [this] { lifecycle.cmdClose_Click(); };
  main.tmDSO.timer = [this] { acquisition.tmDSO_Timer(); };
  main.tmStatus.timer = [this] { lookAtLine(); };
  main.marksDue = [this] { showMarks(); };
  main.known.changed = [this] { showMarks(); };
  main.services().standBy.meanwhile = [this] { showMarks(); };
  main.services().gate.beforeModal = [this] {
    connect.showEarly();
    main.tmStatus.setInterval(everySecond);
  };
  main.tmTest.timer = [this] { lifecycle.tmTest_Timer(); };
}

void Tracewell::showMarks() {
  panelMarks.show();
  bool isOpen = false;
  for (const Window* window : otherWindows()) {
    if (!window->isVisible()) continue;
    window->showMarks();
    isOpen = true;
  }
  main.tmStatus.setInterval(isOpen ? everySecond : changeInterval(main));
}

void Tracewell::lookAtLine() {
  showLineNotice(main);
  showMarks();
}

void Tracewell::connectLink() {
  main.services().port.lost = [this] { lookAtLine(); };
  main.services().port.dataReady = [this](const LineRecord& record) {
    acquisition.DataReady(record);
  };
  main.cmdStart.click = [this] { connect.cmdStart_Click(); };
  main.cmdRS232.click = [this] { connect.cmdRS232_Click(); };
  main.mnbRS232.click = [this] { rs232.mnbRS232_Click(); };
  main.cmdRunStop.click = [this] { acquisition.cmdRunStop_Click(); };
  main.txtTest.keyDown = [this](int code) { commandLine.txtTest_KeyDown(code); };
  main.cmdTest.click = [this] { commandLine.cmdTest_Click(); };
}

void Tracewell::connectPanel() {
  main.knobChan1.valueChanged = [this] { scaleKnobs.knobChan1_ValueChanged(); };
  main.knobChan2.valueChanged = [this] { scaleKnobs.knobChan2_ValueChanged(); };
  main.knobTime.valueChanged = [this] { scaleKnobs.knobTime_ValueChanged(); };
  for (Knob* knob : {&main.knobChan1, &main.knobChan2, &main.knobTime})
    knob->stays = [this, knob] { scaleKnobs.knob_Stays(*knob); };
  main.cbCh1.click = [this] { channels.cbCh1_Click(); };
  main.cbCh2.click = [this] { channels.cbCh2_Click(); };
  main.slideCH1.pointerValueChanged = [this] { channels.slideCH1_PointerValueChanged(); };
  main.slideCH2.pointerValueChanged = [this] { channels.slideCH2_PointerValueChanged(); };
  main.slideCH1.pointerValueCommitted = [this] { channels.slideCH1_PointerValueCommitted(); };
  main.slideCH2.pointerValueCommitted = [this] { channels.slideCH2_PointerValueCommitted(); };
  main.cmdCh1.click = [this] { channelDialog.cmdCh1_Click(); };
  main.mnbCh1.click = [this] { channelDialog.cmdCh1_Click(); };
  main.cmdCh2.click = [this] { channelDialog.cmdCh2_Click(); };
  main.mnbCh2.click = [this] { channelDialog.cmdCh2_Click(); };
  main.cmdChannel1.click = [this] { channelScale.cmdChannel1_Click(); };
  main.cmdChannel2.click = [this] { channelScale.cmdChannel2_Click(); };
  main.slideTime.pointerValueChanged = [this] { timeControls.slideTime_PointerValueChanged(); };
  main.slideTime.pointerValueCommitted = [this] { timeControls.slideTime_PointerValueCommitted(); };
  main.slideTrig.pointerValueChanged = [this] { timeControls.slideTrig_PointerValueChanged(); };
  main.slideTrig.mouseUp = [this] { timeControls.slideTrig_MouseUp(); };
  main.cmdTime.click = [this] { timeScale.cmdTime_Click(); };
  main.cmdTrig.click = [this] { trigger.cmdTrig_Click(); };
  main.mnbTrig.click = [this] { trigger.cmdTrig_Click(); };
  main.cmdAcq.click = [this] { acquire.cmdAcq_Click(); };
  main.mnbAcq.click = [this] { acquire.cmdAcq_Click(); };
  main.cmdDisplay.click = [this] { display.cmdDisplay_Click(); };
  main.mnbDisplay.click = [this] { display.cmdDisplay_Click(); };
  main.cbMath.click = [this] { channelMath.cbMath_Click(); };
  main.cmdAutoset.click = [this] { autoset.cmdAutoset_Click(); };
}

/// What is measured meanwhile would be of no setting.
std::function<void()> Tracewell::unlessAutoset(const CaptionedControl& control,
                                               std::function<void()> routine) const {
  return [this, &control, routine = std::move(routine)] {
    if (!autoset.isUnderWay(control.caption)) routine();
  };
}

void Tracewell::connectView() {
  main.opOff.click = [this] { cursors.opOff_Click(); };
  main.opTime.click = [this] { cursors.opTime_Click(); };
  main.opVoltage.click = [this] { cursors.opVoltage_Click(); };
  main.cbCurChan.click = [this] { cursors.cbCurChan_Click(); };
  main.cmdCursor.click = [this] { cursors.cmdCursor_Click(); };
  main.graphDSO.cursorMoved = [this] { cursors.graphDSO_CursorMoved(); };
  main.graphDSO.enlargeToggled = [this] { graphSize.ToggleGraphSize(); };
  main.cmdGraph.click = [this] { graphStyle.cmdGraph_Click(); };
  main.mnbGraph.click = [this] { graphStyle.cmdGraph_Click(); };
  main.cmdVMeasure.click =
      unlessAutoset(main.cmdVMeasure, [this] { measurements.cmdVMeasure_Click(); });
  main.mnbVoltage.click =
      unlessAutoset(main.mnbVoltage, [this] { measurements.mnbVoltage_Click(); });
  main.fmMeasure.copied = [this] { measurements.fmMeasure_Copied(); };
  main.cmdFMeasure.click =
      unlessAutoset(main.cmdFMeasure, [this] { measurements.cmdFMeasure_Click(); });
  main.cmdPrint.click = [this] { printing.cmdPrint_Click(); };
  main.mnbPrint.click = [this] { printing.cmdPrint_Click(); };
  main.mnbPrintSetup.click = [this] { printing.mnbPrintSetup_Click(); };
  main.mnbFrequency.click =
      unlessAutoset(main.mnbFrequency, [this] { measurements.mnbFrequency_Click(); });
}

void Tracewell::connectFiles() {
  setupFiles.tableRead = [this] { showDifferingLink(main); };
  main.mnbLoadSetup.click = [this] { setupFiles.mnbLoadSetup_Click(); };
  main.mnbSaveSetup.click = [this] { setupFiles.mnbSaveSetup_Click(); };
  main.cmdSave.click = [this] { waveformButtons.cmdSave_Click(); };
  main.mnbSaveWaveform.click = [this] { waveformButtons.cmdSave_Click(); };
  main.cmdLoad.click = [this] { waveformButtons.cmdLoad_Click(); };
  main.mnbLoad.click = [this] { waveformButtons.cmdLoad_Click(); };
  main.graphDSO.fileDropped = [this](const std::filesystem::path& file) {
    waveformButtons.graphDSO_FileDropped(file);
  };
  main.graphDSO.referenceRemoved = [this](int number) {
    waveformButtons.graphDSO_ReferenceRemoved(number);
  };
  main.graphDSO.copied = [this](Graph::Copied what) { waveformButtons.graphDSO_Copied(what); };
  main.cmdLoadCSV.click = [this] { waveformButtons.cmdLoadCSV_Click(); };
  main.mnbLoadCSV.click = [this] { waveformButtons.cmdLoadCSV_Click(); };
  main.cmdRemove.click = [this] { waveformButtons.cmdRemove_Click(); };
  main.cmdExportCSV.click = [this] { waveformButtons.cmdExportCSV_Click(); };
  main.mnbConf.click = [this] { report.mnbConf_Click(); };
}

/// The texts of the window in the panel's own words.
void Tracewell::sayAgain() {
  sayPortAgain(main);
  main.status.tellAgain();
  panelMarks.show();
  showFilesToKeep(main);
  errLog.showNewLines(errLog.newLogLines);
}

void Tracewell::connectSupport() {
  // What the user has had done before is not what the error is about.
  main.services().dispatcher.failed = [this] { main.status.withdraw(StatusLine::happened); };
  main.lblDSOCmd.doubleClicked = [this] { errLog.lblDSOCmd_DblClick(); };
  main.cmdNewErrors.click = [this] { errLog.lblDSOCmd_DblClick(); };
  main.mnbErrLog.click = [this] { errLog.lblDSOCmd_DblClick(); };
  main.cmdDSOcmd.click = [this] { console.cmdDSOcmd_Click(); };
  main.mnbDSOcmd.click = [this] { console.cmdDSOcmd_Click(); };
  main.mnbAbout.click = [this] { about.mnbAbout_Click(); };
  int language = 1;
  for (MenuEntry* entry : {&main.mnbLA1, &main.mnbLA2, &main.mnbLA3, &main.mnbLA4, &main.mnbLA5}) {
    entry->click = [this, number = language++] {
      languageMenu.mnbLA_Click(number);
      sayAgain();
    };
  }
}

}  // namespace tracewell
