#include "ui/frame2_captions.h"

namespace ui {

namespace {

constexpr const char* table_captions[] = {"Frame8",  "Frame17", "Label30",   "Command44", "Command45", "Frame15",
                                          "Option6", "Option7", "Command10", "Command11", "Command24"};

constexpr Frame2_caption captions[] = {
    {"tab_0", "プロジェクト", "Project"},
    {"tab_1", "地図", "Map"},
    {"tab_2", "登録", "Registration"},
    {"Dir4_label", "プロジェクトフォルダ(&P)", "&Project folder"},
    {"Label11_label", "設定ファイルのフォルダ", "As stored"},
    {"Text2_label", "新しいフォルダ名(&N)", "&New folder name"},
    {"Command14", "フォルダ作成", "Make Folder"},
    {"Text4_label", "新しいファイル名(&F)", "New &file name"},
    {"Text4_extension", ".csv", ".csv"},
    {"sheet_frame", "図葉フォルダ", "Sheet Folder"},
    {"Option5_0", "map (1:25,000)", "map (1:25,000)"},
    {"Option5_1", "map50000 (1:50,000)", "map50000 (1:50,000)"},
    {"Dir10_label", "地図フォルダ(&M)", "&Map folder"},
    {"number_frame", "地点に表示する番号", "Number Beside a Point"},
    {"Option8", "登録番号", "Registration number"},
    {"Option9", "走向傾斜計測番号", "Strike and dip measurement number"},
    {"cut_frame", "地形図切取り", "Map Cut"},
    {"Text5_label", "中心からの範囲 &X", "Half range &X"},
    {"Text6_label", "中心からの範囲 &Y", "Half range &Y"},
    {"Text7_label", "スケールの長さ(&L)", "Scale bar &length"},
    {"Text8_label", "スケールの分割(&D)", "Scale bar &division"},
    {"Text9_label", "画像の幅(&W)", "Picture &width"},
    {"Text10_label", "画像の高さ(&H)", "Picture &height"},
    {"numbering_frame", "登録番号の付け方", "Numbering of New Points"},
    {"Option4_0", "入力年月日毎", "By entry date"},
    {"Option4_1", "標準メッシュ（３次メッシュ）", "By third-level standard mesh"},
    {"Option4_2", "手入力", "Typed in"},
    {"gps_frame", "GPSの接続", "GPS Link"},
    {"Combo4_label", "COMポート番号(&C)", "&COM port number"},
    {"Combo5_label", "通信速度(&B)", "Speed (&baud)"},
    {"Frame12", "入力基本枠ファイルの設定", "Basic Frame File Set"},
    {"Dir3_label", "枠ファイルのフォルダ(&D)", "Frame file fol&der"},
    {"File4_label", "枠ファイル名(&F)", "Frame &file name"},
    {"Text3_0_label", "シート名(&S)", "&Sheet name"},
    {"Text3_1_label", "地図名のセル(&1)", "Map name cell (&1)"},
    {"Text3_2_label", "緯度のセル(&2)", "Latitude cell (&2)"},
    {"Text3_3_label", "経度のセル(&3)", "Longitude cell (&3)"},
    {"Text3_4_label", "地点番号のセル(&4)", "Point number cell (&4)"},
    {"Command20", "閉じる", "Close"},
};

constexpr Frame2_caption hints[] = {
    {"Dir3", "入力シートのひな形があるフォルダ", "Folder of the input sheet's template"},
    {"File4", "入力シートのひな形のファイル名", "File name of the input sheet's template"},
    {"Dir4", "プロジェクトのデータはこのフォルダの[chisou_men]に入ります",
     "The project's data lie in [chisou_men] of this folder"},
    {"Dir10", "図葉リストに表示する.bmpのフォルダ", "Folder of the .bmp files that the sheet list shows"},
    {"Text2", "プロジェクトフォルダの下に作成するフォルダの名前",
     "Name of the folder to make below the project folder"},
    {"Command14", "新しいプロジェクトフォルダを[chisou_men]と共に作成します",
     "Makes a new project folder with its [chisou_men]"},
    {"Text4", "拡張子を除いた名前", "Name without its extension"},
    {"Command45", "選択したファイルを削除します", "Deletes the selected files"},
    {"File11", "先頭の選択ファイルに新しい地点が登録されます", "New points go into the first selected file"},
    {"Frame15", "地図と座標の測地系", "Datum of the maps and positions"},
    {"Label11", "設定ファイルに保存されているフォルダ", "The folder that the settings file holds"},
    {"Text3_0", "例：sheet1", "Example: sheet1"},
    {"Text3_1", "記入例例：Ｂ４", "記入例例：Ｂ４"},
    {"Text3_2", "記入例例：Ｂ４", "記入例例：Ｂ４"},
    {"Text3_3", "記入例例：Ｂ４", "記入例例：Ｂ４"},
    {"Text3_4", "記入例例：Ｂ４", "記入例例：Ｂ４"},
    {"Text5", "切取り範囲の中心からの距離。100m以上", "Distance from the centre of the cut, 100 m or more"},
    {"Text6", "切取り範囲の中心からの距離。100m以上", "Distance from the centre of the cut, 100 m or more"},
    {"Text9", "保存するとき範囲の縦横比に合わせます", "Saving fits it to the proportion of the range"},
    {"Combo5", "受信機の速度", "Speed of the receiver"},
    {"Command10", "Ctrl+S", "Ctrl+S"},
    {"Command11", "Esc", "Esc"},
};

}  // namespace

std::span<const Frame2_caption> frame2_captions() {
  return captions;
}
std::span<const Frame2_caption> frame2_hints() {
  return hints;
}
std::span<const char* const> frame2_table_captions() {
  return table_captions;
}

}  // namespace ui
