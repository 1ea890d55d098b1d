#include "ui/gps_data_out.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/language.h"
#include "ui/either.h"
#include "ui/guard.h"
#include "ui/toolkit_text.h"

namespace ui {

Gps_data_out::Gps_data_out(session::Session& session, session::Ports& ports, platform::Serial_port& port,
                           QWidget* parent)
    : QDialog(parent),
      session_(session),
      ports_(ports),
      port_(port),
      japanese_(core::is_japanese(session.settings.language)),
      lines_(instruments::gps_data_r(ports.files, session.settings.program_path)) {
  setObjectName("GPS_DATA_OUT");
  lay_out();
  connect_all();
  show_state();
}

Gps_data_out::~Gps_data_out() {
  instruments::replay_Command2(port_);
}

QString Gps_data_out::either(const char* in_japanese, const char* in_english) const {
  return Either{japanese_}(in_japanese, in_english);
}

void Gps_data_out::lay_out() {
  setWindowTitle(either("GPSデータの送信", "Replay GPS Sentences"));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Combo1_ = new QComboBox;
  Combo1_->setObjectName("Combo1");
  Combo1_->setAccessibleName(either("ポート番号", "Port number"));
  Combo1_->setToolTip(either("文を送り出すシリアルポートの番号", "Number of the serial port that the sentences go to"));
  Combo1_->setPlaceholderText(either("選択して下さい", "Choose one"));
  Combo1_->setMinimumWidth(240);
  for (int number = 1; number <= instruments::replay_port_limit; ++number)
    Combo1_->addItem(QString("%1").arg(number), number);
  Combo1_->setCurrentIndex(-1);
  form->addRow(either("ポート番号(&P)", "&Port number"), Combo1_);
  Label2_ = new QLabel("--:--:--");
  Label2_->setObjectName("Label2");
  form->addRow(either("送信時刻", "Sent at"), Label2_);
  state_ = new QLabel;
  state_->setObjectName("state");
  state_->setTextFormat(Qt::PlainText);
  form->addRow(either("状態", "State"), state_);
  column->addLayout(form);
  column->addStretch(1);

  Command1_ = new QPushButton(either("開始(&S)", "&Start"));
  Command1_->setObjectName("Command1");
  Command1_->setDefault(true);
  Command1_->setToolTip(
      either("GPS_DATA.DATの文を繰り返し送信します。", "Sends the sentences of GPS_DATA.DAT over and over."));
  Command2_ = new QPushButton(either("停止(&T)", "S&top"));
  Command2_->setObjectName("Command2");
  Command2_->setAutoDefault(false);
  Command2_->setToolTip(either("送信をやめ、ポートを閉じます。", "Stops sending and closes the port."));
  close_ = new QPushButton(either("閉じる(&C)", "&Close"));
  close_->setObjectName("close");
  close_->setAutoDefault(false);
  auto* row = new QHBoxLayout;
  row->addWidget(Command1_);
  row->addWidget(Command2_);
  row->addStretch(1);
  row->addWidget(close_);
  column->addLayout(row);
}

void Gps_data_out::connect_all() {
  connect(Command1_, &QPushButton::clicked, this, &Gps_data_out::start);
  connect(Command2_, &QPushButton::clicked, this, &Gps_data_out::stop);
  connect(close_, &QPushButton::clicked, this, &QDialog::reject);
  connect(&Timer1_, &QTimer::timeout, this, &Gps_data_out::tick);
}

void Gps_data_out::show_devices(const std::vector<platform::Serial_device>& devices) {
  for (const platform::Serial_device& device : devices) {
    const int row = Combo1_->findData(device.number);
    if (row < 0) continue;
    const QString name = to_toolkit(device.name.empty() ? device.path : device.name);
    Combo1_->setItemText(row, QString("%1  %2").arg(device.number).arg(name));
  }
}

void Gps_data_out::start() {
  boxes_.Combo1 = Combo1_->currentIndex() < 0 ? "" : from_toolkit(Combo1_->currentData().toString());
  const std::string& speed = session_.boxes.Combo5;
  bool opened = false;
  guarded(ports_.prompts, [&] { opened = instruments::replay_Command1(boxes_, port_, speed, ports_.prompts); });
  has_gone_ = false;
  if (opened) {
    Timer1_.start(instruments::replay_interval(lines_, speed));
    tick();
  }
  show_state();
}

void Gps_data_out::stop() {
  Timer1_.stop();
  instruments::replay_Command2(port_);
  show_state();
}

void Gps_data_out::tick() {
  if (!instruments::replay_Timer1(boxes_, lines_, port_, ports_.clock)) {
    has_gone_ = true;
    stop();
  }
  Label2_->setText(to_toolkit(boxes_.Label2));
}

void Gps_data_out::show_state() {
  const bool plays = Timer1_.isActive();
  if (plays)
    state_->setText(either("送信中", "Sending"));
  else if (has_gone_)
    state_->setText(either("ポートが切断されました", "The port has gone"));
  else if (lines_.empty())
    state_->setText(either("GPS_DATA.DATに文がありません", "GPS_DATA.DAT has no sentences"));
  else
    state_->setText(either("停止中（%1行）", "Stopped (%1 lines)").arg(lines_.size()));
  Combo1_->setEnabled(!plays);
  Command1_->setEnabled(!plays && !lines_.empty());
  Command2_->setEnabled(plays);
}

void Gps_data_out::done(int result) {
  stop();
  QDialog::done(result);
}

}  // namespace ui
