// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <ctime>
#include <fstream>

#include "Bench.h"
#include "WaveformSetReader.h"
#include "WaveformSetWriter.h"

namespace tracewell {

namespace fs = std::filesystem;

/// Saving and loading waveforms, in a folder with a blank and other letters in its name.
class WaveformTest : public ProgramTest {
 protected:
  WaveformTest() {
    fs::create_directory(place);
    fs::current_path(place);
    main.Ch1Raw = makeRecord([](int i) { return i == 0 ? -256 : i % 256; });
    main.Ch2Raw = makeRecord([](int i) { return -(i % 256); });
    main.lblChan1.caption = "500.0 mV";
  }
  ~WaveformTest() override { fs::current_path(oldFolder); }

  void save(const char* name, int format = 8) {
    windows.user["frmSave"] = [this, name, format] {
      saveWindow.opFiletype(format).select();
      dialogs.pickedFile = *name == 0 ? fs::path() : place / name;
      saveWindow.cmdOK.press();
    };
    main.cmdSave.press();
  }
  /// Opens the load window, chooses the files one after the other, and presses OK.
  void load(const Lines& names) {
    windows.user["frmLoad"] = [this, names] {
      loadWindow.dirCSV.open(1);
      for (const std::string& name : names) choose(name);
      loadWindow.cmdOK.press();
    };
    main.mnbLoad.choose();
  }
  void choose(const std::string& name) {
    const auto& items = loadWindow.fileCSV.items();
    const auto found = std::ranges::find(items, name);
    ASSERT_NE(found, items.end()) << name;
    loadWindow.fileCSV.choose(static_cast<int>(found - items.begin()));
  }
  std::string file(const char* name) { return contentOf(place / name); }
  void write(const char* name, const std::string& bytes) { writeWholeFile(place / name, bytes); }

  frmSave& saveWindow = program.saveWindow;
  frmLoad& loadWindow = program.loadWindow;
  const fs::path place = folder.path() / pathOf("Messung ü 测");
  const fs::path oldFolder = fs::current_path();
};

TEST_F(WaveformTest, SetOfThreeFilesOfOneName) {
  main.cbCh2.toggle();
  main.slideCH1.value = 1.25;
  main.slideCH2.value = -2;
  main.slideTime.value = 0.5;
  windows.user["frmSave"] = [this] {
    saveWindow.txtAuthor.type("Ann");
    saveWindow.txtDes.type("a, b");
    saveWindow.opFiletype(3).select();
    dialogs.pickedFile = place / "one.Ico";
    saveWindow.cmdOK.press();
  };
  main.cmdSave.press();
  EXPECT_EQ(dialogs.fileDialogs.back().filter, "*.Ico|*.Ico");
  const std::string csv = file("one.csv");
  EXPECT_TRUE(csv.starts_with("Channel 1,Channel 2\r\n-256,0\r\n1,-1\r\n2,-2\r\n")) << csv;
  EXPECT_EQ(std::ranges::count(csv, '\n'), 501);
  const std::string path = pathText(place / "one");
  EXPECT_EQ(file("one.inf"), path + ".Ico\r\n" + path + ".csv\r\nAnn\r\na, b\r\n1.25\r\n-2\r\n" +
                                 "500.0 mV\r\n500.0 mV\r\n0.5\r\n");
  EXPECT_TRUE(file("one.Ico").starts_with("6:graph|CH1 500.0 mV"));
}

TEST_F(WaveformTest, OneChannelNoChannelAndNoRecord) {
  save("one.jpg");
  EXPECT_TRUE(file("one.csv").starts_with("Channel 1\r\n-256\r\n1\r\n"));
  EXPECT_NE(file("one.inf").find("\r\n0\r\nN\r\n500.0 mV\r\n"), std::string::npos);
  main.cbCh1.toggle();
  save("none.jpg");
  EXPECT_EQ(file("none.csv"), "");
  EXPECT_NE(file("none.inf").find("\r\nN\r\nN\r\nN\r\nN\r\n0\r\n"), std::string::npos);
  main.cbCh2.toggle();
  main.Ch2Raw.resize(1013);
  EXPECT_THROW(BuildCsvText(main), Error);
  save("cut.jpg");  // No data are saved where the record is cut.
  EXPECT_EQ(file("cut.csv"), "");
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  // A cancelled file dialog writes under the preset name.
  save("");
  EXPECT_TRUE(fs::exists(place / "031514.csv"));
  EXPECT_TRUE(fs::exists(place / "031514.inf"));
  EXPECT_TRUE(file("0315142905").starts_with("11:"));
}

TEST_F(WaveformTest, LineBreaksInNotesAndNamesMoveNoLine) {
#ifdef _WIN32
  const std::string base = "a b";
#else
  const std::string base = "a\nb";
#endif
  saveWindow.txtAuthor.type("Ann\r\nB.\rC");
  saveWindow.txtDes.type("first\nsecond");
  save((base + ".png").c_str(), 7);
  const WaveformDescription set = readDescription(place / (base + ".inf"));
  EXPECT_EQ(set.picturePath, pathText(place / (base + ".png")));
  EXPECT_EQ((Lines{set.author, set.description, set.channel1, set.channel2}),
            (Lines{"Ann B. C", "first second", "0", "N"}));
}

TEST_F(WaveformTest, NamesAndNotesThatCannotBeSaved) {
  save("one.jpg");
  save("one.csv");
  EXPECT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_TRUE(file("one.csv").starts_with("Channel 1\r\n"));
  dialogs.runTimeErrors.clear();
  // A description that could not be read again: its line 5 would be behind the limit.
  saveWindow.txtDes.text = std::string(fileLimit::description, 'x');
  save("long.png");
  EXPECT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_FALSE(fs::exists(place / "long.csv"));
  saveWindow.txtDes.text = "";
  dialogs.runTimeErrors.clear();
  // A name that is shorter than an extension loses a part of its folder.
  save("x");
  EXPECT_TRUE(fs::exists(folder.path() / pathOf("Messung ü.csv")));
  EXPECT_EQ(withoutExtension("测量ü1.jpg"), "测量ü1");
  EXPECT_EQ(withoutExtension("ab测量ü1"), "ab");
  EXPECT_THROW(withoutExtension("jpg"), Error);
}

TEST_F(WaveformTest, FoldersAndDrivesAreWalkedAndOneThatHasGoneIsLeft) {
  save("one.jpg");
  load({"one.csv"});
  fs::current_path(oldFolder);
  fs::remove_all(place);
  windows.user["frmLoad"] = [this] {
    EXPECT_EQ(loadWindow.lblPath.caption(), pathText(folder.path()));
    loadWindow.dirCSV.open(0);
    EXPECT_EQ(loadWindow.lblPath.caption(), pathText(folder.path().parent_path()));
    loadWindow.driveCSV.choose(0);
    const std::string root = loadWindow.driveCSV.text();
    EXPECT_EQ(loadWindow.lblPath.caption(), root);
    EXPECT_TRUE(dialogs.runTimeErrors.empty());
    loadWindow.driveCSV.items = {root, "/no/such/drive"};
    loadWindow.driveCSV.choose(1);
    EXPECT_EQ(loadWindow.driveCSV.text(), root);
    loadWindow.cmdOK.press();  // Nothing is chosen.
    EXPECT_TRUE(loadWindow.isVisible());
    loadWindow.cmdCancel.press();
  };
  main.cmdLoad.press();
  EXPECT_TRUE(main.tmDSO.enabled());
  ASSERT_EQ(dialogs.runTimeErrors.size(), 1u);
  EXPECT_NE(dialogs.runTimeErrors[0].find("/no/such/drive"), std::string::npos);
}

TEST_F(WaveformTest, DataFilesOfEveryKind) {
  std::string full = "Channel 1\r\n";
  for (int i = 0; i < 500; ++i) full += "1\r\n";
  // Each with its positions and the points of both channels, -1 for an error.
  const std::tuple<const char*, std::string, const char*, const char*, int, int> cases[] = {
      {"500 lines", full, "0.5", "N", 500, 0},
      {"501 lines", full + "1\r\n", "0.5", "N", -1, 0},
      {"only channel 2", full, "N", "1", 0, 500},
      {"both", "h\r\n1,2\r\n", "0", "0", 1, 1},
      {"both, one not saved", "h\r\n1,2\r\n", "N", "0", -1, 0},
      {"text in a value", "h\r\n1\r\nx\r\n", "0", "N", -1, 0},
      {"N for a number", "h\r\nN\r\n", "0", "N", -1, 0},
      {"absurd value", "h\r\n99999\r\n", "0", "N", -1, 0},
      {"absurd position", "h\r\n1\r\n", "1e308", "N", -1, 0},
      {"line feeds only", "h\n1\n2\n", "0", "N", 2, 0},
      {"cut in the last value", "h\r\n12\r\n1", "0", "N", 1, 0},
      {"empty line", "h\r\n\r\n", "0", "N", -1, 0},
      {"nothing", "", "0", "N", 0, 0},
  };
  for (const auto& [what, text, position1, position2, points1, points2] : cases) {
    try {
      const LoadedWaveforms loaded = readWaveforms(text, position1, position2);
      EXPECT_EQ(std::ssize(loaded.channel1), points1) << what;
      EXPECT_EQ(std::ssize(loaded.channel2), points2) << what;
    } catch (const Error&) {
      EXPECT_EQ(points1, -1) << what;
    }
  }
  // A line with one value keeps the places of the points behind it.
  const LoadedWaveforms mixed = readWaveforms("h\n5\n1,2\n7\n3,4\n", "0", "0");
  EXPECT_EQ(mixed.channel1, (std::vector<double>{0, 1, 1, 3}));
  EXPECT_EQ(mixed.channel2, (std::vector<double>{5, 2, 7, 4}));
  EXPECT_EQ(readWaveforms("h\r\n3\r\n", "0.33", "N").channel1[0], 19.5);
  EXPECT_EQ(readWaveforms("h\r\n3\r\n", "N", "0.33").channel2[0], 20);
}

TEST_F(WaveformTest, MessageBoxIsExported) {
  main.txtMsg.text = "1,2\r\n";
  main.cmdExportCSV.press();
  EXPECT_EQ(file("text.csv"), "1,2\r\n");
}

/// On Windows the kind of every file is asked for by itself, which Wine does slowly.
/// In processor time, which a busy machine and a sanitizer stretch little beside what a list that
/// is searched for each of its entries would take.
TEST_F(WaveformTest, TenThousandFilesAreListedInAnInstant) {
  for (int i = 0; i < 10000; ++i) std::ofstream(place / (std::to_string(i) + ".csv"));
  const std::clock_t start = std::clock();
  load({});
  EXPECT_EQ(loadWindow.fileCSV.items().size(), 10000u);
  EXPECT_LT(std::clock() - start, 2 * CLOCKS_PER_SEC);
}

}  // namespace tracewell
