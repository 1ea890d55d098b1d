#include "ui/frm_tiltvane.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/either.h"
#include "ui/tiltvane_connect.h"

namespace ui {

Frm_Tiltvane::Frm_Tiltvane(session::Session& session, session::Ports& ports, QWidget* parent)
    : QDialog(parent), boxes_(instruments::Tiltvane_boxes_r(ports.files, session.settings.program_path)) {
  setObjectName("frmTiltvane");
  const Either either{core::is_japanese(session.settings.language)};
  setWindowTitle(either("Tiltvaneデータ読み込み", "Read Tiltvane data"));
  auto* column = new QVBoxLayout(this);
  connect_page_ = new Tiltvane_connect(session, ports, boxes_, false);
  column->addWidget(connect_page_);
  auto* buttons = new QDialogButtonBox;
  auto* close = buttons->addButton(either("閉じる(&C)", "&Close"), QDialogButtonBox::RejectRole);
  close->setObjectName("close");
  close->setAutoDefault(false);
  column->addWidget(buttons);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  connect(this, &QDialog::finished, connect_page_, &Tiltvane_connect::stop);
  connect(connect_page_, &Tiltvane_connect::memory_read, this, &QDialog::accept);
}

}  // namespace ui
