# The program without a screen: one target, one folder per subsystem.
add_library(tracewell_logic STATIC
  app/ConnectionIndicator.cpp
  app/Connections.cpp
  app/Lifecycle.cpp
  app/Tracewell.cpp
  app/Waiting.cpp
  app/frmDSO.cpp
  files/SetupFiles.cpp
  files/SetupTable.cpp
  link/Acquisition.cpp
  link/CommandExchange.cpp
  link/CommandLine.cpp
  link/Connect.cpp
  link/InstrumentState.cpp
  link/PortNotice.cpp
  link/SettingsBurst.cpp
  link/WaveformRecord.cpp
  link/frmRS232.cpp
  panel/ChannelControls.cpp
  panel/ScaleKnobs.cpp
  panel/ScaleTables.cpp
  panel/SlideCaption.cpp
  panel/TimeControls.cpp
  panel/frmChDiv.cpp
  panel/frmChannel.cpp
  panel/frmTimeDiv.cpp
  panel/frmTrig.cpp
  support/Captions.cpp
  support/ErrorLog.cpp
  support/Messages.cpp
  support/frmErrLog.cpp
  view/Cursors.cpp
  view/GraphSetup.cpp
  view/GraphSize.cpp
  view/TriggerMarker.cpp
  view/frmGraph.cpp
)
target_include_directories(tracewell_logic PUBLIC app files link panel support view)
target_link_libraries(tracewell_logic PUBLIC tracewell_platform PRIVATE tracewell_warnings)
