// SPDX-License-Identifier: GPL-3.0-or-later
#include "PagePrinting.h"

#include "Doing.h"
#include "Printing.h"
#include "WrittenScales.h"

namespace tracewell {
namespace {

/// Chan1, Chan2, Load1 to Load3; Load4 is not printed.
constexpr int printedPlots = 5;
/// Of two messages, one a channel.
constexpr std::size_t firstChannelName = 10;

}  // namespace

void PagePrinting::cmdPrint_Click() {
  try {
    const Doing pause(main_, sayPaused(main_, main_.cmdPrint.caption));
    acquisition_.StopAcq();
    const bool isPrinted =
        printAndSay(main_, [this](Printer& printer) { return printer.printPage(page()); });
    if (const auto others = pageNotOfTraces(main_, printedPlots); isPrinted && others)
      main_.status.tellToo(StatusLine::happened, others);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdPrint_Click : ");
  }
}

void PagePrinting::mnbPrintSetup_Click() {
  main_.services().printer.setUp();
}

GraphPage PagePrinting::page() {
  GraphPage page;
  page.title = main_.caption() + "  " + main_.services().clock.dateAndTime();
  if (!main_.graphDSO.note().empty()) page.title += "  " + main_.graphDSO.note();
  std::string scales = "Volts/Div";
  for (const Channel& channel : main_.channels)
    if (channel.isDisplayed)
      scales +=
          " " + main_.state.Msg[firstChannelName + channel.index()] + " " + channel.scale.caption();
  page.captions = {scales, "SEC/Div " + main_.state.Msg[12] + " " + main_.lblTime.caption()};
  if (!main_.opOff.value()) page.captions.push_back(main_.graphDSO.axis("XAxis").caption());
  for (const std::string& line : linesNotOfTraces(main_, printedPlots))
    page.captions.push_back(line);
  for (int number = 1; number <= printedPlots; ++number) {
    const Plot& plot = main_.graphDSO.plot(number);
    if (plot.isShown()) page.traces.push_back({number, plot.name(), plot.x(), plot.y()});
  }
  return page;
}

}  // namespace tracewell
