#include "ui/tiltvane_read2.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/either.h"
#include "ui/tiltvane_connect.h"
#include "ui/tiltvane_data_view.h"
#include "ui/window_size.h"

namespace ui {

namespace {

constexpr QSize first_size(1160, 760);

}  // namespace

Tiltvane_read2::Tiltvane_read2(session::Session& session, session::Ports& ports, QWidget* parent)
    : QDialog(parent),
      session_(session),
      ports_(ports),
      boxes_(instruments::Tiltvane_boxes_r(ports.files, session.settings.program_path)) {
  setObjectName("Tiltvane_Read2");
  lay_out(core::is_japanese(session.settings.language));
  connect_all();
  resize(size_on_screen(*this, first_size));
}

void Tiltvane_read2::lay_out(bool japanese) {
  const Either either{japanese};
  setWindowTitle(either("デジタルクリノメータデータ読み込み", "Read clinometer data"));
  auto* column = new QVBoxLayout(this);
  tabs_ = new QTabWidget;
  tabs_->setObjectName("SSTab1");
  connect_page_ = new Tiltvane_connect(session_, ports_, boxes_, true);
  connect_page_->setObjectName("TiltvaneConnect");
  data_page_ = new Tiltvane_data_view(session_, ports_, boxes_, tabs_);
  data_page_->setObjectName("TiltvaneDataShow");
  tabs_->addTab(connect_page_, "TiltvaneConnect");
  tabs_->addTab(data_page_, "TiltvaneDataShow");
  column->addWidget(tabs_, 1);
  auto* buttons = new QDialogButtonBox;
  auto* close = buttons->addButton(either("閉じる(&C)", "&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName("close");
  close->setAutoDefault(false);
  column->addWidget(buttons);
}

void Tiltvane_read2::connect_all() {
  connect(findChild<QPushButton*>("close"), &QPushButton::clicked, this, &QDialog::reject);
  connect(this, &QDialog::finished, connect_page_, &Tiltvane_connect::stop);
  connect(connect_page_, &Tiltvane_connect::memory_read, this, &Tiltvane_read2::show_memory);
  connect(connect_page_, &Tiltvane_connect::declination_changed, data_page_, &Tiltvane_data_view::declination_shown);
  connect(data_page_, &Tiltvane_data_view::registry_written, this, &Tiltvane_read2::registry_written);
}

void Tiltvane_read2::show_memory() {
  tabs_->setCurrentWidget(data_page_);
  data_page_->show_memory();
}

}  // namespace ui
