#include "ui/frm_shape.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/language.h"
#include "exchange/shape_list.h"
#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/guard.h"
#include "ui/shape_parts.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

Frm_Shape::Frm_Shape(const core::Settings& settings, session::Ports& ports, platform::Clock& clock, QWidget* parent)
    : QDialog(parent), settings_(settings), ports_(ports), clock_(clock) {
  setObjectName("frm_Shape");
  exchange::frm_Shape_load(settings, boxes_, ports.files);
  lay_out(core::is_japanese(settings.language));
  connect_all();
  Dir1_->set_folder(to_toolkit(boxes_.Dir1));
  folder_shown();
  Text1_->setFocus();
}

void Frm_Shape::lay_out(bool japanese) {
  const Either either{japanese};
  setWindowTitle(either("Shapeファイル作成", "Make Shapefile"));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  add_place(form, japanese);
  column->addLayout(form);
  Check1_ = add_second_set(column, japanese);
  told_ = new QLabel(either("作成する図形がありません。", "There is no drawn shape to write."));
  told_->setObjectName("told");
  const bool empty = ports_.files.length(exchange::tmp_path(settings_.program_path)) == 0;
  told_->setVisible(empty);
  column->addWidget(told_);
  column->addStretch(1);
  const Shape_buttons buttons = add_shape_buttons(column, japanese);
  ok_ = buttons.ok;
  close_ = buttons.close;
}

void Frm_Shape::add_place(QFormLayout* form, bool japanese) {
  const Either either{japanese};
  Text1_ = new QLineEdit;
  Text1_->setObjectName("Text1");
  Text1_->setAccessibleName(either("名前", "Name"));
  Text1_->setMinimumWidth(320);
  text_box_watch(Text1_);
  text_box_hint(Text1_, japanese,
                either("ファイル名。拡張子は付けません。", "Name of the files, without an extension."));
  form->addRow(either("名前(&N)", "&Name"), Text1_);

  Drive1_ = new QComboBox;
  Drive1_->setObjectName("Drive1");
  Drive1_->setAccessibleName(either("ドライブ", "Drive"));
  Drive1_->setToolTip(either("保存先のドライブ", "Drive to save to"));
  for (const QFileInfo& drive : QDir::drives())
    Drive1_->addItem(to_toolkit(exchange::drive_of(from_toolkit(drive.absolutePath()))), drive.absolutePath());
  form->addRow(either("ドライブ(&D)", "&Drive"), Drive1_);
  // A machine whose paths have no drives has nothing to choose here.
  if (Drive1_->count() < 2) form->setRowVisible(Drive1_, false);

  Dir1_ = new Folder_box("Dir1", nullptr);
  Dir1_->set_captions(either("参照...", "Browse..."), either("保存先のフォルダ", "Folder to save to"));
  for (QWidget* box : {static_cast<QWidget*>(Dir1_), static_cast<QWidget*>(Dir1_->edit())})
    box->setAccessibleName(either("フォルダ", "Folder"));
  Dir1_->start_folder = [this](const QString& text) {
    return to_toolkit(ports_.files.native_path(from_toolkit(text)));
  };
  text_box_watch(Dir1_->edit());
  text_box_hint(Dir1_->edit(), japanese,
                either("保存先のフォルダ。次回もここから始まります。",
                       "Folder to save to. The dialog begins here the next time."));
  form->addRow(either("フォルダ(&F)", "&Folder"), Dir1_);
}

void Frm_Shape::connect_all() {
  connect(ok_, &QPushButton::clicked, this, &Frm_Shape::OK);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  connect(Dir1_, &Folder_box::chosen, this, &Frm_Shape::folder_shown);
  connect(Drive1_, &QComboBox::activated, this, &Frm_Shape::drive_chosen);
}

void Frm_Shape::folder_shown() {
  const QSignalBlocker quiet(Drive1_);
  const QString drive = to_toolkit(exchange::drive_of(from_toolkit(Dir1_->folder())));
  const int row = Drive1_->findText(drive, Qt::MatchFixedString);
  if (row >= 0) Drive1_->setCurrentIndex(row);
}

void Frm_Shape::drive_chosen() {
  Dir1_->set_folder(QDir::toNativeSeparators(Drive1_->currentData().toString()));
}

void Frm_Shape::OK() {
  boxes_.Drive1 = from_toolkit(Drive1_->currentText());
  boxes_.Dir1 = from_toolkit(Dir1_->folder());
  boxes_.Text1 = from_toolkit(Text1_->text());
  boxes_.Check1 = Check1_->isChecked();
  bool made = false;
  guarded(ports_.prompts,
          [&] { made = exchange::frm_Shape_ok(settings_, boxes_, ports_.files, ports_.prompts, clock_); });
  if (made) accept();
}

}  // namespace ui
