#include "observations/point_file.h"

#include <gmock/gmock.h>

#include "observations/observation_place.h"
#include "support/places.h"

namespace {

using observations::Name_fault;
using observations::name_fault;
using observations::Point_file;
using testing::ElementsAre;

struct Point_file_test : testing::Test, support::Observation_place {
  std::string dat() const { return project + "\\chisou_men\\p.dat"; }
  bool read_bytes(const std::string& content, Point_file& point) {
    disk.write_whole(dat(), content);
    return observations::point_r(files, dat(), point);
  }
  static std::vector<std::string> names(const Point_file& point) {
    std::vector<std::string> names;
    for (const auto& picture : point.pictures) names.push_back(picture.name);
    return names;
  }
};

TEST_F(Point_file_test, WritesTheFileToTheByte) {
  const Point_file point{"081115-001", 13976712.5, 3568123.6, {{"RIMG0001.bmp"}, {"voice.wav"}}};
  EXPECT_TRUE(support::same_as_golden(observations::point_bytes(point), "observations/point.dat"));
  const Point_file bare{"露頭Ａ", -120.25, 0, {}};
  EXPECT_TRUE(support::same_as_golden(observations::point_bytes(bare), "observations/point_empty.dat"));
  EXPECT_TRUE(support::same_as_golden(observations::point_text_bytes("露頭Ａ"), "observations/point.txt"));
}

TEST_F(Point_file_test, PrintsOneToFiveDecimals) {
  const auto first = [](double x, double y) {
    const std::string bytes = observations::point_bytes({"a", x, y, {}});
    return bytes.substr(0, bytes.find('\r'));
  };
  EXPECT_EQ(first(1, 2.123456), "a,1.0,2.12346, 0 ");
  EXPECT_EQ(first(-0.000001, 1e9), "a,0.0,1000000000.0, 0 ");
}

TEST_F(Point_file_test, ReadsBackWhatItWrote) {
  const std::string golden = support::bytes_of(support::golden_file("observations/point.dat"));
  Point_file point;
  ASSERT_TRUE(read_bytes(golden, point));
  EXPECT_EQ(point.name, "081115-001");
  EXPECT_EQ(point.X, 13976712.5);
  EXPECT_EQ(point.Y, 3568123.6);
  EXPECT_THAT(names(point), ElementsAre("RIMG0001.bmp", "voice.wav"));
  EXPECT_TRUE(support::same_bytes(observations::point_bytes(point), golden));
}

TEST_F(Point_file_test, GoesByTheLinesAndNotByTheNumberOfLineOne) {
  Point_file point;
  ASSERT_TRUE(read_bytes("a,1,2,9\r\n1,x.bmp\r\n\r\n7\r\n 9 , ,\r\nzz, y y.bmp ,more,\r\n", point));
  EXPECT_THAT(names(point), ElementsAre("x.bmp", "y y.bmp"));
  ASSERT_TRUE(read_bytes("\r\n", point));
  EXPECT_EQ(point.name, "");
  EXPECT_EQ(point.X, 0);
}

TEST_F(Point_file_test, KeepsBytesWithoutACharacter) {
  // EB 9F is a two-byte code without a character; each of the bytes comes back.
  const std::string bytes = "a,1.0,2.0, 2 \r\n 1 ,b\xEB\x9F.bmp,\r\n 2 ,c.bmp,\r\n";
  Point_file point;
  ASSERT_TRUE(read_bytes(bytes, point));
  EXPECT_TRUE(support::same_bytes(observations::point_bytes(point), bytes));
}

TEST_F(Point_file_test, LeavesThePointWhereThereIsNoFile) {
  Point_file point{"kept", 1, 2, {{"a.bmp"}}};
  EXPECT_FALSE(observations::point_r(files, dat(), point));
  EXPECT_FALSE(read_bytes("", point));
  EXPECT_EQ(point.name, "kept");
  EXPECT_THAT(names(point), ElementsAre("a.bmp"));
}

TEST_F(Point_file_test, LiesInTheImageFolderOfTheProject) {
  EXPECT_EQ(observations::point_path("C:\\tani", "露頭1", ".dat"), "C:\\tani\\image\\露頭1\\露頭1.dat");
  EXPECT_EQ(observations::picture_path("C:\\tani", "露頭1", "a.bmp"), "C:\\tani\\image\\露頭1\\a.bmp");
  EXPECT_EQ(observations::point_path("", "a", ".dat"), "");
  for (const char* away : {"..\\a.bmp", "..", "a/b.bmp", "D:a.bmp", "nul.bmp", ""})
    EXPECT_EQ(observations::picture_path("C:\\tani", "a", away), "") << away;
}

TEST(Name_fault_test, NamesWhatCanBeNoPointsName) {
  const std::pair<const char*, Name_fault> rows[] = {
      {"", Name_fault::empty},
      {"   ", Name_fault::empty},
      {"露頭 1", Name_fault::none},
      {"081115-001", Name_fault::none},
      {"a.b", Name_fault::none},
      {"..", Name_fault::no_file_name},
      {"..\\a", Name_fault::no_file_name},
      {"a/b", Name_fault::no_file_name},
      {"C:", Name_fault::no_file_name},
      {"C:a", Name_fault::no_file_name},
      {"con", Name_fault::no_file_name},
      {"LPT1", Name_fault::no_file_name},
      {"a.", Name_fault::no_file_name},
      {"a*", Name_fault::no_file_name},
      {"a\"b", Name_fault::no_file_name},
      {"a\nb", Name_fault::no_file_name},
      {"a,b", Name_fault::comma},
      {"\xF0\x9F\x98\x80", Name_fault::no_code},  // a smiling face
  };
  for (const auto& [name, fault] : rows) EXPECT_EQ(name_fault(name), fault) << name;
  EXPECT_EQ(name_fault(std::string(201, 'a')), Name_fault::no_file_name);
  EXPECT_EQ(name_fault(std::string_view("a\0b", 3)), Name_fault::no_file_name);
}

TEST(Stored_name, EndsInBmpForAPicture) {
  EXPECT_EQ(observations::stored_name("RIMG0001.JPG"), "RIMG0001.bmp");
  EXPECT_EQ(observations::stored_name("a.b.png"), "a.b.bmp");
  EXPECT_EQ(observations::stored_name("A.BMP"), "A.BMP");
  EXPECT_EQ(observations::stored_name("Voice.WAV"), "Voice.WAV");
}

TEST(Picture_names, GoByTheirEndingInAnyCase) {
  for (const char* name : {"a.bmp", "a.JPG", "a.jpeg", "a.jpe", "a.b.Png"})
    EXPECT_TRUE(observations::is_picture_name(name)) << name;
  for (const char* name : {"a.gif", "bmp", "a.wav", "a.bmp.txt", ""})
    EXPECT_FALSE(observations::is_picture_name(name)) << name;
  EXPECT_TRUE(observations::is_sound_name("a.Wav"));
  EXPECT_FALSE(observations::is_sound_name("wav"));
}

}  // namespace
