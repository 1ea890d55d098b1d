// The registered observations as a table beside the map. It sorts, filters and selects; it changes nothing. Records are
// told by their number, their place in the registration file from 1; 0 is none.
#pragma once

#include <QDialog>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/session/session.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTableView;

namespace ui {

class Observation_model;

class Observation_table : public QDialog {
  Q_OBJECT

 public:
  // Closing hides it: the widths, the order and the choice of the columns last as long as the object.
  explicit Observation_table(session::Session& session, QWidget* parent = nullptr);

  // The registry was read anew: the rows follow, selection and scroll place are kept by record. A hidden table does it
  // when it is next shown.
  void registry_read();
  // Selects a record that was chosen elsewhere; emits nothing.
  void select(int touroku);
  // Shows all texts in the session's language.
  void Language_set();

 signals:
  void chosen(int touroku);        // the person chose a row
  void change_asked(int touroku);  // double click or Enter: the record is to be opened in the entry panel

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void build_table();
  QAction* add_row_action(const char* name, const QKeySequence& keys);
  void lay_out();
  void connect_all();
  void set_captions();
  void usual_columns();

  // Runs what changes the rows; selection and scroll place follow by record. `change` gives for each record number
  // before (from index 0) the number afterwards, or nothing where they stay.
  void keep_place(const std::function<std::vector<int>()>& change);
  void filter_changed();
  void clear_filter();
  void sort_changed();
  void row_changed();
  void row_pressed();
  void enter_table();
  void ask_change();
  void copy_rows();
  void show_columns_menu(QPoint at);
  void show_state();
  void mark(const std::vector<int>& records);
  std::vector<int> marked() const;
  int current_record() const;

  session::Session& session_;
  Observation_model* model_ = nullptr;
  QTableView* table_ = nullptr;
  QLabel* filter_label_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QComboBox* kept_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* told_ = nullptr;
  QPushButton* change_ = nullptr;
  QPushButton* close_ = nullptr;
  QAction* show_action_ = nullptr;
  QAction* change_action_ = nullptr;
  QAction* copy_action_ = nullptr;
  QMenu* columns_menu_ = nullptr;
  int touroku_ = 0;  // chosen last, here or elsewhere; also while the filter hides it
  // The record that was chosen elsewhere since the rows went stale; none for a choice that the rows know.
  std::optional<std::string> chosen_meanwhile_;
  bool stale_ = true;      // the registry was read while the table was hidden
  bool filling_ = false;   // the program itself selects now
  bool pressing_ = false;  // a mouse button is down: the press itself tells which row is chosen
};

}  // namespace ui
