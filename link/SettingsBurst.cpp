// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsBurst.h"

#include "Waiting.h"

namespace tracewell {

void SettingsBurst::writeAndVerify(std::span<const std::string_view> stems, int row, int first) {
  constexpr int attempts = 3;
  main_.refresh();
  const ShortTimeOut shortTimeOut(main_);
  main_.txtMsg.text = "";
  for (int i = first; i < static_cast<int>(stems.size()); ++i) {
    const std::string stem(stems[static_cast<std::size_t>(i)]);
    const int column = SetupTable::firstValue + i;
    for (int attempt = 0; attempt < attempts && !isAccepted(stem, row, column); ++attempt) {
    }
  }
}

bool SettingsBurst::isAccepted(const std::string& stem, int row, int column) {
  const std::string& value = main_.gridMeasure.text(row, column);
  const std::string command = stem + " " + value;
  exchange_.SendDSOCmd(command);
  echoLine(main_, command);
  Delay(main_, settlingTime);
  return exchange_.SendDSOCmd(stem + "?") == value;
}

void echoLine(frmDSO& main, const std::string& line) {
  main.txtMsg.text = main.txtMsg.text() + line + "\r\n";
  main.txtMsg.refresh();
}

}  // namespace tracewell
