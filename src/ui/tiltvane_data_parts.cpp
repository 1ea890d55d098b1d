// What the page of the clinometer's data is made of, and its captions.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/measurement_model.h"
#include "ui/stereonet_view.h"
#include "ui/text_box.h"
#include "ui/tiltvane_data_view.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

constexpr int list_width = 240, table_width = 420, list_height = 84;
constexpr int row_height_margin = 8;

void set_caption(QWidget* widget, const QString& text) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget))
    button->setText(text);
  else if (auto* label = qobject_cast<QLabel*>(widget))
    label->setText(text);
  else if (auto* group = qobject_cast<QGroupBox*>(widget))
    group->setTitle(text);
  else
    widget->setAccessibleName(text);
}

QVBoxLayout* column_in(QWidget* widget) {
  auto* column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  return column;
}

}  // namespace

template <typename Widget>
Widget* Tiltvane_data_view::named(Widget* widget, const char* name, Caption caption) {
  widget->setObjectName(QString::fromUtf8(name));
  caption.widget = widget;
  captions_.push_back(caption);
  return widget;
}

QString Tiltvane_data_view::either(const char* in_japanese, const char* in_english) const {
  return Either{core::is_japanese(session_.settings.language)}(in_japanese, in_english);
}

void Tiltvane_data_view::lay_out() {
  auto* column = new QVBoxLayout(this);
  auto* splitter = new QSplitter;
  splitter->setObjectName("parts");
  splitter->setChildrenCollapsible(false);
  for (QWidget* part : {files_part(), table_part(), net_part()}) splitter->addWidget(part);
  splitter->setStretchFactor(0, 0);
  splitter->setStretchFactor(1, 1);
  splitter->setStretchFactor(2, 0);
  column->addWidget(splitter, 1);
  column->addWidget(registry_part());
}

QWidget* Tiltvane_data_view::files_part() {
  auto* part = new QWidget;
  QVBoxLayout* column = column_in(part);
  auto* label = named(new QLabel, "label_FileImage", {nullptr, "保存ファイル(&F)", "Saved &files", nullptr, nullptr});
  FileImage_ =
      named(new QListWidget, "FileImage",
            {nullptr, "保存ファイル", "Saved files", "選択すると内容を表示します。", "A chosen file is shown."});
  FileImage_->setMinimumWidth(list_width);
  label->setBuddy(FileImage_);
  again_ =
      named(new QPushButton, "再表示",
            {nullptr, "再表示(&R)", "&Reload", "選択したファイルを読み直します。", "Reads the chosen file again."});
  Command1_ = named(new QPushButton, "Command1",
                    {nullptr, "ファイルを削除(&D)", "&Delete file", "選択したファイルを削除します。復活はできません。",
                     "Deletes the chosen file for good."});
  column->addWidget(label);
  column->addWidget(FileImage_, 1);
  column->addWidget(again_);
  column->addWidget(Command1_);
  return part;
}

QWidget* Tiltvane_data_view::table_part() {
  auto* part = new QWidget;
  QVBoxLayout* column = column_in(part);
  title_ = new QLabel;
  title_->setObjectName("title");
  model_ = new Measurement_model(list_, this);
  sorted_ = new QSortFilterProxyModel(this);
  sorted_->setSourceModel(model_);
  sorted_->setSortRole(Measurement_model::sort_role);
  List1_ = named(new QTableView, "List1",
                 {nullptr, "計測データ", "Measurements", "スペースキーで選択行のチェックを切り替えます。",
                  "The space bar ticks or unticks the selected rows."});
  List1_->setModel(sorted_);
  List1_->setMinimumWidth(table_width);
  List1_->setSelectionBehavior(QAbstractItemView::SelectRows);
  List1_->setAlternatingRowColors(true);
  List1_->setWordWrap(false);
  List1_->setTabKeyNavigation(false);
  List1_->verticalHeader()->hide();
  // One height for all rows: nothing is measured row by row.
  List1_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  List1_->verticalHeader()->setDefaultSectionSize(List1_->fontMetrics().height() + row_height_margin);
  List1_->setSortingEnabled(true);
  List1_->sortByColumn(-1, Qt::AscendingOrder);  // the order of the file, until a column's head is pressed
  List1_->installEventFilter(this);
  column->addWidget(title_);
  column->addWidget(List1_, 1);
  add_ticks(column);
  add_exports(column);
  return part;
}

void Tiltvane_data_view::add_ticks(QVBoxLayout* column) {
  all_ = named(new QPushButton, "all",
               {nullptr, "全て選択(&A)", "Tick &all", "全ての行にチェックを入れます。", "Ticks every row."});
  none_ = named(new QPushButton, "none",
                {nullptr, "全て解除(&N)", "Tick &none", "全てのチェックを外します。", "Unticks every row."});
  invert_ = named(new QPushButton, "invert",
                  {nullptr, "反転(&I)", "&Invert", "チェックの有無を入れ替えます。", "Ticks the others."});
  ticked_ = new QLabel;
  ticked_->setObjectName("ticked");
  auto* row = new QHBoxLayout;
  for (QPushButton* button : {all_, none_, invert_}) row->addWidget(button);
  row->addStretch(1);
  row->addWidget(ticked_);
  column->addLayout(row);
}

void Tiltvane_data_view::add_exports(QVBoxLayout* column) {
  Command10_ = named(new QPushButton, "Command10",
                     {nullptr, "ファイルに保存(&S)", "&Save as file", "チェックした行を保存ファイルにします。",
                      "Keeps the ticked rows as a saved file."});
  Command9_ = named(new QPushButton, "Command9",
                    {nullptr, "ステレオネット解析ファイル(&E)...", "St&ereo-net file...",
                     "チェックした行をステレオネット解析用のファイルに書き出します。",
                     "Writes the ticked rows for stereo-net software."});
  Command16_ = named(new QPushButton, "Command16",
                     {nullptr, "軌跡ログ .NME(&L)...", "Track &log .NME...",
                      "位置のあるチェックした行をNMEA形式の軌跡に書き出します。",
                      "Writes the ticked rows that have a position as a track of NMEA sentences."});
  auto* row = new QHBoxLayout;
  for (QPushButton* button : {Command10_, Command9_, Command16_}) row->addWidget(button);
  row->addStretch(1);
  column->addLayout(row);
}

QWidget* Tiltvane_data_view::net_part() {
  auto* part = new QWidget;
  QVBoxLayout* column = column_in(part);
  declination_ = new QLabel;
  declination_->setObjectName("declination");
  hosei_ = named(new QCheckBox, "hosei",
                 {nullptr, "偏角補正を行う(真北)(&H)", "Add t&he declination (true north)",
                  "ステレオネットと解析ファイルを真北で表します。外すと磁北のままです。",
                  "The stereonet and its file are against true north; otherwise against magnetic north."});
  hosei_->setChecked(true);
  net_ = named(new Stereonet_view, "stereonet",
               {nullptr, "ステレオネット(下半球等積投影)", "Stereonet (equal area, lower hemisphere)",
                "チェックした行の面の極、線構造、平均と95%信頼円。",
                "Poles and lineations of the ticked rows, their mean and its cone of 95 % confidence."});
  scatter_ = new QLabel;
  scatter_->setObjectName("scatter");
  scatter_->setWordWrap(true);
  scatter_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  picture_ = named(new QPushButton, "picture",
                   {nullptr, "画像に保存(&P)...", "Save as &picture...", "ステレオネットを画像ファイルにします。",
                    "Saves the stereonet as a picture file."});
  column->addWidget(declination_);
  column->addWidget(hosei_);
  column->addWidget(net_, 1);
  column->addWidget(scatter_);
  column->addWidget(picture_, 0, Qt::AlignRight);
  return part;
}

QWidget* Tiltvane_data_view::registry_part() {
  auto* part = named(new QGroupBox, "registry",
                     {nullptr, "地点登録ファイルへの書き込み", "Into the registration file", nullptr, nullptr});
  Check8_ = named(new QCheckBox, "Check8",
                  {nullptr, "GPS位置記録ファイルを参照する(&1)", "Positions from a GPS log (&1)",
                   "フィールドロガーのコンマ区切りファイルから位置を取ります。",
                   "Takes the positions from the comma file of a field logger."});
  DirGPS_ = new Folder_box("DirGPS", this);
  FileGPS_ = named(new QComboBox, "FileGPS",
                   {nullptr, "GPS位置記録ファイル", "GPS log", "位置記録ファイル", "The log with the positions"});
  Check1_ = named(new QCheckBox, "Check1",
                  {nullptr, "GPS位置記録ファイルを参照する(NMEA)(&2)", "Positions from NMEA logs (&2)",
                   "GPS受信機の$GPRMCから位置を取ります。下の一覧でファイルを選択します。",
                   "Takes the positions from $GPRMC sentences of the files ticked in the list."});
  DirGPS2_ = new Folder_box("DirGPS2", this);
  FileGPS2_ = named(new QListWidget, "FileGPS2",
                    {nullptr, "NMEAファイル", "NMEA logs", "参照するファイルにチェックを入れます。",
                     "Tick the files to take positions from."});
  FileGPS2_->setFixedHeight(list_height);
  auto* hours = named(new QLabel, "label_Text2", {nullptr, "時差(時間)(&T)", "Hours to local &time", nullptr, nullptr});
  Text2_ = named(new QLineEdit, "Text2",
                 {nullptr, "時差(時間)", "Hours to local time", "GPSの時刻に加える時間。日本は9。",
                  "Hours that are added to the time of the logs; 9 in Japan."});
  Text2_->setMaximumWidth(64);
  hours->setBuddy(Text2_);
  make_ =
      named(new QPushButton, "Tiltvane_File_Make",
            {nullptr, "地点台帳に書き込む(&W)", "&Write into the registry",
             "チェックした行を地点登録ファイルに書き込みます。", "Writes the ticked rows into the registration file."});

  auto* grid = new QGridLayout(part);
  grid->addWidget(Check8_, 0, 0);
  grid->addWidget(DirGPS_, 1, 0);
  grid->addWidget(FileGPS_, 2, 0);
  grid->addWidget(Check1_, 0, 1, 1, 3);
  grid->addWidget(DirGPS2_, 1, 1);
  grid->addWidget(hours, 1, 2);
  grid->addWidget(Text2_, 1, 3);
  grid->addWidget(FileGPS2_, 2, 1, 2, 1);
  grid->addWidget(make_, 3, 2, 1, 2, Qt::AlignRight | Qt::AlignBottom);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  return part;
}

void Tiltvane_data_view::Language_set() {
  const bool japanese = core::is_japanese(session_.settings.language);
  for (const Caption& caption : captions_) {
    set_caption(caption.widget, either(caption.japanese, caption.english));
    if (caption.hint_japanese) caption.widget->setToolTip(either(caption.hint_japanese, caption.hint_english));
  }
  for (Folder_box* box : {DirGPS_, DirGPS2_}) {
    const QString title = box == DirGPS_ ? either("GPS位置記録のフォルダ", "Folder of the GPS log")
                                         : either("NMEAファイルのフォルダ", "Folder of the NMEA logs");
    box->set_captions(either("参照...", "Browse..."), title);
    for (QWidget* widget : {static_cast<QWidget*>(box), static_cast<QWidget*>(box->edit())})
      widget->setAccessibleName(title);
    text_box_hint(box->edit(), japanese, title);
  }
  FileGPS_->setPlaceholderText(either("ファイルを選択", "Choose a file"));
  model_->set_japanese(japanese);
  list_shown();
  declination_shown();
}

}  // namespace ui
