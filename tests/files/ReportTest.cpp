// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using ReportTest = ProgramTest;

TEST_F(ReportTest, ShippedTemplateHasAPlaceForEveryValue) {
  Lines values;
  for (int number = 0; number < main.gridMeasure.fileRows(); ++number)
    for (int i = 0; i < main.gridMeasure.valueCount(number); ++i) {
      values.push_back(std::to_string(number) + "." + std::to_string(i));
      main.gridMeasure.setText(number, SetupTable::firstValue + i, values.back());
    }
  main.mnbConf.choose();
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  const std::string& text = program.report.txtSetup.text();
  EXPECT_EQ(text.find("[]"), std::string::npos);
  std::size_t position = 0;
  for (const std::string& value : values) {
    position = text.find("[" + value + "]", position);
    ASSERT_NE(position, std::string::npos) << value;
  }
}

}  // namespace tracewell
