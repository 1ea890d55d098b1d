#include "core/language.h"

#include <gmock/gmock.h>

#include <iterator>
#include <set>

#include "core/choice_lists.h"
#include "support/fault_files.h"
#include "support/settings_place.h"

namespace {

using core::Caption_set;
using support::Place;
using testing::ElementsAre;
using testing::ElementsAreArray;

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

// The captions of both lists, as a person must read them.
struct Short_row {
  const char* control;
  int index;
  const char* japanese;
  const char* english;
};
constexpr int no_index = core::no_index;

// clang-format off
constexpr Short_row short_captions[] = {
    {"Main_act", 7, "画像登録", "Arbitrariness MAP Addition"},
    {"Main_act", 8, "画像登録情報編集", "Topographical map latitude longitude change"},
    {"Main_act", 0, "表示画面範囲を保存します。", "Preserve the range of the display. "},
    {"Command5", no_index, "範囲を指定してＲｏｃｋｖｉｅｗ３Ｄモデル登録", "It registers 3D model specifying the range. "},
    {"Command19", no_index, "範囲を指定して拡大", "The range of specification is expanded. "},
    {"Command16", no_index, "拡大", "Expansion"},
    {"Command17", no_index, "縮小", "Reduction"},
    {"Command18", no_index, "初期の大きさに戻す", "Return it to an initial size"},
    {"Command25", no_index, "断面線を追加します。", "The section line is added"},
    {"area_word", no_index, "範囲", "Area"},
    {"Label32", no_index, "左上座標", "Left Upper Corner "},
    {"Label33", no_index, "右下座標", "Right Lower Corner "},
    {"Label12", 0, "経度", "Longitude"},
    {"Label12", 1, "経度", "Longitude"},
    {"Label12", 2, "緯度", "Latitude"},
    {"Label12", 3, "緯度", "Latitude"},
    {"Label31", no_index, "グリッド数", "Grid Number"},
    {"Check11", no_index, "地形を標高点で作成する。", "Make geographical features with the altitude point."},
    {"Label60", no_index, "登録番号", "RecordNo"},
    {"Label29", no_index, "走向傾斜計測番号", "TiltvaneDataNo"},
    {"Command9", no_index, "保存", "Save"},
    {"Command22", no_index, "閉じる", "Close"},
    {"Label19", 6, "走向", "Strike"},
    {"Label19", 7, "傾斜", "Dip"},
    {"menu_dc_read", no_index, "デジタルクリノメータデータ読み込み", "TiltvaneDataReading"},
    {"menu_file", no_index, "ファイル", "file"},
    {"menu_tool", no_index, "ツール", "tool"},
    {"menu_settei", no_index, "基本設定", "BasicSetting"},
    {"menu_end", no_index, "終了", "End"},
    {"Label1", 0, "地図名", "Map"},
    {"Label1", 1, "データフォルダ", "DataFolder"},
    {"Check5", no_index, "地点表示", "PointDisp"},
    {"Check2", no_index, "地点番号を表示", "PointNoDisp"},
    {"Check3", no_index, "グリッド表示", "GridDisp"},
    {"Check6", no_index, "範囲を透過", "AreaTransparency"},
    {"Command38", no_index, "ＰＤＡ", "PDA Area Cutting"},
};

struct Long_row {
  const char* control;
  int index;
  const char* english;
};

constexpr Long_row long_captions[] = {
    {"menu_chikeizu_tuika", no_index, "Topography CD Addition"},
    {"menu_ninni_tuika", no_index, "Arbitrariness MAP Addition"},
    {"menu_3D", no_index, "3D Setting"},
    {"menu_web_henkann", no_index, "Topograhy Download"},
    {"menu_PDAbunkatu", no_index, "PDA Topograhy Make"},
    {"menu_PDAkiridasi", no_index, "PDA Are Cutting"},
    {"menu_bunkatu", no_index, "Image Division"},
    {"menu_PDA", no_index, "PDA Data Read from SDCARD"},
    {"menu_gazou_save", no_index, "Image Save"},
    {"menu_3D_make", no_index, "3DModel Make"},
    {"menu_souzyo", no_index, "Stratums Setting"},
    {"mnu_sinki", no_index, "NewPosition"},
    {"mnu_henkou", no_index, "Change"},
    {"mnu_del", no_index, "Delete"},
    {"GPS_MNEA", no_index, "GPS (MNEA TYPE)"},
    {"mnu_Trailbook", no_index, "GPS (Trailbook TYPE)"},
    {"menu_keiro", no_index, "Show Root"},
    {"Label4", no_index, "MAP Select"},
    {"Check8", no_index, "RootShow"},
    {"Frame2", no_index, "Basic Setting"},
    {"Frame8", no_index, "Topography Folder Select"},
    {"Frame17", no_index, "Point Registration File Set"},
    {"Label30", no_index, "Point Registration File is in the [chisou_men] folder"},
    {"Command44", no_index, "New File Make"},
    {"Command45", no_index, "Delete"},
    {"Frame15", no_index, "Select"},
    {"Option6", no_index, "Tokyo Datum"},
    {"Option7", no_index, "WGS-84"},
    {"Command10", no_index, "Save"},
    {"Command11", no_index, "Cancel"},
    {"Command24", no_index, "Basic Frame Setting"},
    {"Label19", 2, "H(m)"},
    {"Label19", 3, "Type"},
    {"Label19", 4, "Stratum"},
    {"Label19", 5, "Plange"},
    {"Label19", 8, "Lineation"},
    {"Check9", no_index, "True North Data"},
    {"Command6", no_index, "Line Start"},
    {"Command31", no_index, "Line Stop"},
    {"Command8", no_index, "Color"},
    {"Frame1", no_index, "Rockview3D Data Make"},
    {"Rockview3D", no_index, "3D Model Setting"},
    {"Command47", no_index, "3D Model Make"},
    {"Command2", no_index, "Image Regist Only"},
    {"Command48", no_index, "Cancel"},
    {"Label35", no_index, "Please Area Select on mouse"},
    {"Label26", no_index, "Model Folder Select"},
    {"Label25", no_index, "Model Name"},
};
// clang-format on

TEST(Language_set, SetsEveryCaptionOfTheShortListInBothLanguages) {
  for (const char* language : {"Japanese", "English"}) {
    Place place;
    put_language(place, std::string(language) + "\r\n");
    const auto captions = core::Language_set(place.settings, place.files, place.prompts);
    for (const Short_row& row : short_captions)
      EXPECT_EQ(text_of(captions, row.control, row.index), *language == 'J' ? row.japanese : row.english);
  }
  EXPECT_EQ(core::captions_short().size(), std::size(short_captions));
}

TEST(Language_set, SetsEveryCaptionOfTheLongListInEnglishOnly) {
  Place place;
  const auto english = core::Language_set(place.settings, place.files, place.prompts);
  put_language(place, "Japanese\r\n");
  const auto japanese = core::Language_set(place.settings, place.files, place.prompts);
  for (const Long_row& row : long_captions) {
    EXPECT_EQ(text_of(english, row.control, row.index), row.english);
    EXPECT_EQ(text_of(japanese, row.control, row.index), "(not set)") << row.english;
  }
  EXPECT_EQ(core::captions_long().size(), std::size(long_captions));
}

TEST(Language_read, IsEnglishWhenTheFileCannotBeRead) {
  Place place;
  put_language(place, "Japanese\r\n");
  support::Fault_files refusing(place.files);
  refusing.unreadable = "Language.set";
  EXPECT_EQ(core::language_r(refusing, place.program.string()), "English");
}

// The word is compared as it stands: only "Japanese" is Japanese, and only the two words have messages.
TEST(Language_set, ComparesTheWordToTheLetter) {
  for (const char* word : {"japanese", "JAPANESE", "Ｊapanese", "english"}) {
    Place place;
    put_language(place, platform::encode_932(word) + "\r\n");
    const auto captions = core::Language_set(place.settings, place.files, place.prompts);
    EXPECT_EQ(text_of(captions, "menu_end"), "End") << word;
    place.prompts.message({"あ", "a"});
    EXPECT_TRUE(place.prompts.shown.empty()) << word;
  }
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

TEST(Menu_language, WritesTheWordAndSetsIt) {
  Place place;
  for (const char* language : {"Japanese", "English"}) {
    core::menu_language(place.settings, language, place.files, place.prompts);
    EXPECT_EQ(place.settings.language, language);
    EXPECT_EQ(support::bytes_of((place.program / "Language.set").string()), std::string(language) + "\r\n");
  }
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

std::vector<std::string> texts_of(core::Choices choices) {
  return {choices.begin(), choices.end()};
}

TEST(Choice_lists, HoldTheTargetKindsOfTheLanguage) {
  EXPECT_THAT(texts_of(core::target_kinds("Japanese")),
              ElementsAre("地層境界面", "地層面", "線構造", "断層", "標高点", "その他"));
  EXPECT_THAT(texts_of(core::target_kinds("English")),
              ElementsAre("Boundary", "Stratum", "Lineation", "Fault", "Altitude", "etc"));
  EXPECT_THAT(texts_of(core::target_kinds("Deutsch")), ElementsAreArray(texts_of(core::target_kinds("English"))));
}

TEST(Choice_lists, HoldTheMarksInTheirOrder) {
  EXPECT_THAT(texts_of(core::mark_shapes("Japanese")),
              ElementsAre("○", "●", "□", "■", "△", "▲", "▽", "▼", "◇", "◆", "範囲", "線", "文字"));
  EXPECT_THAT(texts_of(core::mark_shapes("English")),
              ElementsAre("circle", "filled circle", "square", "filled square", "triangle", "filled triangle",
                          "inverted triangle", "triangle inverted triangle", "rhombic", "filled rhombic", "Area",
                          "Line", "Word"));
}

TEST(Choice_lists, HoldSizesIntervalsAndPortsWithTheirDefaults) {
  EXPECT_THAT(texts_of(core::mark_sizes()), ElementsAre("1", "2", "3", "4", "5", "6", "7", "8", "9", "10"));
  EXPECT_STREQ(core::mark_size_default, "2");
  EXPECT_THAT(texts_of(core::intervals()), ElementsAre("0.5", "0.7", "1", "1.5", "2", "2.5", "3", "4", "5", "6"));
  EXPECT_STREQ(core::interval_default, "1.0");
  EXPECT_THAT(texts_of(core::com_ports()), ElementsAre("01", "02", "03", "04", "05", "06", "07", "08", "09", "10"));
}

}  // namespace
