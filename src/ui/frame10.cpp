#include "ui/frame10.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/language.h"
#include "drawing/picture_files.h"
#include "platform/qt/qt_pictures.h"
#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

const platform::Message overwrite{"同じ名前のファイルがあります。上書きしますか。",
                                  "There is a file of that name. Do you want to replace it?"};

}  // namespace

Frame10_dialog::Frame10_dialog(session::Ports& ports, const core::Settings& settings, std::function<QImage()> picture,
                               QWidget* parent)
    : QDialog(parent), ports_(ports), picture_(std::move(picture)) {
  setObjectName("Frame10");
  lay_out(core::is_japanese(settings.language));
  Dir2_->set_folder(to_toolkit(settings.project_path));
  connect(findChild<QPushButton*>("Command29"), &QPushButton::clicked, this, &Frame10_dialog::Command29);
  connect(findChild<QPushButton*>("close"), &QPushButton::clicked, this, &QDialog::reject);
}

void Frame10_dialog::lay_out(bool japanese) {
  const Either either{japanese};
  setWindowTitle(either("画像保存", "Image File Save"));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Text16_ = new QLineEdit;
  Text16_->setObjectName("Text16");
  Text16_->setMinimumWidth(320);
  form->addRow(either("ファイル名(&N)", "File &name"), Text16_);
  Dir2_ = new Folder_box("Dir2", this);
  Dir2_->set_captions(either("参照...", "Browse..."), either("保存先のフォルダ", "Folder to save to"));
  Dir2_->start_folder = [this](const QString& text) {
    return to_toolkit(ports_.files.native_path(from_toolkit(text)));
  };
  form->addRow(either("フォルダ(&F)", "&Folder"), Dir2_);
  auto* kinds = new QHBoxLayout;
  const char* const captions[] = {"&bmp", "&jpeg", "&png"};
  for (int i = 0; i < 3; ++i) {
    Option_[i] = new QRadioButton(captions[i]);
    Option_[i]->setObjectName("Option" + QString::fromStdString(std::to_string(i + 1)));
    kinds->addWidget(Option_[i]);
  }
  Option_[2]->setChecked(true);
  kinds->addStretch();
  form->addRow(either("形式", "Format"), kinds);
  column->addLayout(form);
  QWidget::setTabOrder(Text16_, Dir2_);
  Text16_->setFocus();
  auto* row = new QHBoxLayout;
  row->addStretch();
  auto* save = new QPushButton(either("保存", "Save"));
  save->setObjectName("Command29");
  save->setDefault(true);
  auto* close = new QPushButton(either("閉じる", "Close"));
  close->setObjectName("close");
  close->setAutoDefault(false);
  row->addWidget(save);
  row->addWidget(close);
  column->addLayout(row);
}

void Frame10_dialog::Command29() {
  drawing::Image_save_boxes boxes;
  boxes.Text16 = from_toolkit(Text16_->text());
  boxes.Dir2 = from_toolkit(Dir2_->folder());
  boxes.Option1 = Option_[0]->isChecked();
  boxes.Option2 = Option_[1]->isChecked();
  boxes.Option3 = Option_[2]->isChecked();
  const std::string target = drawing::image_path(boxes);
  if (!target.empty() && ports_.files.length(target) > 0 && !ports_.prompts.yes_no(overwrite)) return;
  setCursor(Qt::WaitCursor);
  const platform::Picture canvas = platform::picture_of(picture_());
  const bool saved = drawing::Command29(ports_.files, ports_.pictures, ports_.prompts, canvas, boxes);
  unsetCursor();
  if (saved) accept();
}

}  // namespace ui
