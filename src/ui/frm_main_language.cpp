#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>

#include "core/language.h"
#include "core/session/sheet.h"
#include "ui/canvas_view.h"
#include "ui/frame2.h"
#include "ui/frame6.h"
#include "ui/frm_main.h"
#include "ui/gps_state.h"
#include "ui/observation_table.h"
#include "ui/tool_bar.h"
#include "ui/toolkit_language.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// Texts of the window beyond the system's own captions, complete in both languages.
struct Own_text {
  const char* object;
  const char* japanese;
  const char* english;
};

// clang-format off
constexpr Own_text own_texts[] = {
    {"menu_bor_touroku",  "ボーリング登録",         "Borehole registration"},
    {"menu_edit",         "編集",                   "Edit"},
    {"menu_view",         "表示",                   "View"},
    {"clinometer_cable",  "クリノメータの接続...",  "Connect the clinometer..."},
    {"gps_switch",        "GPS受信",                "Live GPS"},
    {"gps_tool",          "GPS",                    "GPS"},
    {"gps_data_out",      "GPSデータの再生...",     "Replay GPS data..."},
    {"shape_make",        "Shapeファイル作成...",   "Make a Shapefile..."},
    {"observation_table", "登録地点の一覧...",      "Table of observations..."},
    {"menu_Japanese",     "日本語 (Japanese)",      "日本語 (Japanese)"},
    {"menu_English",      "英語 (English)",         "English"},
    {"view_zoom_in",      "拡大",                   "Zoom in"},
    {"view_zoom_out",     "縮小",                   "Zoom out"},
    {"view_zoom_reset",   "初期の大きさに戻す",     "Initial size"},
    {"view_zoom_box",     "範囲を指定して拡大",     "Zoom to a rectangle"},
    {"view_section",      "断面線を追加",           "Add a section line"},
    {"view_left",         "左へ移動",               "Move left"},
    {"view_right",        "右へ移動",               "Move right"},
    {"view_up",           "上へ移動",               "Move up"},
    {"view_down",         "下へ移動",               "Move down"},
    {"view_sheet_list",   "地図の一覧へ",           "Go to the map list"},
    {"view_sheet_index",  "図葉の配置から選択...",  "Choose on the sheet grid..."},
    {"show_table",        "登録地点の一覧",         "Table of observations"},
    {"label_files",       "地点登録ファイル",       "Point registration files"},
    {"label_text_size",   "文字の大きさ",           "Text size"},
    {"label_interval",    "間隔",                   "Interval"},
};
// clang-format on

// What a tool tip tells beyond the caption, with the keys that do the same.
// clang-format off
constexpr Own_text hints[] = {
    {"Command16",        "拡大します。(Ctrl++)",                            "Zooms in (Ctrl++)"},
    {"Command17",        "縮小します。(Ctrl+-)",                            "Zooms out (Ctrl+-)"},
    {"Command18",        "図葉全体が見える初期の大きさに戻します。(Ctrl+0)", "Goes back to the size in which the whole sheet is seen (Ctrl+0)"},
    {"Command19",        "地図の2点をクリックして範囲を拡大します。(Ctrl+R)", "Two clicks on the map give the rectangle to zoom to (Ctrl+R)"},
    {"Command25",        "地図の2点をクリックして断面線を引きます。(Ctrl+L)", "Two clicks on the map give the section line (Ctrl+L)"},
    {"Main_act_0",       "表示している地図を画像ファイルに保存します。(Ctrl+S)", "Saves the map as it is shown as a picture file (Ctrl+S)"},
    {"gps_tool",         "GPSの受信を開始または停止します。(Ctrl+G)",       "Starts and stops the live GPS (Ctrl+G)"},
    {"show_table",       "登録地点を一覧で表示します。(Ctrl+T)",            "Shows the observations as a table (Ctrl+T)"},
    {"Main_act_7",       "地点の写真、音声、テキストを登録します。",        "Stores pictures, sounds and a text of a point"},
    {"Main_act_8",       "登録済みの写真、音声、テキストを変更します。",    "Changes the stored pictures and the text of a point"},
    {"Check3",           "図葉の方眼を表示します。",                        "Shows the grid of the sheet"},
    {"Check5",           "登録地点の記号を表示します。",                    "Shows the marks of the observations"},
    {"Check2",           "記号の横に番号を表示します。",                    "Shows a number beside each mark"},
    {"Check6",           "囲みの中に地図を透かして表示します。",            "The map shows through the enclosures"},
    {"Check8",           "選択した経路を表示します。",                      "Shows the routes that were chosen"},
    {"menu_web_henkann", "地形図を取り込むプログラム（Tilefetch）を起動します。", "Starts the program that fetches maps (Tilefetch)"},
    {"menu_dc_read",     "クリノメータの計測データを読み込み、登録します。", "Reads the clinometer and registers its measurements"},
    {"clinometer_cable", "ケーブルでつないだクリノメータを読み込みます。",  "Reads a clinometer on its cable"},
    {"menu_keiro",       "地図に表示する経路を選びます。",                  "Chooses the routes that the map shows"},
    {"GPS_MNEA",         "NMEA形式のログから、地図に表示する経路を選びます。", "Chooses the routes that the map shows from NMEA logs"},
    {"gps_data_out",     "記録したGPSの文をシリアルポートへ送ります。",     "Sends recorded GPS sentences to a serial port"},
    {"shape_make",       "座標のテキストファイルからShapeファイルを作成します。", "Makes a Shapefile from a text file of coordinates"},
};
// clang-format on

// Controls whose work is not there yet.
constexpr const char* to_come[] = {"Text1", "Combo8", "Command5", "Command38"};

// Object name of a control: a member of a control array has its index behind.
QString object_of(std::string_view control, int index) {
  const QString name = to_toolkit(control);
  return index == core::no_index ? name : name + "_" + QString::fromStdString(std::to_string(index));
}

}  // namespace

void Frm_main::set_caption(const QString& object, const QString& text) {
  QObject* const found = object == objectName() ? this : findChild<QObject*>(object);
  if (auto* button = qobject_cast<QAbstractButton*>(found)) {
    button->setText(text);
    button->setToolTip(text.trimmed());
    button->setAccessibleName(text.trimmed());
  } else if (auto* label = qobject_cast<QLabel*>(found)) {
    label->setText(text);
    if (label->buddy()) label->buddy()->setAccessibleName(text.trimmed());
  } else if (auto* menu = qobject_cast<QMenu*>(found)) {
    menu->setTitle(text);
  } else if (auto* action = qobject_cast<QAction*>(found)) {
    action->setText(text);
  } else if (auto* group = qobject_cast<QGroupBox*>(found)) {
    group->setTitle(text);
  }
}

// The captions that the window is designed with; the language then sets its own over them.
void Frm_main::apply_design_captions() {
  for (const core::Caption& caption : core::captions_long())
    set_caption(object_of(caption.control, caption.index), to_toolkit(caption.japanese));
}

void Frm_main::apply_captions() {
  for (const core::Caption_set& caption : core::Language_set(session_.settings, ports_.files, ports_.prompts))
    set_table_caption(caption);
  apply_own_texts();
}

void Frm_main::set_table_caption(const core::Caption_set& caption) {
  set_caption(object_of(caption.control, caption.index), to_toolkit(caption.text));
}

void Frm_main::apply_own_texts() {
  for (const Own_text& text : own_texts) set_caption(text.object, either(text.japanese, text.english));
  findChild<QAction*>(japanese() ? "menu_Japanese" : "menu_English")->setChecked(true);
  list_filter_->setPlaceholderText(either("地図名・番号で絞り込み", "Filter by name or code"));
  list_filter_->setAccessibleName(list_filter_->placeholderText());
  canvas_->setAccessibleName(either("地図", "Map"));
  List1_->setAccessibleName(either("地図名の一覧", "List of map names"));
  List2_->setAccessibleName(either("図葉番号の一覧", "List of sheet codes"));
  Frame6_->Language_set();
  if (table_) table_->Language_set();
  gps_state_->use_language(japanese());
  show_gps();
  show_undo();
  shown_files_->setAccessibleName(either("地点登録ファイル", "Point registration files"));
  apply_hints();
  static_cast<Tool_bar*>(findChild<QToolBar*>("tools"))->captions_changed();
}

void Frm_main::apply_hints() {
  for (const Own_text& hint : hints) {
    QObject* const found = findChild<QObject*>(hint.object);
    if (auto* widget = qobject_cast<QWidget*>(found)) widget->setToolTip(either(hint.japanese, hint.english));
    if (auto* action = qobject_cast<QAction*>(found)) action->setToolTip(either(hint.japanese, hint.english));
  }
  const QString not_yet = either("この機能はまだ使えません。", "This isn't available yet.");
  for (const char* name : to_come) findChild<QWidget*>(name)->setToolTip(not_yet);
  for (QAction* action : findChildren<QAction*>())
    if (action->property("to_come").toBool()) action->setToolTip(not_yet);
}

void Frm_main::switch_language(const std::string& language) {
  guarded([&] {
    core::menu_language(session_.settings, language, ports_.files, ports_.prompts);
    use_toolkit_language(japanese());
    apply_captions();
    fill_lists();
    if (settings_) settings_->Language_set();
    session::sheet_list_r(session_, ports_);  // the names of the sheets follow too
    show_sheet_list();
    show_all();
  });
}

}  // namespace ui
