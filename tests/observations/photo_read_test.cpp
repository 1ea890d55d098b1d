#include "observations/photo_read.h"

#include <gmock/gmock.h>

#include <ctime>

#include "observations/link.h"
#include "observations/store_place.h"
#include "platform/failures.h"

namespace {

using observations::Photo_result;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Milliseconds since 1970 of a local time, by the standard library's own way back.
std::int64_t stamp(int year, int month, int day, int hour, int minute, int second) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = second;
  local.tm_isdst = -1;
  return std::int64_t{std::mktime(&local)} * 1000 + 999;
}

// Files with time stamps of the test's own.
struct Stamped_files : support::Fault_files {
  using Fault_files::Fault_files;
  std::map<std::string, std::int64_t> stamps;  // by the path's end
  std::int64_t time_stamp(const std::string& path) override {
    for (const auto& [end, at] : stamps)
      if (path.ends_with("\\" + end)) return at;
    return stamp(2008, 11, 15, 9, 30, 0);
  }
};

struct Photo_read : testing::Test, support::Store_place {
  Stamped_files stamped{disk};

  Photo_read() { prompts.answers = {platform::Answer::yes}; }
  Photo_result photo_read() {
    return observations::photo_read({settings, canvas, stamped, clock, prompts}, registry, photos,
                                    {13976712.5, 3568123.6});
  }
  static std::string point(const std::string& number, const std::string& name, const std::string& time) {
    return " 0 ,13976712.5,3568123.6,,,,,," + number + "," + name + ",○, 2 , 0 , 0 , 0 , 0 , 0 , 0 ,0,," + time +
           ",,, 0 ,";
  }
};

TEST_F(Photo_read, MakesOnePointAPhotoInTheOrderOfNames) {
  for (const char* name : {"b.JPG", "a.jpg", "c.png", "note.txt", "voice.wav"}) photo(name, "x");
  stamped.stamps = {{"a.jpg", stamp(2008, 11, 14, 16, 5, 9)}, {"b.JPG", stamp(2007, 1, 2, 3, 4, 5)}};
  put_lines({support::point_at("1.0", "2.0", "081115-007")});
  const Photo_result result = photo_read();
  EXPECT_TRUE(result.saved);
  EXPECT_EQ(result.added, 3);
  EXPECT_EQ(result.known, 0);
  EXPECT_TRUE(support::same_bytes(bytes(), support::lines_932({support::point_at("1.0", "2.0", "081115-007"),
                                                               point("081115-008", "a.jpg", "2008/11/14 16:05:09"),
                                                               point("081115-009", "b.JPG", "2007/01/02 03:04:05"),
                                                               point("081115-010", "c.png", "2008/11/15 09:30:00")})));
  EXPECT_EQ(registry.N, 4);
  EXPECT_EQ(disk.read_bytes(path("csv\\tani.csv")), bytes());
}

TEST_F(Photo_read, TakesTheMarkOfTheLanguage) {
  photo("a.jpg", "x");
  settings.language = "English";
  EXPECT_TRUE(photo_read().saved);
  EXPECT_THAT(bytes(), HasSubstr(",a.jpg,circle, 2 ,"));
}

TEST_F(Photo_read, AsksWithTheNumberOfPhotos) {
  photo("a.jpg", "x");
  photo("b.jpg", "x");
  prompts.answers = {platform::Answer::no};
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown,
              ElementsAre("写真 2 枚を1枚1地点として登録します。よろしいですか。\n"
                          "フォルダがプロジェクトの外にあるため、地図の記号を押しても写真は開きません。"));
  EXPECT_EQ(bytes(), "");
  EXPECT_EQ(registry.N, 0);
  prompts.use_language("English");
  photo_read();
  EXPECT_EQ(prompts.shown.back(),
            "Register 2 photos, one point each?\n"
            "The folder lies outside the project, so a press on a mark will not open its photo.");
}

TEST_F(Photo_read, LinksAPhotoOfTheProjectByItsFolders) {
  for (const char* inside : {"\\写真", "\\写真\\沢1", "\\chisou_men\\a"}) {
    photos = project + inside;
    disk.make_folder(photos);
    photo("a.jpg", "x");
    prompts.answers = {platform::Answer::yes};
    ASSERT_EQ(photo_read().added, 1);
    EXPECT_EQ(prompts.shown.back(), "写真 1 枚を1枚1地点として登録します。よろしいですか。");
    const std::string& gazou = registry.rows[registry.N].gazou;
    EXPECT_EQ(observations::linked_file(disk, project, gazou), photos + "\\a.jpg");
  }
  EXPECT_EQ(registry.rows[1].gazou, "写真\\a.jpg");
  EXPECT_EQ(registry.rows[2].gazou, "写真\\沢1\\a.jpg");
  EXPECT_EQ(registry.rows[3].gazou, "a\\a.jpg");
  EXPECT_FALSE(photo_read().saved);
  EXPECT_EQ(registry.N, 3);
}

TEST_F(Photo_read, KnowsAPhotoOfTheProjectByItsBareName) {
  photos = project + "\\photo";
  disk.make_folder(photos);
  photo("a.jpg", "x");
  put_lines({point("081115-001", "A.JPG", "2008/11/15 09:30:00")});
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown, ElementsAre("新しく登録する写真がありません。"));
}

TEST_F(Photo_read, TakesTheBareNameWhereARecordCanNotHoldTheFolder) {
  photos = project + "\\a,b";
  disk.make_folder(photos);
  photo("a.jpg", "x");
  ASSERT_TRUE(photo_read().saved);
  EXPECT_EQ(registry.rows[1].gazou, "a.jpg");
}

TEST_F(Photo_read, AddsNoPhotoTwice) {
  photo("a.jpg", "x");
  ASSERT_TRUE(photo_read().saved);
  const std::string before = bytes();
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown.back(), "新しく登録する写真がありません。");
  EXPECT_EQ(bytes(), before);
  photo("b.jpg", "x");
  prompts.answers = {platform::Answer::yes};
  const Photo_result result = photo_read();
  EXPECT_EQ(result.added, 1);
  EXPECT_EQ(result.known, 1);
  EXPECT_THAT(prompts.shown.back(), HasSubstr("登録済みの 1 枚は登録しません。"));
  EXPECT_EQ(registry.rows[2].gazou, "b.jpg");
}

TEST_F(Photo_read, KnowsAPhotoByNameAndTimeTogether) {
  photo("a.jpg", "x");
  ASSERT_TRUE(photo_read().saved);
  stamped.stamps = {{"a.jpg", stamp(2009, 1, 1, 0, 0, 0)}};
  prompts.answers = {platform::Answer::yes};
  EXPECT_EQ(photo_read().added, 1);
  EXPECT_EQ(registry.N, 2);
}

TEST_F(Photo_read, NumbersOverAllFilesAndRepeatsBehind999) {
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) photo(name, "x");
  put_lines({support::point_at("1.0", "2.0", "081115-998")}, "sawa.csv");
  ASSERT_TRUE(photo_read().saved);
  EXPECT_EQ(registry.rows[1].touroku_no, "081115-999");
  EXPECT_EQ(registry.rows[2].touroku_no, "081115-000");
  EXPECT_EQ(registry.rows[3].touroku_no, "081115-000");
}

TEST_F(Photo_read, RefusesSeveralFilesAndNone) {
  photo("a.jpg", "x");
  settings.registry_count = 2;
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown.back(), HasSubstr("複数選択されている場合この機能は使えません。"));
  settings.registry_count = 1;
  settings.registry_name.clear();
  EXPECT_FALSE(photo_read().saved);
  EXPECT_EQ(prompts.shown.back(), "面を選択して下さい。");
  EXPECT_EQ(stamped.calls("write_whole"), 0);
}

TEST_F(Photo_read, RefusesAFileThatIsNotReadWhole) {
  photo("a.jpg", "x");
  std::string odd = support::point_at("1.0", "2.0", "081115-001");
  odd.replace(odd.rfind(" 0 ,"), 4, " 200 ,");  // more vertices than a line holds
  put_lines({support::point_at("1.0", "2.0", "a"), odd});
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("全体を読み込めていないため")));
  put("0,1,2\r\n\x1a"
      "0,3,4\r\n");
  EXPECT_FALSE(photo_read().saved);
  EXPECT_EQ(prompts.shown.size(), 2u);
  EXPECT_EQ(stamped.calls("write_whole"), 0);
}

TEST_F(Photo_read, ReadsTheFileAnew) {
  photo("a.jpg", "x");
  put_lines({support::point_at("1.0", "2.0", "a")});
  read();
  put_lines({support::point_at("1.0", "2.0", "a"), support::point_at("3.0", "4.0", "b")});  // by another program
  ASSERT_TRUE(photo_read().saved);
  EXPECT_EQ(registry.N, 3);
  EXPECT_EQ(registry.rows[2].touroku_no, "b");
}

TEST_F(Photo_read, RefusesANameThatARecordCanNotHold) {
  for (const char* name : {"a,b.jpg", "\xF0\x9F\x98\x80.jpg", "DSC-9999.jpg"}) {
    photo(name, "x");
    EXPECT_FALSE(photo_read().saved) << name;
    EXPECT_THAT(prompts.shown.back(), "登録できない写真です: " + std::string(name));
    disk.remove(photos + "\\" + name);
  }
  EXPECT_EQ(stamped.calls("write_whole"), 0);
}

TEST_F(Photo_read, RefusesMoreThanTheTableHolds) {
  photo("a.jpg", "x");
  photo("b.jpg", "x");
  std::string lines;
  for (int i = 0; i < observations::record_limit - 1; ++i) lines += "0,1,2\r\n";
  put(lines);
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown, ElementsAre(HasSubstr("15000")));
  disk.remove(photos + "\\b.jpg");
  EXPECT_TRUE(photo_read().saved);
  EXPECT_EQ(registry.N, observations::record_limit);
}

TEST_F(Photo_read, LeavesTableAndFileAfterAFaultOfTheDisk) {
  photo("a.jpg", "x");
  put_lines({support::point_at("1.0", "2.0", "a")});
  const std::string before = bytes();
  stamped.failing_write = 1;
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown.back(), "保存できません: " + path());
  EXPECT_EQ(registry.N, 1);
  EXPECT_EQ(bytes(), before);
}

TEST_F(Photo_read, FindsNoPhotoInAMissingFolder) {
  photos += "\\none";
  EXPECT_FALSE(photo_read().saved);
  EXPECT_THAT(prompts.shown, ElementsAre("新しく登録する写真がありません。"));
}

}  // namespace
