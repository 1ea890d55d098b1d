#include "ui/frm_shape_make.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/guard.h"
#include "ui/shape_parts.h"
#include "ui/toolkit_text.h"

namespace ui {

Frm_ShapeMake::Frm_ShapeMake(const core::Settings& settings, session::Ports& ports, platform::Clock& clock,
                             QWidget* parent)
    : QDialog(parent), settings_(settings), ports_(ports), clock_(clock) {
  setObjectName("frm_ShapeMake");
  lay_out(core::is_japanese(settings.language));
  connect_all();
  Dir1_->set_folder(to_toolkit(settings.project_path));
  files_fill();
}

void Frm_ShapeMake::lay_out(bool japanese) {
  const Either either{japanese};
  setWindowTitle(either("テキストからShapeファイル作成", "Make Shapefile from Text"));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Dir1_ = new Folder_box("Dir1", this);
  Dir1_->set_captions(either("参照...", "Browse..."), either("テキストのフォルダ", "Folder of the text files"));
  for (QWidget* box : {static_cast<QWidget*>(Dir1_), static_cast<QWidget*>(Dir1_->edit())})
    box->setAccessibleName(either("フォルダ", "Folder"));
  Dir1_->edit()->setMinimumWidth(320);
  Dir1_->edit()->setToolTip(either("図形のテキストファイルがあるフォルダ。Shapeファイルも同じフォルダにできます。",
                                   "Folder of the text files. The Shapefile is made in the same folder."));
  Dir1_->start_folder = [this](const QString& text) {
    return to_toolkit(ports_.files.native_path(from_toolkit(text)));
  };
  form->addRow(either("フォルダ(&F)", "&Folder"), Dir1_);
  File1_ = new QListWidget;
  File1_->setObjectName("File1");
  File1_->setAccessibleName(either("テキストファイル", "Text file"));
  File1_->setUniformItemSizes(true);
  File1_->setToolTip(either("1行に1図形: P,x,y または L,x1,y1,x2,y2,... または S,x1,y1,...",
                            "One shape a line: P,x,y or L,x1,y1,x2,y2,... or S,x1,y1,..."));
  form->addRow(either("ファイル(&T)", "&Text file"), File1_);
  column->addLayout(form, 1);
  Check1_ = add_second_set(column, japanese);
  const Shape_buttons buttons = add_shape_buttons(column, japanese);
  ok_ = buttons.ok;
  close_ = buttons.close;
}

void Frm_ShapeMake::connect_all() {
  connect(ok_, &QPushButton::clicked, this, &Frm_ShapeMake::OK);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  connect(Dir1_, &Folder_box::chosen, this, &Frm_ShapeMake::files_fill);
  connect(File1_, &QListWidget::itemDoubleClicked, this, &Frm_ShapeMake::OK);
}

void Frm_ShapeMake::files_fill() {
  File1_->clear();
  for (const std::string& name : ports_.files.list(from_toolkit(Dir1_->folder()), "*"))
    File1_->addItem(to_toolkit(name));
}

void Frm_ShapeMake::OK() {
  exchange::Shape_make_boxes boxes;
  boxes.Dir1 = from_toolkit(Dir1_->folder());
  if (const QListWidgetItem* picked = File1_->currentItem()) boxes.File1 = from_toolkit(picked->text());
  boxes.Check1 = Check1_->isChecked();
  bool made = false;
  guarded(ports_.prompts,
          [&] { made = exchange::frm_ShapeMake_ok(settings_, boxes, ports_.files, ports_.prompts, clock_); });
  if (made) accept();
}

}  // namespace ui
