// SPDX-License-Identifier: GPL-3.0-or-later
#include "Played.h"

namespace tracewell {

class ScriptTest : public testing::TestWithParam<const char*> {};

TEST_P(ScriptTest, ComesToWhatStandsBelowIt) {
  playFile(GetParam(), [](const std::string& script) { return Played().play(script); });
}

INSTANTIATE_TEST_SUITE_P(Files, ScriptTest,
                         testing::Values("link.txt", "panel.txt", "view.txt", "files.txt",
                                         "truth.txt", "log.txt", "disk.txt"));

}  // namespace tracewell
