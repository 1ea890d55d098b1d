#include "ui/frm_keiro_nmea.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "core/language.h"
#include "exchange/shape_export.h"
#include "ui/either.h"
#include "ui/folder_box.h"
#include "ui/guard.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

Frm_keiroNMEA::Frm_keiroNMEA(session::Session& session, session::Ports& ports, QWidget* parent)
    : QDialog(parent), session_(session), ports_(ports), japanese_(core::is_japanese(session.settings.language)) {
  setObjectName("frm_keiroNMEA");
  instruments::frm_keiroNMEA_load(ports.files, session.settings, boxes_);
  lay_out();
  connect_all();
  Dir1_->set_folder(to_toolkit(boxes_.Dir1));
  drive_shown();
  show_routes(parts_, boxes_.List1, japanese_);
  parts_.List1->setFocus();
}

QString Frm_keiroNMEA::either(const char* in_japanese, const char* in_english) const {
  return Either{japanese_}(in_japanese, in_english);
}

void Frm_keiroNMEA::lay_out() {
  setWindowTitle(either("ルート表示（NMEA形式）", "Show Routes (NMEA Logs)"));
  auto* column = new QVBoxLayout(this);
  add_place(column);
  auto* heading = new QLabel(either("地図に表示するルート(&R)", "&Routes to show on the map"));
  heading->setObjectName("heading");
  column->addWidget(heading);
  parts_ = add_route_parts(column, japanese_, "*.NME");
  heading->setBuddy(parts_.List1);
}

void Frm_keiroNMEA::add_place(QVBoxLayout* column) {
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Drive1_ = new QComboBox;
  Drive1_->setObjectName("Drive1");
  Drive1_->setAccessibleName(either("ドライブ", "Drive"));
  Drive1_->setToolTip(either("ログのあるドライブ", "Drive of the logs"));
  for (const QFileInfo& drive : QDir::drives())
    Drive1_->addItem(to_toolkit(exchange::drive_of(from_toolkit(drive.absolutePath()))), drive.absolutePath());
  form->addRow(either("ドライブ(&D)", "&Drive"), Drive1_);
  // A machine whose paths have no drives has nothing to choose here.
  if (Drive1_->count() < 2) form->setRowVisible(Drive1_, false);

  Dir1_ = new Folder_box("Dir1", this);
  Dir1_->set_captions(either("参照...", "Browse..."), either("ログのフォルダ", "Folder of the logs"));
  for (QWidget* box : {static_cast<QWidget*>(Dir1_), static_cast<QWidget*>(Dir1_->edit())})
    box->setAccessibleName(either("フォルダ", "Folder"));
  Dir1_->edit()->setMinimumWidth(320);
  text_box_watch(Dir1_->edit());
  text_box_hint(
      Dir1_->edit(), japanese_,
      either("GPSのログ（*.NME）があるフォルダ。OKを押すと、このフォルダの選択だけが表示されます。",
             "Folder of the receiver's logs (*.NME). OK shows what is ticked in this folder and nothing else."));
  Dir1_->start_folder = [this](const QString& text) {
    return to_toolkit(ports_.files.native_path(from_toolkit(text)));
  };
  form->addRow(either("フォルダ(&F)", "&Folder"), Dir1_);
  column->addLayout(form);
}

void Frm_keiroNMEA::connect_all() {
  connect(parts_.Command1, &QPushButton::clicked, this, &Frm_keiroNMEA::OK);
  connect_routes(parts_, this, japanese_);
  connect(Dir1_, &Folder_box::chosen, this, &Frm_keiroNMEA::folder_chosen);
  connect(Drive1_, &QComboBox::activated, this, [this] {
    Dir1_->set_folder(QDir::toNativeSeparators(Drive1_->currentData().toString()));
    folder_chosen(Dir1_->folder());
  });
}

// Ticks that were set in a folder stay while the box is left without a change.
void Frm_keiroNMEA::folder_chosen(const QString& folder) {
  if (from_toolkit(folder) == boxes_.Dir1) return;
  guarded(ports_.prompts,
          [&] { instruments::Dir1_change(ports_.files, session_.settings, boxes_, from_toolkit(folder)); });
  drive_shown();
  show_routes(parts_, boxes_.List1, japanese_);
}

void Frm_keiroNMEA::drive_shown() {
  const QSignalBlocker quiet(Drive1_);
  const int row = Drive1_->findText(to_toolkit(exchange::drive_of(boxes_.Dir1)), Qt::MatchFixedString);
  if (row >= 0) Drive1_->setCurrentIndex(row);
}

void Frm_keiroNMEA::OK() {
  folder_chosen(Dir1_->folder());
  boxes_.List1 = routes_of(parts_);
  bool written = false;
  guarded(ports_.prompts, [&] {
    written = instruments::frm_keiroNMEA_Command1(ports_.files, ports_.prompts, session_.settings, boxes_);
  });
  if (!written) return;
  accept();
  emit routes_changed();
}

}  // namespace ui
