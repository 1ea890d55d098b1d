// The tab "Position", `Frame6`: the record in the entry panel as a form. It shows session.entry and writes what is
// typed into its boxes at each change; what its buttons do is the window's business. Its sources: frame6.cpp lays it
// out, _boxes goes between widgets and boxes, _echo shows how the texts will be read, _language has the captions.
#pragma once

#include <QWidget>

#include <array>

#include "core/session/session.h"
#include "observations/entry_echo.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QFrame;
class QGridLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace ui {

class Colour_button;
class Mark_preview;

class Frame6 : public QWidget {
  Q_OBJECT

 public:
  Frame6(session::Session& session, session::Ports& ports, QWidget* parent = nullptr);

  // Fills the widgets from session.entry.boxes; they can be used while session.entry.open. When another record comes
  // up the keyboard goes to the height's box, and otherwise stays where it is.
  void boxes_out();
  // Captions, hints, tool tips, the lists of marks and kinds, in the language in force.
  void Language_set();
  // Combo6 (strata), Combo7 (kinds) and Combo2 (surfaces); typed texts stay.
  void lists_fill();

 signals:
  void edited();          // any box was changed by the person; the boxes already hold it
  void position_typed();  // X or Y was changed by typing; goes after `edited`
  // A button was pressed: "Command9" save, "Command22" close, "surface_add", "Command6" line start, "Command31" line
  // end, "Command1" input sheet, "Command7" Shapefile, "Command23" memo, "Command8" picture dialog, "mnu_sinki" new,
  // "mnu_del" delete. Enter in a box and Ctrl+S are "Command9" and Esc "Command22" while the panel is open.
  void command(const QString& name);

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // frame6.cpp
  void lay_out();
  QWidget* build_form();
  void add_position(QFormLayout* form);
  void add_plane(QFormLayout* form);
  void add_mark(QVBoxLayout* column);
  void add_memo(QVBoxLayout* column);
  void add_lines(QVBoxLayout* column);
  QWidget* build_ends();
  QLineEdit* text_row(QFormLayout* form, const char* label, int box, const char* name, QWidget* beside = nullptr);
  QComboBox* combo_row(QFormLayout* form, const char* label, const char* name, bool editable);
  QPushButton* command_button(const char* object, const char* name);
  void order_tabs();
  void connect_all();
  void connect_texts();
  void connect_choices();

  // frame6_boxes.cpp
  void widgets_fill();
  void lists_show();
  void enable();
  void state_show();
  void changed();
  void measurement_step(int by);
  int vertices_stored() const;
  bool is_open() const { return session_.entry.open; }

  // frame6_echo.cpp
  QWidget* build_echo();
  QWidget* build_notes();
  void echo_out();
  void cells_out(const observations::Entry_echo& echo);
  void sentences_out(const observations::Entry_echo& echo, const QStringList& not_storable);
  QStringList boxes_mark(const observations::Entry_echo& echo);
  QString line_missing() const;
  void previews_out();

  bool japanese() const;
  QString either(const char* in_japanese, const char* in_english) const;

  session::Session& session_;
  session::Ports& ports_;
  observations::Entry_boxes as_read_;  // the boxes before the person changed any
  int shown_record_ = 0;               // 0: the panel was closed
  bool filling_ = false;               // the program itself sets widgets now

  std::array<QLineEdit*, 9> texts_{};  // Text14 by index, and Text13
  QComboBox *Combo1_ = nullptr, *Combo2_ = nullptr, *Combo3_ = nullptr, *Combo6_ = nullptr, *Combo7_ = nullptr;
  QCheckBox *Check1_ = nullptr, *Check7_ = nullptr, *Check9_ = nullptr;
  Colour_button *mark_colour_ = nullptr, *line_colour_ = nullptr;
  Mark_preview *mark_preview_ = nullptr, *symbol_preview_ = nullptr;
  QLineEdit* Label3_ = nullptr;
  QPlainTextEdit* memo_ = nullptr;
  QPushButton* pick_ = nullptr;
  QLabel *title_ = nullptr, *numbering_ = nullptr, *line_count_ = nullptr;
  QWidget *form_ = nullptr, *echo_box_ = nullptr;
  QScrollArea *area_ = nullptr, *notes_area_ = nullptr;
};

}  // namespace ui
