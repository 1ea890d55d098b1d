// The page of the clinometer's data: the saved files, the table of measurements with its ticks, their stereonet, and
// what is made of the ticked rows.
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "core/session/session.h"
#include "instruments/measurement_files.h"
#include "instruments/tiltvane_boxes.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class QVBoxLayout;

namespace ui {

class Folder_box;
class Measurement_model;
class Stereonet_view;

class Tiltvane_data_view : public QWidget {
  Q_OBJECT

 public:
  Tiltvane_data_view(session::Session& session, session::Ports& ports, instruments::Tiltvane_boxes& boxes,
                     QWidget* parent = nullptr);

  // Shows the memory as the download left it.
  void show_memory();
  // Fills the lists of the saved files and of the tracks; what is chosen stays chosen.
  void files_fill();
  // Sets every caption in the language in force.
  void Language_set();
  // Takes Text1 of the boxes; done by itself whenever the page comes up.
  void declination_shown();

  // The system's save dialog; a test puts its own in. Title, filter, ending; the path, or nothing.
  std::function<QString(const QString&, const QString&, const QString&)> ask_path;

 signals:
  // The registration file was written: the table must be read and drawn again.
  void registry_written();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  // A widget whose caption follows the language.
  struct Caption {
    QWidget* widget;
    const char* japanese;
    const char* english;
    const char* hint_japanese;
    const char* hint_english;
  };

  void lay_out();
  QWidget* files_part();
  QWidget* table_part();
  QWidget* net_part();
  QWidget* registry_part();
  void add_ticks(QVBoxLayout* column);
  void add_exports(QVBoxLayout* column);
  void connect_all();
  template <typename Widget>
  Widget* named(Widget* widget, const char* name, Caption caption);
  QString either(const char* in_japanese, const char* in_english) const;
  instruments::Data_context context();

  void list_shown();
  void ticks_shown();
  void tick_all(bool ticked);
  void invert();
  void toggle_selected();
  std::vector<int> selected_rows() const;
  void tracks_fill();
  void boxes_taken();
  double declination() const;
  std::string chosen_file() const;

  void file_chosen();
  void again();
  void Command10();
  void Command9();
  void Command16();
  void Command1();
  void Tiltvane_File_Make();
  void picture_save();

  session::Session& session_;
  session::Ports& ports_;
  instruments::Tiltvane_boxes& boxes_;
  instruments::Measurement_list list_;
  std::vector<Caption> captions_;
  bool widths_set_ = false;  // the columns have their first widths; from then on they are the user's

  Measurement_model* model_ = nullptr;
  QSortFilterProxyModel* sorted_ = nullptr;
  QTableView* List1_ = nullptr;
  Stereonet_view* net_ = nullptr;
  QListWidget* FileImage_ = nullptr;
  QListWidget* FileGPS2_ = nullptr;
  QComboBox* FileGPS_ = nullptr;
  Folder_box* DirGPS_ = nullptr;
  Folder_box* DirGPS2_ = nullptr;
  QLabel* title_ = nullptr;
  QLabel* ticked_ = nullptr;
  QLabel* scatter_ = nullptr;
  QLabel* declination_ = nullptr;
  QLineEdit* Text2_ = nullptr;
  QCheckBox* hosei_ = nullptr;
  QCheckBox* Check1_ = nullptr;
  QCheckBox* Check8_ = nullptr;
  QPushButton* all_ = nullptr;
  QPushButton* none_ = nullptr;
  QPushButton* invert_ = nullptr;
  QPushButton* again_ = nullptr;
  QPushButton* Command1_ = nullptr;
  QPushButton* Command9_ = nullptr;
  QPushButton* Command10_ = nullptr;
  QPushButton* Command16_ = nullptr;
  QPushButton* picture_ = nullptr;
  QPushButton* make_ = nullptr;
};

}  // namespace ui
