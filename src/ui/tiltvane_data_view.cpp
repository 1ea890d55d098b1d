#include "ui/tiltvane_data_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <algorithm>

#include "core/language.h"
#include "drawing/picture_files.h"
#include "exchange/shape_export.h"
#include "instruments/registry_writing.h"
#include "instruments/scatter.h"
#include "instruments/stereo_net_file.h"
#include "instruments/track_log.h"
#include "observations/declination.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/qt/qt_pictures.h"
#include "ui/folder_box.h"
#include "ui/guard.h"
#include "ui/measurement_model.h"
#include "ui/stereonet_view.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

constexpr const char* csv_filter = "CSVファイル(*.CSV);;全てのファイル(*.*)";
constexpr const char* nme_filter = "NMEファイル(*.NME);;全てのファイル(*.*)";
constexpr const char* picture_filter = "PNG (*.png);;JPEG (*.jpg);;BMP (*.bmp)";
constexpr QSize picture_size{500, 560};
constexpr double picture_ratio = 4;
constexpr int rows_measured = 60;  // for the first widths of the columns

struct Wait_cursor {
  Wait_cursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Wait_cursor() { QGuiApplication::restoreOverrideCursor(); }
};

QString system_path(QWidget* parent, const QString& title, const QString& filter, const QString& ending) {
  QFileDialog dialog(parent, title, {}, filter);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ending);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

platform::Picture_format format_of(const QString& path) {
  const QString ending = QFileInfo(path).suffix().toLower();
  if (ending == "jpg" || ending == "jpeg") return platform::Picture_format::jpeg;
  return ending == "bmp" ? platform::Picture_format::bmp : platform::Picture_format::png;
}

// The names of a list, with what was chosen before chosen again.
void fill(QListWidget* list, const std::vector<std::string>& names) {
  const QSignalBlocker quiet(list);
  const QString chosen = list->selectedItems().isEmpty() ? QString() : list->selectedItems().front()->text();
  list->clear();
  for (const std::string& name : names) list->addItem(to_toolkit(name));
  const auto found = list->findItems(chosen, Qt::MatchExactly);
  if (!chosen.isEmpty() && !found.isEmpty()) list->setCurrentItem(found.front());
}

}  // namespace

Tiltvane_data_view::Tiltvane_data_view(session::Session& session, session::Ports& ports,
                                       instruments::Tiltvane_boxes& boxes, QWidget* parent)
    : QWidget(parent), session_(session), ports_(ports), boxes_(boxes) {
  setObjectName("TiltvaneDataShow");
  ask_path = [this](const QString& title, const QString& filter, const QString& ending) {
    return system_path(this, title, filter, ending);
  };
  lay_out();
  Check8_->setChecked(boxes_.Check8);
  Check1_->setChecked(boxes_.Check1);
  Text2_->setText(to_toolkit(boxes_.Text2));
  DirGPS_->set_folder(to_toolkit(boxes_.DirGPS));
  DirGPS2_->set_folder(to_toolkit(boxes_.DirGPS2));
  connect_all();
  files_fill();
  Language_set();
}

void Tiltvane_data_view::connect_all() {
  // Not the current row: the list takes one as soon as it has the keyboard, and the memory would be gone.
  connect(FileImage_, &QListWidget::itemSelectionChanged, this, &Tiltvane_data_view::file_chosen);
  connect(again_, &QPushButton::clicked, this, &Tiltvane_data_view::again);
  connect(all_, &QPushButton::clicked, this, [this] { tick_all(true); });
  connect(none_, &QPushButton::clicked, this, [this] { tick_all(false); });
  connect(invert_, &QPushButton::clicked, this, &Tiltvane_data_view::invert);
  connect(model_, &Measurement_model::ticks_changed, this, &Tiltvane_data_view::ticks_shown);
  connect(hosei_, &QCheckBox::toggled, this, &Tiltvane_data_view::ticks_shown);
  connect(Command1_, &QPushButton::clicked, this, &Tiltvane_data_view::Command1);
  connect(Command9_, &QPushButton::clicked, this, &Tiltvane_data_view::Command9);
  connect(Command10_, &QPushButton::clicked, this, &Tiltvane_data_view::Command10);
  connect(Command16_, &QPushButton::clicked, this, &Tiltvane_data_view::Command16);
  connect(make_, &QPushButton::clicked, this, &Tiltvane_data_view::Tiltvane_File_Make);
  connect(picture_, &QPushButton::clicked, this, &Tiltvane_data_view::picture_save);
  // The link settings are written by the other page too: the boxes follow at once.
  connect(FileGPS_, &QComboBox::activated, this, &Tiltvane_data_view::boxes_taken);
  connect(FileGPS2_, &QListWidget::itemChanged, this, &Tiltvane_data_view::boxes_taken);
  connect(Text2_, &QLineEdit::editingFinished, this, &Tiltvane_data_view::boxes_taken);
  for (Folder_box* box : {DirGPS_, DirGPS2_}) {
    text_box_watch(box->edit());
    box->start_folder = [this](const QString& text) {
      return to_toolkit(ports_.files.native_path(from_toolkit(text)));
    };
    connect(box, &Folder_box::chosen, this, [this] {
      boxes_taken();
      tracks_fill();
    });
  }
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
}

bool Tiltvane_data_view::eventFilter(QObject* watched, QEvent* event) {
  const bool space =
      watched == List1_ && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
  if (!space) return QWidget::eventFilter(watched, event);
  toggle_selected();
  return true;
}

void Tiltvane_data_view::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  declination_shown();
}

instruments::Data_context Tiltvane_data_view::context() {
  return {session_.settings, ports_.files, ports_.clock, ports_.prompts, &ports_.journal};
}

double Tiltvane_data_view::declination() const {
  return hosei_->isChecked() ? platform::val(boxes_.Text1) : 0;
}

std::string Tiltvane_data_view::chosen_file() const {
  const QList<QListWidgetItem*> selected = FileImage_->selectedItems();
  return selected.isEmpty() ? std::string() : from_toolkit(selected.front()->text());
}

void Tiltvane_data_view::show_memory() {
  {
    const QSignalBlocker quiet(FileImage_);
    FileImage_->clearSelection();
  }
  guarded(ports_.prompts, [&] { instruments::Tiltvane_out2(list_, ports_.files, session_.settings.program_path); });
  model_->list_changed();
  list_shown();
}

void Tiltvane_data_view::files_fill() {
  fill(FileImage_, instruments::saved_files(ports_.files, session_.settings.program_path));
  tracks_fill();
}

// The files of both folders of tracks, those of the boxes chosen.
void Tiltvane_data_view::tracks_fill() {
  FileGPS_->clear();
  for (const std::string& name : ports_.files.list(boxes_.DirGPS, "*")) FileGPS_->addItem(to_toolkit(name));
  FileGPS_->setCurrentIndex(FileGPS_->findText(to_toolkit(boxes_.FileGPS)));
  const QSignalBlocker quiet(FileGPS2_);
  FileGPS2_->clear();
  for (const std::string& name : ports_.files.list(boxes_.DirGPS2, "*")) {
    bool ticked = name == boxes_.FileGPS2 && boxes_.FileGPS2_list.empty();
    for (const core::File_choice& file : boxes_.FileGPS2_list) ticked = ticked || (file.selected && file.name == name);
    auto* item = new QListWidgetItem(to_toolkit(name), FileGPS2_);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
  }
}

void Tiltvane_data_view::boxes_taken() {
  boxes_.Check8 = Check8_->isChecked();
  boxes_.Check1 = Check1_->isChecked();
  boxes_.Text2 = from_toolkit(Text2_->text());
  boxes_.DirGPS = from_toolkit(DirGPS_->folder());
  boxes_.DriveGPS = exchange::drive_of(boxes_.DirGPS);
  boxes_.FileGPS = from_toolkit(FileGPS_->currentText());
  boxes_.DirGPS2 = from_toolkit(DirGPS2_->folder());
  boxes_.DriveGPS2 = exchange::drive_of(boxes_.DirGPS2);
  boxes_.DirImage = instruments::tiltvane_folder(session_.settings.program_path);
  boxes_.DriveImage = exchange::drive_of(boxes_.DirImage);
  boxes_.FileImage = chosen_file();
  boxes_.FileGPS2_list.clear();
  boxes_.FileGPS2.clear();
  for (int i = 0; i < FileGPS2_->count(); ++i) {
    const std::string name = from_toolkit(FileGPS2_->item(i)->text());
    const bool ticked = FileGPS2_->item(i)->checkState() == Qt::Checked;
    boxes_.FileGPS2_list.push_back({name, ticked});
    if (ticked && boxes_.FileGPS2.empty()) boxes_.FileGPS2 = name;
  }
}

// The title over the table, and the first widths of its columns.
void Tiltvane_data_view::list_shown() {
  QString title = either("データを選択して下さい。", "Choose a file, or read the instrument.");
  if (list_.memory)
    title = either("Tiltvaneメモリー表示", "Tiltvane Memory View");
  else if (!list_.file.empty())
    title = QFileInfo(to_toolkit(list_.file).replace('\\', '/')).fileName();
  if (list_.shortened) title += either("   最初の1,200行を表示", "   the first 1,200 rows");
  title_->setText(title);
  if (widths_set_ || list_.rows.empty()) return;
  List1_->horizontalHeader()->setResizeContentsPrecision(rows_measured);
  List1_->resizeColumnsToContents();
  widths_set_ = true;
}

void Tiltvane_data_view::ticks_shown() {
  const bool japanese = core::is_japanese(session_.settings.language);
  const auto measured = instruments::measured_of(instruments::ticked_lines(list_), declination());
  const auto scatter = instruments::scatter_of(instruments::planes_of(measured));
  ticked_->setText(either("%1 行中 %2 行を選択", "%2 of %1 rows ticked").arg(list_.rows.size()).arg(model_->ticked()));
  scatter_->setText(to_toolkit(instruments::scatter_text(scatter, japanese)));
  net_->show_measured(measured, japanese);
}

void Tiltvane_data_view::declination_shown() {
  const auto label = observations::declination_label(platform::val(boxes_.Text1));
  declination_->setText(either(label.japanese.c_str(), label.english.c_str()));
  ticks_shown();
}

void Tiltvane_data_view::tick_all(bool ticked) {
  std::vector<int> rows;
  for (int i = 0; i < model_->rowCount(); ++i) rows.push_back(i);
  model_->tick(rows, ticked);
}

void Tiltvane_data_view::invert() {
  std::vector<int> ticked, others;
  for (int i = 0; i < model_->rowCount(); ++i)
    (list_.rows[static_cast<std::size_t>(i)].ticked ? ticked : others).push_back(i);
  model_->tick(ticked, false);
  model_->tick(others, true);
}

std::vector<int> Tiltvane_data_view::selected_rows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : List1_->selectionModel()->selectedRows())
    rows.push_back(sorted_->mapToSource(index).row());
  return rows;
}

// Ticks all selected rows, or unticks them where all are ticked.
void Tiltvane_data_view::toggle_selected() {
  const std::vector<int> rows = selected_rows();
  const bool all = std::all_of(rows.begin(), rows.end(),
                               [this](int row) { return list_.rows[static_cast<std::size_t>(row)].ticked; });
  model_->tick(rows, !all);
}

void Tiltvane_data_view::file_chosen() {
  if (!chosen_file().empty()) again();
}

void Tiltvane_data_view::again() {
  guarded(ports_.prompts, [&] {
    if (!再表示(list_, context(), chosen_file())) return;
    model_->list_changed();
    list_shown();
  });
}

void Tiltvane_data_view::Command10() {
  guarded(ports_.prompts, [&] {
    if (!instruments::Command10(context(), list_, boxes_.Text1).empty()) files_fill();
  });
}

void Tiltvane_data_view::Command9() {
  guarded(ports_.prompts, [&] {
    instruments::Command9(context(), list_, {boxes_.Text1, hosei_->isChecked()}, [this] {
      return from_toolkit(ask_path(either("ステレオネット解析ファイル", "Stereo-net file"), csv_filter, "CSV"));
    });
  });
}

void Tiltvane_data_view::Command16() {
  guarded(ports_.prompts, [&] {
    instruments::Command16(context(), list_, [this] {
      return from_toolkit(ask_path(either("軌跡ログ", "Track log"), nme_filter, "NME"));
    });
  });
}

void Tiltvane_data_view::Command1() {
  guarded(ports_.prompts, [&] {
    const std::string name = chosen_file();
    if (!instruments::Command1(context(), name)) return;
    if (!list_.memory && list_.file == instruments::tiltvane_folder(session_.settings.program_path, name)) list_ = {};
    model_->list_changed();
    list_shown();
    files_fill();
  });
}

void Tiltvane_data_view::Tiltvane_File_Make() {
  boxes_taken();
  instruments::File_make_result result;
  guarded(ports_.prompts,
          [&] { result = instruments::Tiltvane_File_Make(context(), session_.registry, list_, boxes_); });
  if (result.written) emit registry_written();
}

void Tiltvane_data_view::picture_save() {
  const QString path = ask_path(either("ステレオネットの画像", "Picture of the stereonet"), picture_filter, "png");
  if (path.isEmpty()) return;
  const bool japanese = core::is_japanese(session_.settings.language);
  std::string bytes;
  {
    const Wait_cursor wait;
    const QImage image = stereonet_image(net_->measured(), japanese, true, picture_size, picture_ratio);
    bytes = ports_.pictures.encode(platform::picture_of(image), format_of(path), drawing::jpeg_quality);
  }
  instruments::net_picture_save(context(), from_toolkit(path), bytes);
}

}  // namespace ui
