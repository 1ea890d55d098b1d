#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/frm_sel_picture.h"
#include "ui/picture_view.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"
#include "ui/window_size.h"

namespace ui {

namespace {

constexpr QSize first_size(1080, 600);
constexpr QSize source_icon(104, 78);
constexpr QSize source_cell(124, 112);
constexpr QSize place_icon(96, 72);
constexpr QSize stored_icon(40, 30);
constexpr int text_lines = 4;

}  // namespace

QString Frm_sel_picture::either(const char* in_japanese, const char* in_english) const {
  return Either{japanese_}(in_japanese, in_english);
}

void Frm_sel_picture::lay_out() {
  setWindowTitle(edit_ ? either("画像登録情報編集", "Edit Pictures and Text of a Point")
                       : either("画像とテキストの登録", "Pictures and Text of a Point"));
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout;
  row->addWidget(build_source(), 4);
  row->addWidget(build_preview(), 5);
  row->addWidget(build_point(), 4);
  column->addLayout(row, 1);
  column->addLayout(build_end());
  resize(size_on_screen(*this, first_size));
}

QPushButton* Frm_sel_picture::add_button(QBoxLayout* row, const char* name, const QString& caption,
                                         const QString& hint) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  button->setToolTip(hint);
  button->setAutoDefault(false);
  row->addWidget(button);
  return button;
}

Folder_box* Frm_sel_picture::add_folder(const char* name, const QString& caption, const QString& hint) {
  auto* box = new Folder_box(name, this);
  box->set_captions(either("参照...", "Browse..."), hint);
  box->edit()->setToolTip(hint);
  box->edit()->setMinimumWidth(120);
  for (QWidget* part : {static_cast<QWidget*>(box), static_cast<QWidget*>(box->edit())})
    part->setAccessibleName(caption);
  box->start_folder = [this](const QString& text) { return to_toolkit(ports_.files.native_path(from_toolkit(text))); };
  return box;
}

QWidget* Frm_sel_picture::build_source() {
  auto* group = new QGroupBox(either("取り込み元", "Take from"));
  auto* column = new QVBoxLayout(group);
  Dir1_ = add_folder("Dir1", either("取り込み元のフォルダ", "Folder to take from"),
                     either("写真や音声のあるフォルダ", "Folder with photos and sounds"));
  column->addWidget(Dir1_);
  File1_ = new QListWidget;
  File1_->setObjectName("File1");
  File1_->setAccessibleName(either("フォルダの画像と音声", "Pictures and sounds of the folder"));
  File1_->setToolTip(either("ダブルクリックまたはEnterで空いている枠へ", "Double click or Enter: into a free place"));
  File1_->setViewMode(QListView::IconMode);
  File1_->setIconSize(source_icon);
  File1_->setGridSize(source_cell);
  File1_->setResizeMode(QListView::Adjust);
  File1_->setMovement(QListView::Static);
  File1_->setTextElideMode(Qt::ElideMiddle);
  column->addWidget(File1_, 1);
  auto* row = new QHBoxLayout;
  const char* const names[] = {"Command10", "Command11", "Command12"};
  for (std::size_t i = 0; i < take_buttons_.size(); ++i)
    take_buttons_[i] = add_button(
        row, names[i], either("枠%1へ(&%1)", "To place &%1").arg(i + 1),
        either("選んだ画像または音声をこの枠に入れます。", "Takes the chosen picture or sound into this place."));
  column->addLayout(row);
  photos_ =
      add_button(column, "photo_read", either("写真から地点を登録(&F)...", "Make points &from photos..."),
                 either("フォルダの写真1枚ごとに、XとYの位置に地点を1つ登録します。計測時刻は写真ファイルの日時です。",
                        "Registers one point for each photo of the folder at X and Y, with the date and time of "
                        "its file."));
  return group;
}

QWidget* Frm_sel_picture::build_preview() {
  auto* group = new QGroupBox(either("プレビューと登録する枠", "Preview and places to store"));
  auto* column = new QVBoxLayout(group);
  view_ = new Picture_view;
  view_->setObjectName("preview");
  view_->setAccessibleName(either("プレビュー", "Preview"));
  column->addWidget(view_, 1);
  shown_name_ = new QLabel(" ");
  shown_name_->setObjectName("shown_name");
  shown_name_->setTextFormat(Qt::PlainText);
  shown_name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  shown_name_->setAlignment(Qt::AlignCenter);
  column->addWidget(shown_name_);
  auto* row = new QHBoxLayout;
  rotate_left_ = add_button(row, "gazou_kaiten2", either("左へ回転(&L)", "Rotate &left"),
                            either("枠の画像を左へ90度回します。(Ctrl+L)",
                                   "Turns the picture of the place by 90 degrees "
                                   "counter-clockwise. (Ctrl+L)"));
  rotate_right_ = add_button(row, "gazou_kaiten", either("右へ回転(&R)", "Rotate &right"),
                             either("枠の画像を右へ90度回します。(Ctrl+R)",
                                    "Turns the picture of the place by 90 degrees clockwise. (Ctrl+R)"));
  play_ = add_button(row, "play", either("再生(&P)", "&Play"), either("音声を再生します。", "Plays the sound."));
  column->addLayout(row);
  column->addLayout(build_places());
  return group;
}

QBoxLayout* Frm_sel_picture::build_places() {
  auto* row = new QHBoxLayout;
  for (std::size_t i = 0; i < place_buttons_.size(); ++i) {
    auto* button = new QToolButton;
    button->setObjectName(QString("place_%1").arg(i));
    button->setAccessibleName(either("枠%1", "Place %1").arg(i + 1));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize(place_icon);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row->addWidget(button, 1);
    place_buttons_[i] = button;
  }
  auto* column = new QVBoxLayout;
  column->addLayout(row);
  auto* below = new QHBoxLayout;
  below->addStretch(1);
  empty_ = add_button(below, "empty", either("枠を空ける(&E)", "&Empty the place"),
                      either("表示している枠を空にします。(Delete)", "Empties the place that is shown. (Delete)"));
  column->addLayout(below);
  return column;
}

QWidget* Frm_sel_picture::build_point() {
  auto* group = new QGroupBox(either("地点", "Point"));
  auto* column = new QVBoxLayout(group);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  add_name(form);
  add_position(form);
  Dir2_ = add_folder("Dir2", either("保存先のフォルダ", "Folder of the point"),
                     either("この地点の画像のフォルダ。参照で登録済みの地点を選べます。",
                            "Folder of the point's pictures. Browse to choose a point that is stored."));
  form->addRow(either("保存先(&D)", "Fol&der"), Dir2_);
  column->addLayout(form);
  auto* listed = new QLabel(either("登録済みの画像(&I)", "Stored p&ictures"));
  column->addWidget(listed);
  File2_ = new QListWidget;
  File2_->setObjectName("File2");
  File2_->setAccessibleName(either("登録済みの画像", "Stored pictures"));
  File2_->setIconSize(stored_icon);
  File2_->setMinimumHeight(64);
  listed->setBuddy(File2_);
  column->addWidget(File2_, 2);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  remove_ = add_button(row, "remove", either("一覧から外す(&M)", "Re&move from list"),
                       either("登録すると一覧からなくなります。画像ファイルは残ります。",
                              "Leaves the list with the next store. The file itself stays."));
  column->addLayout(row);
  auto* text = new QLabel(either("テキスト", "Text"));
  column->addWidget(text);
  text_ = new QPlainTextEdit;
  text_->setObjectName("text");
  text_->setAccessibleName(text->text());
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  text_->setMinimumHeight(fontMetrics().lineSpacing() * 2 + 12);
  text_->setMaximumHeight(fontMetrics().lineSpacing() * text_lines + 12);
  text_->setPlaceholderText(either("登録すると作成されます。", "Made when the point is stored."));
  column->addWidget(text_, 1);
  auto* below = new QHBoxLayout;
  below->addStretch(1);
  open_text_ =
      add_button(below, "Command7", either("テキストを開く(&T)", "Open &text"),
                 either("関連付けられたプログラムで開きます。", "Opens it with the program that goes with it."));
  column->addLayout(below);
  return group;
}

void Frm_sel_picture::add_name(QFormLayout* form) {
  points_ = new QComboBox;
  points_->setObjectName("points");
  points_->setAccessibleName(either("登録済みの地点", "Stored points"));
  points_->setToolTip(either("画像を登録してある観測点", "Observations that have pictures"));
  points_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  form->addRow(either("登録済み(&O)", "St&ored"), points_);
  form->setRowVisible(points_, edit_);
  Text1_ = new QLineEdit;
  Text1_->setObjectName("Text1");
  Text1_->setAccessibleName(either("地点名称", "Point name"));
  text_box_watch(Text1_);
  text_box_hint(
      Text1_, japanese_,
      either("必ず入力します。フォルダとファイルの名前になります。", "Required. Folder and files get this name."));
  form->addRow(either("地点名称(&N)", "Point &name"), Text1_);
}

void Frm_sel_picture::add_position(QFormLayout* form) {
  const auto box = [&](const char* name, const QString& caption, const QString& hint) {
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    edit->setToolTip(hint);
    edit->setAccessibleName(name == std::string("Text2") ? "X" : "Y");
    form->addRow(caption, edit);
    return edit;
  };
  const QString hint = either("メートル、または度の10万倍", "Metres, or degrees x 100000");
  Text2_ = box("Text2", "&X", hint);
  Text3_ = box("Text3", "&Y", hint);
}

QBoxLayout* Frm_sel_picture::build_end() {
  auto* row = new QHBoxLayout;
  told_ = new QLabel;
  told_->setObjectName("told");
  told_->setTextFormat(Qt::PlainText);
  told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  row->addWidget(told_, 1);
  store_ = add_button(row, "Command5", either("登録(&S)", "&Store"),
                      either("枠の画像と音声をこの地点に登録します。(Ctrl+S)",
                             "Stores what the places hold with this point. (Ctrl+S)"));
  close_ = add_button(row, "close", either("閉じる", "Close"), either("閉じる (Esc)", "Close (Esc)"));
  return row;
}

}  // namespace ui
