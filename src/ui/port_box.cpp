#include "ui/port_box.h"

#include <QTimer>

#include <algorithm>
#include <utility>

#include "platform/numbers.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

constexpr int usual_numbers = 22;
constexpr int largest_number = 99;
constexpr int look_again_every = 1000;  // milliseconds

bool are_same(const std::vector<platform::Serial_device>& a, const std::vector<platform::Serial_device>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
    return one.number == other.number && one.path == other.path && one.name == other.name;
  });
}

}  // namespace

Port_box::Port_box(std::function<std::vector<platform::Serial_device>()> devices, QWidget* parent)
    : QComboBox(parent), devices_(std::move(devices)), look_again_(new QTimer(this)) {
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(30);
  for (int number = 1; number <= usual_numbers; ++number) row_of(number);
  connect(look_again_, &QTimer::timeout, this, &Port_box::refresh);
  look_again_->setInterval(look_again_every);
  refresh();
}

std::string Port_box::number() const {
  return platform::format_number(currentData().toInt(), "00");
}

void Port_box::set_number(const std::string& number) {
  const double value = platform::val(number);
  if (value >= 1 && value <= largest_number) setCurrentIndex(row_of(static_cast<int>(value)));
}

void Port_box::refresh() {
  std::vector<platform::Serial_device> found = devices_();
  if (are_same(found, plugged_in_)) return;
  plugged_in_ = std::move(found);
  for (const platform::Serial_device& device : plugged_in_)
    if (device.number <= largest_number) row_of(device.number);
  for (int row = 0; row < count(); ++row) setItemText(row, caption_of(itemData(row).toInt()));
}

// The row of a number, which is made in its place where there is none.
int Port_box::row_of(int number) {
  int row = 0;
  while (row < count() && itemData(row).toInt() < number) ++row;
  if (row == count() || itemData(row).toInt() != number) insertItem(row, caption_of(number), number);
  return row;
}

QString Port_box::caption_of(int number) const {
  const QString digits = to_toolkit(platform::format_number(number, "00"));
  for (const platform::Serial_device& device : plugged_in_)
    if (device.number == number) {
      const QString path = to_toolkit(device.path).section('/', -1);
      return digits + "   " + path + (device.name.empty() ? QString() : " (" + to_toolkit(device.name) + ")");
    }
  return digits;
}

void Port_box::showEvent(QShowEvent* event) {
  QComboBox::showEvent(event);
  refresh();
  look_again_->start();
}

void Port_box::hideEvent(QHideEvent* event) {
  look_again_->stop();
  QComboBox::hideEvent(event);
}

}  // namespace ui
