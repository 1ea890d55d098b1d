// The talk with the clinometer as a page: port, count, declination, the label that tells how it stands, start and stop,
// and the offer to read a download that broke off. The full dialog shows all of it, the small one the port and the
// buttons.
#pragma once

#include <QWidget>

#include <functional>

#include "core/session/session.h"
#include "instruments/tiltvane_boxes.h"
#include "instruments/tiltvane_link.h"
#include "platform/qt/qt_serial_port.h"

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTimer;
class QVBoxLayout;

namespace ui {

class Port_box;

class Tiltvane_connect : public QWidget {
  Q_OBJECT

 public:
  Tiltvane_connect(session::Session& session, session::Ports& ports, instruments::Tiltvane_boxes& boxes, bool full,
                   QWidget* parent = nullptr);

  // Ends what runs and closes the port.
  void stop();
  bool is_running() const { return link_.timer != instruments::Link_timer::none; }
  const instruments::Tiltvane_link& link() const { return link_; }

 signals:
  // \TMP2.TMP holds what was read.
  void memory_read();
  // Text1 has another text, which the boxes have too.
  void declination_changed();

 private:
  void lay_out();
  void add_notes(QVBoxLayout* column);
  void add_boxes(QVBoxLayout* column);
  QVBoxLayout* add_group(QVBoxLayout* column, const QString& title, const char* name);
  void add_declination(QVBoxLayout* column);
  void add_status(QVBoxLayout* column);
  void add_offer(QVBoxLayout* column);
  void connect_all();
  void take_boxes();
  void run(const std::function<bool()>& procedure);
  void start();
  void tick();
  void read_again();
  void save_declination();
  void use_model();
  void take_model_at_first_use();
  void show_link();
  void show_status();
  void show_progress();
  void show_offer();
  void show_done();
  void show_model();
  QString either(const char* in_japanese, const char* in_english) const;

  session::Session& session_;
  session::Ports& ports_;
  instruments::Tiltvane_boxes& boxes_;
  platform::Qt_serial_port serial_;
  instruments::Tiltvane_link link_;
  instruments::Link_ports link_ports_;
  const bool japanese_;
  const bool full_;
  bool label_shown_ = true;  // while it blinks
  std::string model_declination_;

  Port_box* Combo8_ = nullptr;
  QLineEdit* Text15_ = nullptr;
  QLineEdit* Text1_ = nullptr;
  QCheckBox* Check3_ = nullptr;
  QPushButton* Command17_ = nullptr;
  QPushButton* model_ = nullptr;
  QPushButton* start_ = nullptr;
  QPushButton* Command50_ = nullptr;
  QLabel* status_ = nullptr;
  QLabel* told_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QFrame* offer_ = nullptr;
  QLabel* offer_text_ = nullptr;
  QPushButton* offer_read_ = nullptr;
  QTimer* Timer1_ = nullptr;
  QTimer* Timer3_ = nullptr;
  QTimer* Timer5_ = nullptr;
};

}  // namespace ui
