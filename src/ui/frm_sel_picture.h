// The dialog `frm_sel_picture`, "画像とテキストの登録": pictures, sounds and a text of a point, and points from the
// photos of a folder. Its sources: frm_sel_picture.cpp does what the buttons do, _layout builds the window.
#pragma once

#include <QDialog>
#include <QImage>

#include <array>
#include <functional>
#include <map>

#include "core/session/session.h"
#include "observations/picture_store.h"

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QToolButton;

namespace ui {

class Folder_box;
class Picture_view;
class Thumbnails;

class Frm_sel_picture : public QDialog {
  Q_OBJECT

 public:
  // `edit`: for a point that is in the store already; its position comes from there, else from the entry panel.
  Frm_sel_picture(session::Session& session, session::Ports& ports, bool edit, QWidget* parent = nullptr);
  ~Frm_sel_picture() override;

 signals:
  void registered();  // files of the project have changed

 protected:
  void changeEvent(QEvent* event) override;
  void reject() override;

 private:
  static constexpr int places = observations::picture_places;
  enum class Kind { none, source, place, stored };
  static constexpr int every_row = -1;
  // What the preview shows.
  struct Shown {
    Kind kind = Kind::none;
    int row = 0;
  };

  // frm_sel_picture_layout.cpp
  void lay_out();
  QWidget* build_source();
  QWidget* build_preview();
  QBoxLayout* build_places();
  QWidget* build_point();
  void add_name(QFormLayout* form);
  void add_position(QFormLayout* form);
  QBoxLayout* build_end();
  QPushButton* add_button(QBoxLayout* row, const char* name, const QString& caption, const QString& hint);
  Folder_box* add_folder(const char* name, const QString& caption, const QString& hint);
  QString either(const char* in_japanese, const char* in_english) const;

  // frm_sel_picture.cpp
  void connect_all();
  observations::Picture_context context();
  bool guarded(const std::function<void()>& procedure);
  void boxes_from_widgets();
  void boxes_to_widgets();
  void folder_chosen();
  QImage sound_picture(QSize size) const;
  void add_item(QListWidget* list, const std::string& name);
  void fill_source();
  void fill_stored();
  void fill_points();
  void fill_text();
  void show_places();
  void show_state();
  void preview(Shown shown);
  std::string shown_path() const;
  void ask(const std::string& path, int quarter_turns, Shown for_what, bool urgent = false);
  void forget(Kind kind, int row = every_row);
  void picture_made(int ticket, const QImage& image);
  void take(int place);
  void take_free();
  void empty_place();
  void rotate(bool clockwise);
  void point_named();
  void folder_named();
  void remove_stored();
  void play();
  void Command5();
  void Command7();
  bool holds_something() const;
  void photo_read();

  session::Session& session_;
  session::Ports& ports_;
  const bool edit_;
  const bool japanese_;
  observations::Picture_boxes boxes_;
  std::array<QImage, places> place_pictures_;
  std::map<int, Shown> asked_;  // small pictures that are on their way, by ticket
  Shown shown_;
  int preview_ticket_ = 0;
  Thumbnails* thumbnails_ = nullptr;

  Folder_box* Dir1_ = nullptr;
  Folder_box* Dir2_ = nullptr;
  QListWidget* File1_ = nullptr;
  QListWidget* File2_ = nullptr;
  QComboBox* points_ = nullptr;  // with `edit` only
  QLineEdit* Text1_ = nullptr;
  QLineEdit* Text2_ = nullptr;
  QLineEdit* Text3_ = nullptr;
  QPlainTextEdit* text_ = nullptr;
  Picture_view* view_ = nullptr;
  QLabel* shown_name_ = nullptr;
  QLabel* told_ = nullptr;
  std::array<QToolButton*, places> place_buttons_{};
  std::array<QPushButton*, places> take_buttons_{};
  QPushButton* rotate_left_ = nullptr;
  QPushButton* rotate_right_ = nullptr;
  QPushButton* play_ = nullptr;
  QPushButton* empty_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* photos_ = nullptr;
  QPushButton* open_text_ = nullptr;
  QPushButton* store_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace ui
