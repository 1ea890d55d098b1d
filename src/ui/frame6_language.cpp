// Captions, hints and accessible names of the entry panel in the language in force.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/language.h"
#include "ui/colour_button.h"
#include "ui/either.h"
#include "ui/frame6.h"
#include "ui/mark_preview.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// A widget whose text is that of a control in the program's caption tables.
struct Table_caption {
  const char* object;
  const char* control;
  int index;
};

struct Own_caption {
  const char* object;
  const char* japanese;
  const char* english;
};

constexpr Table_caption table_captions[] = {
    {"Label19_2", "Label19", 2},
    {"Label19_3", "Label19", 3},
    {"Label19_4", "Label19", 4},
    {"Label19_5", "Label19", 5},
    {"Label19_6", "Label19", 6},
    {"Label19_7", "Label19", 7},
    {"Label19_8", "Label19", 8},
    {"Label60", "Label60", core::no_index},
    {"Label29", "Label29", core::no_index},
    {"Check9", "Check9", core::no_index},
    {"Command6", "Command6", core::no_index},
    {"Command31", "Command31", core::no_index},
    {"Command9", "Command9", core::no_index},
    {"Command22", "Command22", core::no_index},
    {"entry_new", "mnu_sinki", core::no_index},
    {"entry_delete", "mnu_del", core::no_index},
    {"head_strike", "Label19", 6},
    {"head_dip", "Label19", 7},
    {"head_lineation", "Label19", 8},
    {"head_lineation_dip", "Label19", 5},
};

// clang-format off
constexpr Own_caption own_captions[] = {
    {"Label19_0",        "X(m)",                   "X(m)"},
    {"Label19_1",        "Y(m)",                   "Y(m)"},
    {"label_picture",    "画像ファイル名",         "Picture file"},
    {"label_mark",       "Mark",                   "Mark"},
    {"label_size",       "Large",                  "Large"},
    {"label_colour",     "Color",                  "Color"},
    {"label_line_colour", "線・囲み",              "Line"},
    {"label_memo",       "メモ",                   "Memo"},
    {"label_surface",    "地層面",                 "Surface"},
    {"heading_mark",     "記号",                   "Symbol"},
    {"heading_line",     "線・囲み",               "Line or enclosure"},
    {"heading_more",     "この地点の資料",         "More on this point"},
    {"pick_position",    "地図で位置を指定(&P)",   "&Pick the position on the map"},
    {"move_hint",        "地点変更は右クリック",   "A right click changes the position"},
    {"Check1",           "同標高点繰り返し入力",   "Keep the height for new points"},
    {"Check7",           "境界に使用する",         "Use as a boundary"},
    {"Command1",         "入力シート登録",         "Input sheet"},
    {"Command7",         "Shapeファイル作成",      "Make Shapefile"},
    {"Command23",        "メモ表示",               "Show memo"},
    {"picture_dialog",   "画像とテキストの登録",   "Pictures and text"},
    {"surface_add",      "他の地層面に追加",       "Add to another surface"},
    {"head_raw",         "読み取り",               "Read as"},
    {"head_declination", "偏角",                   "Declination"},
    {"head_side",        "傾斜方位",               "Falls to"},
    {"head_text",        "表記",                   "Text"},
};

// Tool tips, and what a screen reader says of a box that has no label.
constexpr Own_caption hints[] = {
    {"Text14_0", "経度の10万倍、またはm", "Longitude x 100000, or metres"},
    {"Text14_1", "緯度の10万倍、またはm", "Latitude x 100000, or metres"},
    {"Text14_2", "標高", "Height"},
    {"Text14_5", "(入力例:N15W)", "(Example: N15W)"},
    {"Text14_6", "(入力例：30E)", "(Example: 30E)"},
    {"Text14_3", "線構造の傾斜 (入力例：30E)", "Dip of the lineation (Example: 30E)"},
    {"Text14_4", "線構造の方向 (入力例:N15W)", "Direction of the lineation (Example: N15W)"},
    {"Text14_7", "メモはこの番号のファイルに入ります", "The memo lies in a file of this number"},
    {"Text13", "↑と↓で増減します", "Up and Down change it"},
    {"Label3", "入力シートまたは画像のファイル", "File of the input sheet or the picture"},
    {"Combo7", "一覧から選ぶか入力します", "Choose from the list or type"},
    {"Combo6", "一覧から選ぶか入力します", "Choose from the list or type"},
    {"Combo1", "線・範囲では頂点も入力します", "A line or an area has vertices too"},
    {"Combo3", "記号の大きさ", "Size of the mark"},
    {"Combo2", "追加先の地層面の名前", "Name of the surface to add to"},
    {"memo", "登録番号のテキストファイルに保存されます。Ctrl+Enterで保存", "Stored in the number's own text file. Ctrl+Enter saves"},
    {"pick_position", "次に地図を左クリックした位置になります", "The next left click on the map gives the position"},
    {"Check1", "新しい地点に同じ標高を使います", "The next new point keeps this height"},
    {"Check7", "グリッド計算で境界上の点として扱います", "The grid calculation takes it as a point on a boundary"},
    {"Check9", "偏角補正済みデータ。走向に偏角を加えません", "The strike is true already: no declination is added"},
    {"Command6", "地図を左クリックして頂点を入力します", "Left clicks on the map then set the vertices"},
    {"Command31", "今のマウスの位置が最後の頂点になります", "The mouse's position becomes the last vertex"},
    {"Command9", "この地点を登録ファイルに保存します (Enter, Ctrl+S)", "Stores this point in the registration file (Enter, Ctrl+S)"},
    {"Command22", "保存せずに閉じるときは確認します (Esc)", "Asks first when something isn't saved (Esc)"},
    {"entry_new", "新しい地点を登録します", "Begins a new point"},
    {"entry_delete", "この地点を登録ファイルから削除します", "Deletes this point from the registration file"},
    {"Command1", "入力シートのひな形を写して開きます", "Copies the input sheet's template and opens it"},
    {"Command7", "この地点の図形をShapeファイルにします", "Writes this point's shape as a Shapefile"},
    {"Command23", "保存したメモのファイルを開きます", "Opens the stored memo's file"},
    {"picture_dialog", "この地点の写真と説明を登録します", "Stores pictures and a text for this point"},
    {"surface_add", "この地点を他の地層面のファイルに書き足します", "Appends this point to another surface's file"},
    {"mark_preview", "地図に描かれる記号", "The mark as the map draws it"},
    {"symbol_preview", "地図に描かれる走向・傾斜の記号", "The strike symbol as the map draws it"},
};
// clang-format on

void caption_set(QWidget* widget, const QString& text) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(text);
    button->setAccessibleName(QString(text).remove('&'));
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    label->setText(text);
    if (label->buddy()) label->buddy()->setAccessibleName(text);
  }
}

void hint_set(QWidget* widget, const QString& text) {
  // A box that is marked shows the mark's sentence and comes back to its hint afterwards.
  auto* combo = qobject_cast<QComboBox*>(widget);
  QWidget* box = combo && combo->isEditable() ? combo->lineEdit() : widget;
  box->setProperty("hint", text);
  widget->setToolTip(text);
  box->setToolTip(text);
}

}  // namespace

bool Frame6::japanese() const {
  return core::is_japanese(session_.settings.language);
}

QString Frame6::either(const char* in_japanese, const char* in_english) const {
  return Either{japanese()}(in_japanese, in_english);
}

void Frame6::Language_set() {
  for (const Table_caption& row : table_captions)
    caption_set(findChild<QWidget*>(row.object),
                to_toolkit(core::caption_of(session_.settings, row.control, row.index)));
  for (const Own_caption& row : own_captions)
    caption_set(findChild<QWidget*>(row.object), either(row.japanese, row.english));
  for (const Own_caption& row : hints) hint_set(findChild<QWidget*>(row.object), either(row.japanese, row.english));
  for (QComboBox* combo : {Combo2_, Combo6_, Combo7_}) combo->lineEdit()->setAccessibleName(combo->accessibleName());
  mark_colour_->set_captions("Select", either("記号の色", "Colour of the mark"));
  line_colour_->set_captions(to_toolkit(core::caption_of(session_.settings, "Command8")),
                             either("線と囲みの色", "Colour of lines and enclosures"));
  for (QWidget* preview : {static_cast<QWidget*>(mark_preview_), static_cast<QWidget*>(symbol_preview_)})
    preview->setAccessibleName(preview->toolTip());
  lists_fill();
  state_show();
  echo_out();
}

}  // namespace ui
