// The dialog `GPS_DATA_OUT`: plays stored sentences through a serial port in place of a receiver.
#pragma once

#include <QDialog>
#include <QTimer>

#include "core/session/session.h"
#include "instruments/replay.h"
#include "platform/serial_port.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace ui {

class Gps_data_out : public QDialog {
  Q_OBJECT

 public:
  // `port` is the dialog's own, not that of the receiver; it is closed when the dialog goes.
  Gps_data_out(session::Session& session, session::Ports& ports, platform::Serial_port& port,
               QWidget* parent = nullptr);
  ~Gps_data_out() override;

  // Names of the machine's devices, shown beside their numbers.
  void show_devices(const std::vector<platform::Serial_device>& devices);

  void done(int result) override;

 private:
  void lay_out();
  void connect_all();
  void start();
  void stop();
  void tick();
  void show_state();
  QString either(const char* in_japanese, const char* in_english) const;

  session::Session& session_;
  session::Ports& ports_;
  platform::Serial_port& port_;
  bool japanese_;
  bool has_gone_ = false;  // the port was lost while it was played
  instruments::Replay_boxes boxes_;
  std::vector<std::string> lines_;
  QTimer Timer1_;
  QComboBox* Combo1_ = nullptr;
  QLabel* Label2_ = nullptr;
  QLabel* state_ = nullptr;
  QPushButton* Command1_ = nullptr;
  QPushButton* Command2_ = nullptr;
  QPushButton* close_ = nullptr;
};

}  // namespace ui
