#include "instruments/stereo_net_file.h"

#include <gtest/gtest.h>

#include "instruments/data_place.h"

namespace {

using namespace instruments;
using Texts = std::vector<std::string>;

struct Stereo_net_file : testing::Test, support::Data_place {
  std::string target = folder.text() + "\\net.csv";
  int asked = 0;
  bool press(bool corrected) {
    return Command9(context(), list, {"-7.5", corrected}, [&] {
      ++asked;
      return target;
    });
  }
};

TEST_F(Stereo_net_file, IsWrittenAgainstTrueNorth) {
  show_three();
  EXPECT_TRUE(press(true));
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(target), "instruments/stereo_net_true_japanese.csv"));
  EXPECT_EQ(prompts.shown,
            (Texts{"偏角補正を行い真北表示でファイルが作成されます。", "3個のデータが書き込まれました。"}));
}

TEST_F(Stereo_net_file, IsWrittenAgainstMagneticNorthInEnglish) {
  speak("English");
  show_three();
  EXPECT_TRUE(press(false));
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(target), "instruments/stereo_net_magnetic_english.csv"));
  EXPECT_EQ(prompts.shown, (Texts{"File is made by the magnetic north display. ", "3data was written."}));
}

TEST_F(Stereo_net_file, IsWrittenTheOtherWayInEachLanguage) {
  show_three();
  press(false);
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(target), "instruments/stereo_net_magnetic_japanese.csv"));
  speak("English");
  press(true);
  EXPECT_TRUE(support::same_as_golden(disk.read_bytes(target), "instruments/stereo_net_true_english.csv"));
  EXPECT_EQ(prompts.shown[0], "偏角補正を行わず磁北表示でファイルが作成されます。");
  EXPECT_EQ(prompts.shown[2], "File is made by the true north display. ");
}

TEST_F(Stereo_net_file, StoresTheDeclination) {
  show_three();
  press(true);
  EXPECT_EQ(program_bytes("henkaku.dat"), "-7.5\r\n");
}

TEST_F(Stereo_net_file, NeedsRows) {
  EXPECT_FALSE(press(true));
  speak("English");
  EXPECT_FALSE(press(true));
  EXPECT_EQ(prompts.shown, (Texts{"データを選択して下さい。", "Please Select data. "}));
  EXPECT_EQ(asked, 0);
}

TEST_F(Stereo_net_file, WritesNothingWithoutATickedRow) {
  show_three();
  for (Measurement_row& row : list.rows) row.ticked = false;
  EXPECT_FALSE(press(true));
  speak("English");
  EXPECT_FALSE(press(true));
  EXPECT_EQ(prompts.shown[1], "選択されたデータがありません。");
  EXPECT_EQ(prompts.shown[3], "There is no selected data.");
  EXPECT_EQ(disk.length(target), 0);
}

TEST_F(Stereo_net_file, WritesNothingWithoutAPath) {
  show_three();
  target.clear();
  EXPECT_FALSE(press(true));
  EXPECT_EQ(prompts.shown.size(), 1u);
  EXPECT_EQ(disk.length(folder.text() + "\\henkaku.dat"), 0);
}

TEST_F(Stereo_net_file, TellsThatItCouldNotBeWritten) {
  show_three();
  files.failing_write = 2;  // the first is the declination's
  EXPECT_FALSE(press(true));
  EXPECT_EQ(prompts.shown.back(), "保存できません: " + target);
  EXPECT_EQ(disk.length(target), 0);
}

TEST_F(Stereo_net_file, IsWrittenAlsoWhereTheDeclinationCanNotBeStored) {
  show_three();
  files.failing_write = 1;
  EXPECT_TRUE(press(true));
  EXPECT_GT(disk.length(target), 0);
}

TEST(Stereo_net_line, RoundsAnglesToWholeDegrees) {
  EXPECT_EQ(stereo_net_line("7,P,N50.5E,49.5E,0,,,t,m", {"0", false}),
            "7,P,N50.5E, 49.5E,      ,      ,N,51,E,49.5,E,,,,, 0 ,007 m");
}

TEST(Stereo_net_line, CutsALongTextToItsLastSixCharacters) {
  EXPECT_EQ(stereo_net_line("1234,P,N50.25E,49E,0,,,t,m", {"0", false}),
            "1234,P,50.25E,   49E,      ,      ,N,50,E,49,E,,,,, 0 ,1234 m");
}

TEST(Stereo_net_line, ShowsALineationOfItsModeOnly) {
  EXPECT_EQ(stereo_net_line("1,P,N50E,49E,0,N30E,12,t,m", {"0", false}),
            "1,P,  N50E,   49E,      ,      ,N,50,E,49,E,,,,, 0 ,001 m");
}

TEST(Stereo_net_line, CutsTheLetterOfAPlunge) {
  EXPECT_EQ(stereo_net_line("1,L,N50E,49E,0,N30E,12E,t,m", {"0", false}),
            "1,L,  N50E,   49E,  N30E,    12,N,50,E,49,E,N,30,E,12, 0 ,001 m");
}

}  // namespace
