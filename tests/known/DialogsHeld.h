// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "TraceMarks.h"
#include "TracesHeld.h"

namespace tracewell {

/// What dialogs and the cursors' read-out show, held against the instrument.
class DialogsHeld : public TracesHeld {
 protected:
  void lookAtDialog(const Window& window) {
    const TrueInstrument* is = truth();
    if (is == nullptr || is->isOfOwnPanel) return;
    fields_.clear();
    if (&window == &program.trigger) readTrigger(*is);
    if (&window == &program.channelDialog) readChannel(*is);
    if (&window == &program.channelScale)
      readPicker(program.channelScale.opVDiv, *is, 2e-3,
                 is->channels[program.channelScale.lblChannel(0).visible() ? 0 : 1].volts);
    if (&window == &program.timeScale)
      readPicker(program.timeScale.obTimeDiv, *is, 2e-9, is->seconds);
    const frmAcq& acquire = program.acquire;
    if (&window == &acquire)
      fields_ = {{&acquire.cbMode, double(acquire.cbMode.listIndex()), is->told("ACQ:MOD")},
                 {&acquire.cbAverage, double(acquire.cbAverage.listIndex()), is->told("ACQ:AVER")},
                 {&acquire.cbLength, double(acquire.cbLength.listIndex()), is->told("ACQ:LEN")}};
    const frmDisplay& display = program.display;
    if (&window == &display)
      for (const Slide* slide : {&display.slideDataBrightness, &display.slideGraticuleBrightness})
        fields_.push_back({slide, slide->value(),
                           is->told(slide == &display.slideDataBrightness ? "DISP:BRIG:DATA"
                                                                          : "DISP:BRIG:GRAT")});
    for (const auto& [control, shown, truth] : fields_) {
      const std::string name = "dialog: " + control->objectName();
      const bool holds = control->trust() == Trust::holds;
      expect(!holds || isNear(shown, truth), name, std::to_string(shown));
    }
    // What only time or the line has told is painted within a second.
    if (!std::ranges::all_of(fields_, isPainted)) clock.run(1000);
    for (const Field& field : fields_)
      expect(isPainted(field), "dialog: " + field.control->objectName() + " not painted");
  }

  void lookAtReadout() {
    const Axis& axis = main.graphDSO.axis("XAxis");
    const std::string& text = axis.caption();
    if (main.opOff.value() || axis.isPale() || !text.starts_with("P1 = ")) return;
    const bool isTime = main.opTime.value();
    const Sweep* sweep = isTime ? nullptr : traceOf(main.channels[channelOfReadout(main).index()]);
    for (Channel& channel : main.channels)
      if (isTime && traceOf(channel) != nullptr) sweep = traceOf(channel);
    if (sweep != nullptr && sweep->isOfOwnPanel) return;
    const std::size_t place = channelOfReadout(main).index();
    const double volts = sweep != nullptr ? sweep->volts(place) : is_->channels[place].volts;
    const double seconds = sweep != nullptr ? sweep->seconds : is_->seconds;
    const double ofTime = seconds < 1e-6 ? 1e-9 : seconds < 1e-3 ? 1e-6 : seconds < 1 ? 1e-3 : 1;
    for (const char* const which : {"1", "2"}) {
      const Cursor& cursor = main.graphDSO.cursor("cur" + std::string(which));
      const double told = std::atof(text.c_str() + text.find("P" + std::string(which)) + 5);
      const double truth =
          isTime ? cursor.xPosition() / 50 * seconds / ofTime : cursor.yPosition() / 50 * volts;
      expect(std::fabs(told - truth) <= 0.006, "read-out", text);
    }
  }

 private:
  struct Field {
    const Control* control;
    double shown;
    double truth;
  };
  static bool isPainted(const Field& field) {
    return field.control->trust() == Trust::holds || field.control->painted != Trust::holds;
  }

  void readTrigger(const TrueInstrument& is) {
    constexpr std::array headers = {"TRIG:SLOP", "TRIG:COUP", "TRIG:REJ", "TRIG:NREJ"};
    auto& boxes = program.trigger.cbTrig;
    fields_ = {{&boxes(0), double(boxes(0).listIndex()), is.source},
               {&boxes(1), double(boxes(1).listIndex()), is.mode}};
    for (std::size_t i = 0; i < headers.size(); ++i) {
      const ComboBox& box = boxes(static_cast<int>(i) + 2);
      fields_.push_back({&box, double(box.listIndex()), is.told(headers[i])});
    }
  }

  void readChannel(const TrueInstrument& is) {
    frmChannel& dialog = program.channelDialog;
    const bool isFirst = dialog.caption() == main.mnbCh1.caption();
    const auto& its = is.channels[isFirst ? 0 : 1];
    const std::string stem = isFirst ? "CHAN1:" : "CHAN2:";
    const auto isTicked = [&](int box) { return dialog.cbCh(box).isChecked() ? 1.0 : 0.0; };
    fields_ = {{&dialog.cbCh(0), isTicked(0), its.isDisplayed},
               {&dialog.cbCh(1), isTicked(1), is.told(stem + "INV")},
               {&dialog.cbCh(2), isTicked(2), is.told(stem + "BWL")}};
    for (const OptionButton& option : dialog.obCoupling)
      if (option.value())
        fields_.push_back({&dialog.fmCoupling, double(option.index()), is.told(stem + "COUP")});
    for (const OptionButton& option : dialog.obProbe)
      if (option.value())
        fields_.push_back({&dialog.fmProbe, std::pow(10, option.index()), its.probe});
  }

  template <class Options>
  void readPicker(Options& options, const TrueInstrument& is, double lowest, double truth) {
    for (const OptionButton& option : options)
      if (option.value()) fields_.push_back({&option, is.step(lowest, option.index()), truth});
  }

  std::vector<Field> fields_;
};

}  // namespace tracewell
