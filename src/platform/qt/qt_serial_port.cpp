#include "platform/qt/qt_serial_port.h"

#include <QDir>
#include <QFileInfo>
#include <QSerialPort>
#include <QSerialPortInfo>

#include <algorithm>
#include <utility>

#include "platform/natural_order.h"
#include "platform/numbers.h"

namespace platform {

namespace {

constexpr int largest_linked_number = 99;  // comNN has two digits

#ifdef Q_OS_WIN
constexpr bool devices_have_numbers = true;
#else
constexpr bool devices_have_numbers = false;
#endif

QString link_path(Files& files, const std::string& program_path, int number) {
  const std::string name = "com" + format_number(number, "00");
  return QString::fromStdString(files.native_path(join_path(join_path(program_path, "ports"), name)));
}

// A link whose device is unplugged still stands for its number: another device must not take its place.
bool is_there(const QString& path) {
  const QFileInfo link(path);
  return link.isSymLink() || link.exists();
}

QList<QSerialPortInfo> machine_devices() {
  QList<QSerialPortInfo> devices = QSerialPortInfo::availablePorts();
  std::sort(devices.begin(), devices.end(), [](const QSerialPortInfo& a, const QSerialPortInfo& b) {
    return comes_before(a.portName().toStdString(), b.portName().toStdString());
  });
  return devices;
}

int number_of(const QSerialPortInfo& device, qsizetype row) {
  if (!devices_have_numbers) return static_cast<int>(row) + 1;
  const QString name = device.portName();
  return name.startsWith("COM", Qt::CaseInsensitive) ? name.mid(3).toInt() : 0;
}

std::string name_of(const QSerialPortInfo& device) {
  QStringList words;
  for (const QString& word : {device.description(), device.manufacturer()})
    if (!word.isEmpty() && !words.contains(word)) words.append(word);
  return words.join(", ").toStdString();
}

QSerialPort::Parity parity_of(char letter) {
  switch (letter) {
    case 'e':
      return QSerialPort::EvenParity;
    case 'o':
      return QSerialPort::OddParity;
    case 'm':
      return QSerialPort::MarkParity;
    case 's':
      return QSerialPort::SpaceParity;
    default:
      return QSerialPort::NoParity;
  }
}

QSerialPort::StopBits stop_bits_of(double count) {
  if (count == 2) return QSerialPort::TwoStop;
  return count == 1.5 ? QSerialPort::OneAndHalfStop : QSerialPort::OneStop;
}

}  // namespace

bool comes_before(const std::string& device, const std::string& other) {
  const int order = natural_order(device, other);
  return order == 0 ? device < other : order < 0;
}

std::string serial_device_path(Files& files, const std::string& program_path, int number) {
  if (number < 1) return {};
  if (number <= largest_linked_number) {
    const QString link = link_path(files, program_path, number);
    if (is_there(link)) return link.toStdString();
  }
  const QList<QSerialPortInfo> devices = machine_devices();
  for (qsizetype row = 0; row < devices.size(); ++row)
    if (number_of(devices[row], row) == number) return devices[row].systemLocation().toStdString();
  return {};
}

std::vector<Serial_device> serial_devices(Files& files, const std::string& program_path) {
  std::vector<Serial_device> found;
  const auto is_taken = [&](int number) {
    return std::any_of(found.begin(), found.end(),
                       [&](const Serial_device& device) { return device.number == number; });
  };
  const QDir links(QString::fromStdString(files.native_path(join_path(program_path, "ports"))));
  const auto kinds = QDir::Files | QDir::System | QDir::NoDotAndDotDot;
  for (const QFileInfo& link : links.entryInfoList({"com??"}, kinds, QDir::Name)) {
    const int number = link.fileName().mid(3).toInt();
    if (number < 1 || is_taken(number) || !link.exists()) continue;
    found.push_back({number, link.filePath().toStdString(), QFileInfo(link.symLinkTarget()).filePath().toStdString()});
  }
  const QList<QSerialPortInfo> devices = machine_devices();
  for (qsizetype row = 0; row < devices.size(); ++row) {
    const int number = number_of(devices[row], row);
    if (number < 1 || is_taken(number)) continue;
    found.push_back({number, devices[row].systemLocation().toStdString(), name_of(devices[row])});
  }
  std::sort(found.begin(), found.end(),
            [](const Serial_device& a, const Serial_device& b) { return a.number < b.number; });
  return found;
}

Line_settings line_settings_of(const std::string& text) {
  Line_settings line;
  const QStringList parts = QString::fromStdString(text).split(',');
  const auto number = [&](qsizetype part) { return part < parts.size() ? val(parts[part].toStdString()) : 0; };
  if (number(0) >= 1 && number(0) <= 4'000'000) line.baud = static_cast<int>(number(0));
  const QString parity = parts.value(1).trimmed().toLower();
  if (parity.size() == 1 && QString("neoms").contains(parity)) line.parity = parity[0].toLatin1();
  if (number(2) >= 5 && number(2) <= 8) line.data_bits = static_cast<int>(number(2));
  if (number(3) == 1.5 || number(3) == 2) line.stop_bits = number(3);
  return line;
}

Qt_serial_port::Qt_serial_port(Files& files, std::string program_path)
    : files_(files), program_path_(std::move(program_path)), port_(std::make_unique<QSerialPort>()) {
  QObject::connect(port_.get(), &QSerialPort::errorOccurred, port_.get(), [this](QSerialPort::SerialPortError error) {
    if (error != QSerialPort::NoError && error != QSerialPort::TimeoutError) failed();
  });
}

Qt_serial_port::~Qt_serial_port() {
  port_->disconnect();
}

void Qt_serial_port::set_port(int number) {
  if (!is_open()) number_ = number;
}

void Qt_serial_port::set_line(const std::string& settings) {
  line_ = line_settings_of(settings);
  if (is_open()) apply_line();
}

void Qt_serial_port::apply_line() {
  port_->setBaudRate(line_.baud);
  port_->setParity(parity_of(line_.parity));
  port_->setDataBits(static_cast<QSerialPort::DataBits>(line_.data_bits));
  port_->setStopBits(stop_bits_of(line_.stop_bits));
  port_->setFlowControl(QSerialPort::NoFlowControl);
}

bool Qt_serial_port::open() {
  if (is_open()) return true;
  close();
  const std::string path = serial_device_path(files_, program_path_, number_);
  if (path.empty()) return false;
  port_->setPortName(QString::fromStdString(path));
  apply_line();
  return port_->open(QIODevice::ReadWrite);
}

void Qt_serial_port::close() {
  if (port_->isOpen()) port_->close();
  gone_ = false;
  rest_.clear();
}

bool Qt_serial_port::is_open() const {
  return port_->isOpen() && !gone_;
}

bool Qt_serial_port::write(std::string_view text) {
  if (!is_open()) return false;
  const bool taken = port_->write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size());
  port_->flush();
  return taken && !gone_;
}

std::string Qt_serial_port::read_all() {
  std::string bytes = std::exchange(rest_, {});
  if (is_open()) bytes += port_->readAll().toStdString();
  return bytes;
}

// The toolkit reports the failure of a device that is gone again and again, until it is closed; that must wait until
// the event is over in which it tells of it.
void Qt_serial_port::failed() {
  if (!port_->isOpen() || gone_) return;
  gone_ = true;
  rest_ += port_->readAll().toStdString();
  QMetaObject::invokeMethod(
      port_.get(),
      [this] {
        if (gone_ && port_->isOpen()) port_->close();
      },
      Qt::QueuedConnection);
}

}  // namespace platform
