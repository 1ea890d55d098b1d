#include "drawing/picture_files.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/bmp_pictures.h"
#include "support/fault_files.h"
#include "support/golden.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace {

using drawing::Image_save_boxes;
using platform::Picture;

// Red, green, blue over grey, white, black.
Picture three_by_two() {
  Picture picture = platform::make_picture(3, 2, 32);
  const std::uint32_t words[2][3] = {{0xFFFF0000, 0xFF00FF00, 0xFF0000FF}, {0xFF808080, 0xFFFFFFFF, 0xFF000000}};
  for (int y = 0; y < 2; ++y) std::memcpy(picture.row(y), words[y], sizeof words[y]);
  return picture;
}

Picture indexed(int width, int height, int depth, std::vector<platform::Colour> palette) {
  Picture picture = platform::make_picture(width, height, depth);
  picture.palette = std::move(palette);
  return picture;
}

TEST(Bmp_bytes, PadsRowsOfThreePixelsToTwelveBytes) {
  EXPECT_TRUE(support::same_as_golden(drawing::bmp_bytes(three_by_two(), 24), "maps/three_by_two_24.bmp"));
}

TEST(Bmp_bytes, KeepsThePaletteOfAnIndexedPicture) {
  Picture picture = indexed(5, 2, 8, {0x010203, 0xA0B0C0});
  picture.row(0)[4] = 1;
  picture.row(1)[0] = 1;
  EXPECT_TRUE(support::same_as_golden(drawing::bmp_bytes(picture, 8), "maps/five_by_two_8.bmp"));
}

TEST(Bmp_bytes, WritesEightPixelsAByteWithOneBit) {
  Picture picture = indexed(10, 2, 1, {0x000000, 0xFFFFFF});
  picture.row(0)[0] = 0b1000'0001;
  picture.row(1)[1] = 0b0100'0000;
  EXPECT_TRUE(support::same_as_golden(drawing::bmp_bytes(picture, 1), "maps/ten_by_two_1.bmp"));
}

TEST(Bmp_bytes, WritesMoreThanEightBitsAsTwentyFourWhateverIsAsked) {
  EXPECT_EQ(drawing::bmp_bytes(three_by_two(), 8), drawing::bmp_bytes(three_by_two(), 24));
}

TEST(Bmp_bytes, WidensAPictureToTheDepthAsked) {
  support::Bmp_pictures pictures;
  Picture picture = indexed(10, 2, 1, {0x102030, 0x405060});
  picture.row(0)[0] = 0b1000'0001;
  for (const int depth : {1, 8, 24}) {
    const Picture back = pictures.decode(drawing::bmp_bytes(picture, depth)).picture;
    EXPECT_EQ(back.depth, depth == 24 ? 32 : depth);
    for (int x = 0; x < 10; ++x) EXPECT_EQ(platform::pixel(back, x, 0), x == 0 || x == 7 ? 0x405060U : 0x102030U) << x;
  }
}

TEST(Bmp_bytes, IsNothingForAPictureWithoutAMeasure) {
  EXPECT_EQ(drawing::bmp_bytes({}, 24), "");
}

struct Picture_files : testing::Test {
  support::Temporary_folder folder;
  platform::Disk_files disk;
  support::Fault_files files{disk};
  support::Bmp_pictures pictures;
  support::Scripted_prompts prompts;

  std::string in(const std::string& name) const { return platform::join_path(folder.text(), name); }
  Image_save_boxes boxes(const std::string& name) const { return {name, folder.text()}; }
  bool save(const Image_save_boxes& boxes) {
    return drawing::Command29(files, pictures, prompts, three_by_two(), boxes);
  }
};

TEST_F(Picture_files, SaveBmpWritesTheFile) {
  EXPECT_TRUE(drawing::save_bmp(files, prompts, three_by_two(), in("a.bmp"), 24));
  EXPECT_TRUE(support::same_as_golden(files.read_bytes(in("a.bmp")), "maps/three_by_two_24.bmp"));
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Picture_files, SaveBmpStopsWithoutAMeasure) {
  EXPECT_TRUE(drawing::save_bmp(files, prompts, {}, in("a.bmp"), 24));
  EXPECT_EQ(files.length(in("a.bmp")), 0);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Picture_files, SaveBmpTellsTheFaultAndLeavesTheOldFile) {
  disk.write_whole(in("a.bmp"), "old");
  files.room = 10;
  for (const char* language : {"Japanese", "English"}) {
    prompts.use_language(language);
    EXPECT_FALSE(drawing::save_bmp(files, prompts, three_by_two(), in("a.bmp"), 24));
  }
  const std::string head = "エラー発生！\nエラー番号 75\n";
  EXPECT_EQ(prompts.shown, (std::vector<std::string>{head + "「" + in("a.bmp") + "」に書き込めません。",
                                                     head + in("a.bmp") + " can't be written."}));
  EXPECT_EQ(files.read_bytes(in("a.bmp")), "old");
}

TEST_F(Picture_files, ConvertFromBmpToTheOtherFormats) {
  disk.write_whole(in("a.bmp"), drawing::bmp_bytes(three_by_two(), 24));
  EXPECT_TRUE(drawing::bmp_to_jpg(files, pictures, in("a.bmp"), in("a.jpg")));
  EXPECT_EQ(files.read_bytes(in("a.jpg")), "jpeg 3x2 quality 75");
  EXPECT_TRUE(drawing::bmp_to_jpg(files, pictures, in("a.bmp"), in("b.jpg"), 30, -1));
  EXPECT_EQ(files.read_bytes(in("b.jpg")), "jpeg 3x2 quality 30");
  EXPECT_TRUE(drawing::bmp_to_png(files, pictures, in("a.bmp"), in("a.png")));
  EXPECT_TRUE(files.read_bytes(in("a.png")).starts_with("png 3x2"));
}

TEST_F(Picture_files, ConvertBackToBmp) {
  disk.write_whole(in("a.jpg"), drawing::bmp_bytes(three_by_two(), 24));  // the test's port reads no other format
  EXPECT_TRUE(drawing::jpg_to_bmp(files, pictures, in("a.jpg"), in("b.bmp")));
  EXPECT_TRUE(support::same_as_golden(files.read_bytes(in("b.bmp")), "maps/three_by_two_24.bmp"));
}

TEST_F(Picture_files, GiveFalseAndNoFileOnAFault) {
  disk.write_whole(in("broken.bmp"), "BM and nothing else");
  disk.write_whole(in("a.bmp"), drawing::bmp_bytes(three_by_two(), 24));
  EXPECT_FALSE(drawing::bmp_to_jpg(files, pictures, in("missing.bmp"), in("x")));
  EXPECT_FALSE(drawing::bmp_to_png(files, pictures, in("broken.bmp"), in("x")));
  EXPECT_FALSE(drawing::jpg_to_bmp(files, pictures, in("broken.bmp"), in("x")));
  pictures.can_encode = false;
  EXPECT_FALSE(drawing::bmp_to_jpg(files, pictures, in("a.bmp"), in("x")));
  pictures.can_encode = true;
  files.read_only = true;
  EXPECT_FALSE(drawing::bmp_to_jpg(files, pictures, in("a.bmp"), in("x")));
  files.read_only = false;
  files.unreadable = "a.bmp";
  EXPECT_FALSE(drawing::bmp_to_jpg(files, pictures, in("a.bmp"), in("x")));
  EXPECT_EQ(files.length(in("x")), 0);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Picture_files, Command29GivesTheFirstFileTheChosenName) {
  EXPECT_TRUE(save(boxes("地図")));
  EXPECT_TRUE(support::same_as_golden(files.read_bytes(in("地図.bmp")), "maps/three_by_two_24.bmp"));
  EXPECT_EQ(files.length(in("bmp.bmp")), 0);
  EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Picture_files, Command29KeepsAFileWhoseChosenNameIsTheFirstOne) {
  EXPECT_TRUE(save(boxes("BMP")));
  EXPECT_EQ(files.length(in("bmp.bmp")), 78);
}

TEST_F(Picture_files, Command29MakesJpegAndPngFromTheFirstFile) {
  Image_save_boxes jpeg = boxes("a");
  jpeg.Option1 = false;
  jpeg.Option2 = true;
  EXPECT_TRUE(save(jpeg));
  EXPECT_EQ(files.read_bytes(in("a.jpg")), "jpeg 3x2 quality 75");
  Image_save_boxes png = boxes("a");
  png.Option1 = false;
  png.Option3 = true;
  EXPECT_TRUE(save(png));
  EXPECT_GT(files.length(in("a.png")), 0);
  EXPECT_EQ(files.length(in("bmp.bmp")), 78);
}

TEST_F(Picture_files, Command29DoesNotDoubleAnEndingThatWasTyped) {
  EXPECT_TRUE(save(boxes(" map.BMP ")));
  EXPECT_EQ(files.length(in("map.bmp")), 78);
  EXPECT_TRUE(save(boxes("map.v2")));
  EXPECT_EQ(files.length(in("map.v2.bmp")), 78);
}

TEST_F(Picture_files, Command29RefusesANameThatIsNone) {
  for (const char* name : {"", "  ", "a\\b", "../a", "a:b", "a*", "what?", "\"a\"", "a|b", "<a>", "con", "LPT1.old",
                           "nul .txt", "end.", "tab\there", ".bmp/"}) {
    prompts.shown.clear();
    EXPECT_FALSE(save(boxes(name))) << name;
    EXPECT_EQ(prompts.shown.size(), 1U) << name;
  }
  EXPECT_TRUE(files.list(folder.text(), "*").empty());
  prompts.shown.clear();
  for (const char* language : {"Japanese", "English"}) {
    prompts.use_language(language);
    save(boxes(""));
  }
  EXPECT_EQ(prompts.shown,
            (std::vector<std::string>{"ファイル名に使えない名前です。", "This name can't be used as a file name."}));
}

// The picture would go to wherever the program was started from.
TEST_F(Picture_files, Command29WithoutAFolderSaysSoAndWritesNothing) {
  for (const char* folder_text : {"", "  "})
    for (const char* language : {"Japanese", "English"}) {
      prompts.shown.clear();
      prompts.use_language(language);
      Image_save_boxes nowhere = boxes("a");
      nowhere.Dir2 = folder_text;
      EXPECT_EQ(drawing::image_path(nowhere), "");
      EXPECT_FALSE(save(nowhere));
      EXPECT_EQ(prompts.shown,
                std::vector<std::string>{language == std::string("Japanese") ? "保存先のフォルダを選んでください。"
                                                                             : "Choose the folder to save to."});
    }
  EXPECT_EQ(files.calls("write_whole"), 0);
}

TEST_F(Picture_files, Command29StaysOpenWithOneMessageWhereItCantWrite) {
  files.read_only = true;
  EXPECT_FALSE(save(boxes("a")));
  EXPECT_EQ(prompts.shown.size(), 1U);
  files.read_only = false;
  files.failing_write = 2;  // the second: the chosen name
  EXPECT_FALSE(save(boxes("a")));
  EXPECT_EQ(prompts.shown.size(), 2U);
  EXPECT_EQ(files.length(in("a.bmp")), 0);
}

}  // namespace
