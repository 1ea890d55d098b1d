#include "ui/frm_chikeizu_sentaku.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core/language.h"
#include "core/project_settings.h"
#include "platform/failures.h"
#include "ui/either.h"
#include "ui/sheet_grid.h"
#include "ui/toolkit_text.h"
#include "ui/window_size.h"

namespace ui {

namespace {

constexpr QSize first_size(860, 600);

}  // namespace

Frm_chikeizu_sentaku::Frm_chikeizu_sentaku(session::Session& session, session::Ports& ports, QWidget* parent)
    : QDialog(parent), session_(session), ports_(ports) {
  setObjectName("frm_chikeizu_sentaku");
  const core::Settings& settings = session.settings;
  try {
    maps::sheet_index_read(ports.files, session.catalogue, core::sheet_folder(settings, session.boxes),
                           settings.language, index_);
  } catch (const platform::Subscript_failure&) {
    const std::string limit = std::to_string(maps::index_limit);
    ports.prompts.message("図葉が多すぎます。先頭の" + limit + "枚だけを表示します。",
                          "There are too many sheets. The first " + limit + " are shown.");
  }
  // Until somebody has saved settings of their own the grid fills the window.
  maps::fit_display(index_, 2.0 * (first_size.width() - 50), 2.0 * (first_size.height() - 130));
  maps::chizuset_r(ports.files, settings.program_path, index_.display);
  lay_out(core::is_japanese(settings.language));
  connect_all();
  grid_->measure();
  grid_->mark(session.current_sheet);
  resize(size_on_screen(*this, first_size));
}

void Frm_chikeizu_sentaku::lay_out(bool japanese) {
  const Either either{japanese};
  setWindowTitle(either("図葉の選択", "Choose a sheet"));
  auto* column = new QVBoxLayout(this);
  grid_ = new Sheet_grid(index_);
  grid_->setAccessibleName(either("図葉の配置", "Grid of sheets"));
  column->addWidget(grid_, 1);
  told_ = new QLabel(index_.sheet_count > 0
                         ? either("図葉をクリックするか、矢印キーとEnterで選ぶと地図を開きます。",
                                  "Click a sheet, or choose it with the arrow keys and Enter, to open its map.")
                         : either("地図フォルダに図葉がありません。", "The map folder holds no sheet."));
  told_->setObjectName("told");
  column->addWidget(told_);

  auto* row = new QHBoxLayout;
  const auto number = [&](const char* name, const QString& caption, double value, int least, int most) {
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(least, most);
    box->setValue(qRound(value));
    box->setAccessibleName(caption);
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box);
    return box;
  };
  width_ = number("cell_width", either("幅(&W)", "&Width"), index_.display.cell_width, 20, 600);
  height_ = number("cell_height", either("高さ(&H)", "&Height"), index_.display.cell_height, 16, 400);
  text_ = number("text_height", either("文字(&T)", "&Text"), index_.display.text_height, 8, 100);
  auto* save = new QPushButton(either("表示設定保存", "Save display settings"));
  save->setObjectName("Command1");
  save->setAutoDefault(false);
  row->addWidget(save);
  row->addStretch();
  auto* close = new QPushButton(either("閉じる", "Close"));
  close->setObjectName("Command2");
  close->setAutoDefault(false);
  row->addWidget(close);
  column->addLayout(row);
}

void Frm_chikeizu_sentaku::connect_all() {
  for (QSpinBox* box : {width_, height_, text_})
    connect(box, &QSpinBox::valueChanged, this, &Frm_chikeizu_sentaku::display_changed);
  connect(findChild<QPushButton*>("Command1"), &QPushButton::clicked, this,
          [this] { maps::Command1(ports_.files, ports_.prompts, session_.settings.program_path, index_.display); });
  connect(findChild<QPushButton*>("Command2"), &QPushButton::clicked, this, &QDialog::reject);
  connect(grid_, &Sheet_grid::sheet_chosen, this, &Frm_chikeizu_sentaku::choose);
  connect(grid_, &Sheet_grid::sheet_hovered, this, [this](int row) {
    if (row > 0) told_->setText(grid_->told(row));
  });
}

void Frm_chikeizu_sentaku::display_changed() {
  index_.display = {double(width_->value()), double(height_->value()), double(text_->value())};
  grid_->measure();
}

void Frm_chikeizu_sentaku::choose(int row) {
  chosen_ = index_.sheets[row].stem;
  accept();
}

}  // namespace ui
