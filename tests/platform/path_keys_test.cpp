#include "platform/path_keys.h"

#include <gtest/gtest.h>

using platform::folder_name_for;
using platform::lies_below;
using platform::path_key;

TEST(Path_keys, AreTheSameForTheSamePlace) {
  EXPECT_EQ(path_key("C:\\Genba\\Tani.CSV"), "c:\\genba\\tani.csv");
  EXPECT_EQ(path_key("C:/Genba//./x/../Tani.csv"), path_key("c:\\genba\\tani.csv"));
  EXPECT_EQ(path_key("/tmp/a/"), "\\tmp\\a");
  EXPECT_EQ(path_key("/../../a"), "\\a");
  EXPECT_EQ(path_key("..\\a"), "..\\a");
  EXPECT_EQ(path_key("地形\\ＡＢ"), "地形\\ａｂ");
  EXPECT_EQ(path_key(""), "");
  EXPECT_NE(path_key("tmp\\a"), path_key("\\tmp\\a"));
}

TEST(Path_keys, FindWhatLiesBelowAFolder) {
  EXPECT_TRUE(lies_below("C:\\Genba\\chisou_men\\a.csv", "c:/genba/"));
  EXPECT_TRUE(lies_below("/p/a", "/p"));
  EXPECT_FALSE(lies_below("/p", "/p"));
  EXPECT_FALSE(lies_below("/pp/a", "/p"));
  EXPECT_FALSE(lies_below("/p/../q/a", "/p"));
  EXPECT_FALSE(lies_below("/a", ""));
}

TEST(Path_keys, NameAFolderThatAPersonCanTell) {
  const std::string name = folder_name_for("C:\\Genba\\Tani");
  EXPECT_EQ(name.substr(0, 5), "tani-");
  EXPECT_EQ(name.size(), 21u);
  EXPECT_EQ(folder_name_for("c:/genba/tani/"), name);
  EXPECT_NE(folder_name_for("C:\\Genba2\\Tani"), name);
  EXPECT_EQ(folder_name_for("/home/v1.2:*").substr(0, 7), "v1_2__-");
  // 40 bytes hold 13 characters of three bytes.
  EXPECT_EQ(folder_name_for("/地形地形地形地形地形地形地形地形").substr(0, 40), "地形地形地形地形地形地形地-");
}
