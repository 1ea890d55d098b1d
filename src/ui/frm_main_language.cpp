#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>

#include "core/language.h"
#include "ui/canvas_view.h"
#include "ui/frame2.h"
#include "ui/frame6.h"
#include "ui/frm_main.h"
#include "ui/gps_state.h"
#include "ui/observation_table.h"
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
}

void Frm_main::switch_language(const std::string& language) {
  guarded([&] {
    core::menu_language(session_.settings, language, ports_.files, ports_.prompts);
    apply_captions();
    fill_lists();
    if (settings_) settings_->Language_set();
    show_all();
  });
}

}  // namespace ui
