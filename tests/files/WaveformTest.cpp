// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>
#include <fstream>

#include "Bench.h"
#include "WaveformSetReader.h"

namespace tracewell {

namespace fs = std::filesystem;

/// Saving and loading waveforms in a folder with a blank and other letters in its name.
class WaveformTest : public ProgramTest {
 protected:
  WaveformTest() {
    fs::create_directory(place);
    fs::current_path(place);
    main.Ch1Raw = makeRecord([](int i) { return i; });
  }
  ~WaveformTest() override { fs::current_path(oldFolder); }

  void save(const std::string& name) {
    windows.user["frmSave"] = [this, name] {
      dialogs.pickedFile = place / name;
      saveWindow.cmdOK.press();
    };
    main.cmdSave.press();
  }
  /// Opens the load window, chooses a file, and presses OK.
  void load(int chosen = -1) {
    windows.user["frmLoad"] = [this, chosen] {
      loadWindow.dirCSV.open(1);
      if (chosen >= 0) loadWindow.fileCSV.choose(chosen);
      loadWindow.cmdOK.press();
    };
    main.mnbLoad.choose();
  }

  frmSave& saveWindow = program.saveWindow;
  frmLoad& loadWindow = program.loadWindow;
  const fs::path place = folder.path() / pathOf("Messung ü 测");
  const fs::path oldFolder = fs::current_path();
};

TEST_F(WaveformTest, LineBreaksInNotesAndNamesMoveNoLine) {
#ifdef _WIN32
  const std::string base = "a b";
#else
  const std::string base = "a\nb";
#endif
  saveWindow.txtAuthor.type("Ann\r\nB.\rC");
  saveWindow.txtDes.type("first\nsecond");
  save(base + ".png");
  const WaveformDescription set = readDescription(place / (base + ".inf"));
  EXPECT_EQ(set.picturePath, pathText(place / (base + ".png")));
  EXPECT_EQ((Lines{set.author, set.description, set.channel1, set.channel2}),
            (Lines{"Ann B. C", "first second", "0", "N"}));
}

/// Its line 5 would be behind the limit.
TEST_F(WaveformTest, DescriptionThatCouldNotBeReadAgainIsNotWritten) {
  saveWindow.txtDes.text = std::string(fileLimit::description, 'x');
  save("long.png");
  ASSERT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_TRUE(dialogs.runTimeErrors[0].ends_with("long.inf")) << dialogs.runTimeErrors[0];
  EXPECT_FALSE(fs::exists(place / "long.csv"));
}

TEST_F(WaveformTest, FoldersAndDrivesAreWalkedAndOneThatHasGoneIsLeft) {
  save("one.jpg");
  load(0);
  fs::current_path(oldFolder);
  fs::remove_all(place);
  windows.user["frmLoad"] = [this] {
    EXPECT_EQ(loadWindow.lblPath.caption(), pathText(folder.path()));
    loadWindow.cmdOK.press();  // Nothing is chosen.
    EXPECT_TRUE(loadWindow.lblWhyNot.visible());
    loadWindow.dirCSV.open(0);
    EXPECT_FALSE(loadWindow.lblWhyNot.visible());
    EXPECT_EQ(loadWindow.lblPath.caption(), pathText(folder.path().parent_path()));
    loadWindow.driveCSV.choose(0);
    const std::string root = loadWindow.driveCSV.text();
    EXPECT_EQ(loadWindow.lblPath.caption(), root);
    EXPECT_TRUE(dialogs.runTimeErrors.empty());
    loadWindow.driveCSV.items = {root, "/no/such/drive"};
    loadWindow.driveCSV.choose(1);
    EXPECT_EQ(loadWindow.driveCSV.text(), root);
    loadWindow.cmdCancel.press();
  };
  main.cmdLoad.press();
  ASSERT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_NE(dialogs.runTimeErrors[0].find("/no/such/drive"), std::string::npos);
}

/// On Windows the kind of every file is asked for by itself, which Wine does slowly.
/// In processor time, which a busy machine and a sanitizer stretch little beside what a list that
/// is searched for each of its entries would take.
TEST_F(WaveformTest, TenThousandFilesAreListedInAnInstant) {
  for (int i = 0; i < 10000; ++i) std::ofstream(place / (std::to_string(i) + ".csv"));
  const std::clock_t start = std::clock();
  load();
  EXPECT_EQ(loadWindow.fileCSV.items().size(), 10000u);
  EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC);
}

}  // namespace tracewell
