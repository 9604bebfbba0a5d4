// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmDisplay.h"

#include "Inquiry.h"
#include "Numbers.h"
#include "SettingsQueries.h"
#include "ShownReplies.h"
#include "Waiting.h"
#include "WaitingNotice.h"

namespace tracewell {
namespace {

/// Places in the row, and in BrightQuery; the third one, the waveform style, is never sent.
enum DisplayValue : std::size_t { dataBrightness, graticuleBrightness, waveformStyle };
constexpr int brightnessCount = 2;

constexpr int column(std::size_t value) {
  return SetupTable::columnOf(static_cast<int>(value));
}

}  // namespace

frmDisplay::frmDisplay(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                       Acquisition& acquisition, SettingsBurst& burst)
    : SettingsDialog("frmDisplay", "Display Setup", main, acquisition),
      exchange_(exchange),
      errorLog_(errorLog),
      burst_(burst) {
  unanswered_.watch(slideDataBrightness);
  unanswered_.watch(slideGraticuleBrightness);
  formActivate = [this] { outcome = Outcome::cancelled; };
  slideDataBrightness.pointerValueChanged = [this] {
    lblDataBright.caption = numberText(slideDataBrightness.value());
  };
  slideGraticuleBrightness.pointerValueChanged = [this] {
    lblGraticuleBright.caption = numberText(slideGraticuleBrightness.value());
  };
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { cmdCancel_Click(); };
}

void frmDisplay::cmdDisplay_Click() {
  try {
    if (burst_.isSending(SetupTable::display, caption)) return;
    edit(
        Fetching::stops, [this] { readSettings(); }, [this] { sendBrightness(); });
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "cmdDisplay_Click : ");
  }
}

/// The style is the panel's own, so the instrument is not asked for it.
void frmDisplay::readSettings() {
  const WaitingNotice notice(main_);
  Inquiry inquiry(exchange_.inquiries(), caption, Inquiry::Of::questions, brightnessCount);
  inquiry.next();
  readBrightness(slideDataBrightness, dataBrightness);
  inquiry.next();
  readBrightness(slideGraticuleBrightness, graticuleBrightness);
  const bool isDot = main_.gridMeasure.text(SetupTable::display, column(waveformStyle)) == "1";
  (isDot ? obDot : obVector).value = true;
}

/// The instrument's number, or the stored one if it gave none.
void frmDisplay::readBrightness(Slide& slide, std::size_t setting) {
  const std::string reply = exchange_.SendDSOCmd(std::string(BrightQuery[setting]) + "?");
  slide.value = toDouble(
      isNumeric(reply) ? reply : main_.gridMeasure.text(SetupTable::display, column(setting)));
  const bool isShown =
      slide.value() >= slide.range().minimum && slide.value() <= slide.range().maximum;
  unanswered_.note(slide, isNumeric(reply) && isShown);
}

/// One attempt each, unlike the channel and trigger settings: the panel reads what the instrument
/// made of it and leaves it.
void frmDisplay::sendBrightness() {
  main_.refresh();
  const SettingsBurst::Sending sending(burst_, SetupTable::display);
  const SetupTable chosen = main_.gridMeasure;
  const ShortTimeOut shortTimeOut(main_.state, exchange_);
  main_.txtMsg.text = "";
  Inquiry inquiry(exchange_.inquiries(), caption, Inquiry::Of::settings, brightnessCount);
  for (std::size_t setting = 0; setting < brightnessCount; ++setting) {
    inquiry.next();
    const std::string stem(BrightQuery[setting]);
    const std::string& value = chosen.text(SetupTable::display, column(setting));
    const std::string command = std::string(stem).append(" ").append(value);
    exchange_.SendDSOCmd(command);
    Delay(main_, SettingsBurst::settlingTime);
    echoLine(main_, command);
    inquiry.note(exchange_.SendDSOCmd(stem + "?") == value);
  }
}

void frmDisplay::cmdOK_Click() {
  SetupTable& table = main_.gridMeasure;
  table.setText(SetupTable::display, column(dataBrightness),
                numberText(slideDataBrightness.value()));
  table.setText(SetupTable::display, column(graticuleBrightness),
                numberText(slideGraticuleBrightness.value()));
  table.setText(SetupTable::display, column(waveformStyle), obDot.value() ? "1" : "0");
  outcome = Outcome::accepted;
  hide();
}

void frmDisplay::cmdCancel_Click() {
  hide();
  main_.refresh();
}

}  // namespace tracewell
