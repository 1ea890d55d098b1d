#include "core/language.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "core/choice_lists.h"
#include "support/settings_place.h"

namespace {

using core::Caption_set;
using support::Place;

std::string text_of(const std::vector<Caption_set>& captions, std::string_view control, int index = core::no_index) {
  for (const Caption_set& caption : captions)
    if (caption.control == control && caption.index == index) return std::string(caption.text);
  return "(not set)";
}

void put_language(const Place& place, const std::string& bytes) {
  support::put(place.program / "Language.set", bytes);
}

TEST(Language_read, IsEnglishWithoutAFile) {
  Place place;
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "English");
  put_language(place, "");
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "English");
  put_language(place, "\r\n");
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "English");
}

TEST(Language_read, TakesOneFieldWhateverItSays) {
  Place place;
  put_language(place, "Japanese\r\n");
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "Japanese");
  put_language(place, "\"Japanese\",1\r\nEnglish\r\n");
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "Japanese");
  put_language(place, "Deutsch");
  EXPECT_EQ(core::language_r(place.files, place.program.string()), "Deutsch");
}

TEST(Language_write, WritesTheWord) {
  Place place;
  core::language_w(place.files, place.program.string(), "Japanese");
  EXPECT_TRUE(
      support::same_as_golden(support::bytes_of((place.program / "Language.set").string()), "core/Language.set"));
}

TEST(Language_set, SetsTheShortListOnlyInJapanese) {
  Place place;
  put_language(place, "Japanese\r\n");
  const auto captions = core::Language_set(place.settings, place.files, place.prompts);
  EXPECT_EQ(captions.size(), core::captions_short().size());
  EXPECT_EQ(text_of(captions, "Command19"), "範囲を指定して拡大");
  EXPECT_EQ(text_of(captions, "Label12", 3), "緯度");
  EXPECT_EQ(text_of(captions, "menu_souzyo"), "(not set)");
  EXPECT_EQ(place.settings.language, "Japanese");
  EXPECT_EQ(core::area_word(place.settings), "範囲");
}

TEST(Language_set, SetsBothListsInEnglish) {
  Place place;
  const auto captions = core::Language_set(place.settings, place.files, place.prompts);
  EXPECT_EQ(captions.size(), core::captions_short().size() + core::captions_long().size());
  EXPECT_EQ(text_of(captions, "Main_act", 0), "Preserve the range of the display. ");
  EXPECT_EQ(text_of(captions, "menu_web_henkann"), "Topograhy Download");
  EXPECT_EQ(text_of(captions, "Label19", 5), "Plange");
  EXPECT_EQ(core::area_word(place.settings), "Area");
}

TEST(Language_set, AnotherWordGivesEnglishCaptionsAndSilentMessages) {
  Place place;
  put_language(place, "Deutsch\r\n");
  const auto captions = core::Language_set(place.settings, place.files, place.prompts);
  EXPECT_EQ(text_of(captions, "menu_end"), "End");
  EXPECT_EQ(place.settings.language, "Deutsch");
  place.prompts.message({"あ", "a"});
  EXPECT_TRUE(place.prompts.shown.empty());
}

TEST(Menu_language, GoingBackToJapaneseLeavesTheLongListInEnglishUntilTheNextStart) {
  Place place;
  core::Language_set(place.settings, place.files, place.prompts);
  const auto captions = core::menu_language(place.settings, "Japanese", place.files, place.prompts);
  EXPECT_EQ(text_of(captions, "menu_end"), "終了");
  EXPECT_EQ(text_of(captions, "Command10"), "(not set)");
  EXPECT_EQ(core::caption_of(place.settings, "menu_end"), "終了");
  EXPECT_EQ(core::caption_of(place.settings, "Command10"), "Save");
  EXPECT_EQ(support::bytes_of((place.program / "Language.set").string()), "Japanese\r\n");
  core::Settings next_start;
  next_start.program_path = place.settings.program_path;
  core::Language_set(next_start, place.files, place.prompts);
  EXPECT_EQ(core::caption_of(next_start, "Command10"), "保存");
}

TEST(Menu_language, SaysWhenTheWordCannotBeKept) {
  Place place;
  support::Read_only_files files;
  core::menu_language(place.settings, "Japanese", files, place.prompts);
  EXPECT_THAT(place.prompts.shown,
              testing::ElementsAre("The language can't be saved: " + place.program.string() + "\\Language.set"));
  EXPECT_EQ(place.settings.language, "English");
}

TEST(Captions, NameEachControlOnceAndHaveBothTexts) {
  std::set<std::pair<std::string, int>> seen;
  for (const auto list : {core::captions_short(), core::captions_long()})
    for (const core::Caption& row : list) {
      EXPECT_TRUE(seen.emplace(row.control, row.index).second) << row.control;
      EXPECT_STRNE(row.japanese, "") << row.control;
      EXPECT_STRNE(row.english, "") << row.control;
    }
  EXPECT_EQ(core::captions_short().size(), 36u);
  EXPECT_EQ(core::captions_long().size(), 48u);
}

TEST(Caption_of, IsEmptyForAControlOfNeitherList) {
  Place place;
  EXPECT_EQ(core::caption_of(place.settings, "Command99"), "");
  EXPECT_EQ(core::caption_of(place.settings, "Label12", 7), "");
}

TEST(Choice_lists, FollowTheLanguage) {
  EXPECT_STREQ(core::target_kinds("Japanese")[3], "断層");
  EXPECT_STREQ(core::target_kinds("English")[5], "etc");
  EXPECT_EQ(core::target_kinds("Deutsch").size(), 6u);
  EXPECT_STREQ(core::mark_shapes("Japanese")[10], "範囲");
  EXPECT_STREQ(core::mark_shapes("English")[7], "triangle inverted triangle");
  EXPECT_EQ(core::mark_shapes("English").size(), core::mark_shapes("Japanese").size());
  EXPECT_STREQ(core::com_ports()[9], "10");
  EXPECT_STREQ(core::mark_sizes()[0], "1");
  EXPECT_EQ(core::intervals().size(), 10u);
}

}  // namespace
