#include "core/language.h"

#include "core/save_messages.h"
#include "platform/failures.h"
#include "platform/text_files.h"

namespace core {

using platform::Files;
using platform::Prompts;

namespace {

// control, index, Japanese, English. Blanks at the ends of texts are theirs.
constexpr Caption short_list[] = {
    {"Main_act", 7, "画像登録", "Arbitrariness MAP Addition"},
    {"Main_act", 8, "画像登録情報編集", "Topographical map latitude longitude change"},
    {"Main_act", 0, "表示画面範囲を保存します。", "Preserve the range of the display. "},
    {"Command5", no_index, "範囲を指定してＲｏｃｋｖｉｅｗ３Ｄモデル登録",
     "It registers 3D model specifying the range. "},
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

// control, index, Japanese of the design, English.
constexpr Caption long_list[] = {
    {"menu_chikeizu_tuika", no_index, "数値地図CD追加", "Topography CD Addition"},
    {"menu_ninni_tuika", no_index, "任意地形図追加", "Arbitrariness MAP Addition"},
    {"menu_3D", no_index, "3D設定", "3D Setting"},
    {"menu_web_henkann", no_index, "Web地形図の取り込み", "Topograhy Download"},
    {"menu_PDAbunkatu", no_index, "PDA用地形図作成", "PDA Topograhy Make"},
    {"menu_PDAkiridasi", no_index, "PDA用範囲切出し", "PDA Are Cutting"},
    {"menu_bunkatu", no_index, "画像分割", "Image Division"},
    {"menu_PDA", no_index, "PDAデータ読み込み(SDカード)", "PDA Data Read from SDCARD"},
    {"menu_gazou_save", no_index, "画像保存", "Image Save"},
    {"menu_3D_make", no_index, "3Dモデル作成", "3DModel Make"},
    {"menu_souzyo", no_index, "地層面登録設定", "Stratums Setting"},
    {"mnu_sinki", no_index, "新規地点", "NewPosition"},
    {"mnu_henkou", no_index, "変更", "Change"},
    {"mnu_del", no_index, "削除", "Delete"},
    {"GPS_MNEA", no_index, "GPS(NMEA形式)", "GPS (MNEA TYPE)"},
    {"mnu_Trailbook", no_index, "GPS(Trailbook形式)", "GPS (Trailbook TYPE)"},
    {"menu_keiro", no_index, "経路表示", "Show Root"},
    {"Label4", no_index, "地図選択", "MAP Select"},
    {"Check8", no_index, "経路表示", "RootShow"},
    {"Frame2", no_index, "基本設定", "Basic Setting"},
    {"Frame8", no_index, "地形図フォルダ選択", "Topography Folder Select"},
    {"Frame17", no_index, "地点登録ファイル設定", "Point Registration File Set"},
    {"Label30", no_index, "地点登録ファイルは,[地形図フォルダ」内の[chisou_men]の中に作成されます。",
     "Point Registration File is in the [chisou_men] folder"},
    {"Command44", no_index, "新規ファイル作成", "New File Make"},
    {"Command45", no_index, "削除", "Delete"},
    {"Frame15", no_index, "測地系選択", "Select"},
    {"Option6", no_index, "旧日本測地系", "Tokyo Datum"},
    {"Option7", no_index, "世界測地系", "WGS-84"},
    {"Command10", no_index, "保存", "Save"},
    {"Command11", no_index, "中止", "Cancel"},
    {"Command24", no_index, "入力基本枠ファイルの設定", "Basic Frame Setting"},
    {"Label19", 2, "Z(m)", "H(m)"},
    {"Label19", 3, "計測対象", "Type"},
    {"Label19", 4, "地層名", "Stratum"},
    {"Label19", 5, "線傾斜", "Plange"},
    {"Label19", 8, "線方向", "Lineation"},
    {"Check9", no_index, "偏角補正済みデータ(偏角補正を行わない。)", "True North Data"},
    {"Command6", no_index, "線(囲み)開始", "Line Start"},
    {"Command31", no_index, "線終了", "Line Stop"},
    {"Command8", no_index, "囲み線色", "Color"},
    {"Frame1", no_index, "Rockview3Dデータ作成", "Rockview3D Data Make"},
    {"Rockview3D", no_index, "3Dモデル設定", "3D Model Setting"},
    {"Command47", no_index, "3Dモデル作成", "3D Model Make"},
    {"Command2", no_index, "画像のみ登録", "Image Regist Only"},
    {"Command48", no_index, "中止", "Cancel"},
    {"Label35", no_index, "マウスで範囲を選択して下さい。", "Please Area Select on mouse"},
    {"Label26", no_index, "モデルフォルダ選択", "Model Folder Select"},
    {"Label25", no_index, "モデル名", "Model Name"},
};

std::string language_path(const std::string& program_path) {
  return platform::join_path(program_path, "Language.set");
}

const Caption* find(std::span<const Caption> list, std::string_view control, int index) {
  for (const Caption& row : list)
    if (row.control == control && row.index == index) return &row;
  return nullptr;
}

}  // namespace

std::span<const Caption> captions_short() {
  return short_list;
}
std::span<const Caption> captions_long() {
  return long_list;
}

bool is_japanese(std::string_view language) {
  return language == "Japanese";
}

// One line of Language.set:
//   Japanese
std::string language_r(Files& files, const std::string& program_path) {
  const std::vector<std::string> lines = platform::read_lines(files, language_path(program_path));
  const std::string word = lines.empty() ? "" : platform::input_field(lines.front());
  return word.empty() ? "English" : word;
}

void language_w(Files& files, const std::string& program_path, const std::string& language) {
  platform::Line_writer writer;
  writer.line(language);
  files.write_whole(language_path(program_path), writer.bytes());
}

std::vector<Caption_set> Language_set(Settings& settings, Files& files, Prompts& prompts) {
  settings.language = language_r(files, settings.program_path);
  prompts.use_language(settings.language);
  const bool japanese = is_japanese(settings.language);
  std::vector<Caption_set> captions;
  for (const Caption& row : short_list)
    captions.push_back({row.control, row.index, japanese ? row.japanese : row.english});
  if (japanese) return captions;
  for (const Caption& row : long_list) captions.push_back({row.control, row.index, row.english});
  settings.english_seen = true;
  return captions;
}

std::vector<Caption_set> menu_language(Settings& settings, const std::string& language, Files& files,
                                       Prompts& prompts) {
  try {
    language_w(files, settings.program_path, language);
  } catch (const platform::File_failure& failure) {
    file_failed(prompts, {"言語の設定を保存できません: ", "The language can't be saved: "},
                language_path(settings.program_path), failure);
  }
  return Language_set(settings, files, prompts);
}

std::string caption_of(const Settings& settings, std::string_view control, int index) {
  if (const Caption* row = find(short_list, control, index))
    return is_japanese(settings.language) ? row->japanese : row->english;
  if (const Caption* row = find(long_list, control, index))
    return is_japanese(settings.language) && !settings.english_seen ? row->japanese : row->english;
  return {};
}

std::string area_word(const Settings& settings) {
  return caption_of(settings, "area_word");
}

}  // namespace core
