// A box for the number of a serial port: "01" to "22" and what is plugged in beyond, each with the device that stands
// for it now. The devices are looked at again each second while the box is shown.
#pragma once

#include <QComboBox>

#include <functional>
#include <string>
#include <vector>

#include "platform/serial_port.h"

class QTimer;

namespace ui {

class Port_box : public QComboBox {
  Q_OBJECT

 public:
  // `devices` tells what is plugged in.
  Port_box(std::function<std::vector<platform::Serial_device>()> devices, QWidget* parent = nullptr);

  // Two digits, "05".
  std::string number() const;
  // A number that the box doesn't have yet is added; a text that is no port's number is left out.
  void set_number(const std::string& number);
  // Puts the names of what is plugged in beside the numbers; the choice stays.
  void refresh();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  int row_of(int number);
  QString caption_of(int number) const;

  std::function<std::vector<platform::Serial_device>()> devices_;
  std::vector<platform::Serial_device> plugged_in_;
  QTimer* look_again_;
};

}  // namespace ui
