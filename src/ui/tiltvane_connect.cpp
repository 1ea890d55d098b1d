#include "ui/tiltvane_connect.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QVBoxLayout>

#include "core/language.h"
#include "observations/declination.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "ui/either.h"
#include "ui/guard.h"
#include "ui/port_box.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

using instruments::Link_timer;
using instruments::Status_colour;

constexpr int tick_every = 200;   // milliseconds: at 9600 baud some 190 bytes
constexpr int blink_every = 500;  // milliseconds
constexpr int largest_count = 999;
constexpr int note_width = 460;
constexpr int page_width = 680;
constexpr int number_width = 110;
constexpr double units_per_degree = 100'000;

// Readable on the window's ground, in its light and its dark form.
const char* colour_name(Status_colour colour, bool dark) {
  switch (colour) {
    case Status_colour::magenta:
      return dark ? "#ff80ff" : "#b000b0";
    case Status_colour::blue:
      return dark ? "#8ab4ff" : "#0000e0";
    case Status_colour::red:
      return dark ? "#ff8080" : "#d00000";
    default:
      return dark ? "#ffffff" : "#000000";
  }
}

// A label that breaks its lines and leaves room for all of them at the narrowest.
QLabel* note(const QString& text, const char* name) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->ensurePolished();
  label->setMinimumSize(note_width, label->heightForWidth(note_width));
  return label;
}

QPushButton* button(const QString& caption, const char* name, const QString& hint) {
  auto* made = new QPushButton(caption);
  made->setObjectName(name);
  made->setAutoDefault(false);
  made->setToolTip(hint);
  return made;
}

}  // namespace

Tiltvane_connect::Tiltvane_connect(session::Session& session, session::Ports& ports, instruments::Tiltvane_boxes& boxes,
                                   bool full, QWidget* parent)
    : QWidget(parent),
      session_(session),
      ports_(ports),
      boxes_(boxes),
      serial_(ports.files, session.settings.program_path),
      link_ports_{serial_, ports.files, ports.prompts, ports.clock, session.settings.program_path, full},
      japanese_(core::is_japanese(session.settings.language)),
      full_(full) {
  lay_out();
  if (full_) take_model_at_first_use();
  connect_all();
  take_boxes();
  show_offer();
  show_link();
}

QString Tiltvane_connect::either(const char* in_japanese, const char* in_english) const {
  return Either{japanese_}(in_japanese, in_english);
}

void Tiltvane_connect::lay_out() {
  // A page of few boxes: on a wide window it keeps to its middle.
  auto* row = new QHBoxLayout(this);
  auto* page = new QWidget;
  page->setMaximumWidth(page_width);
  row->addStretch(1);
  row->addWidget(page, 100);
  row->addStretch(1);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  add_offer(column);
  QVBoxLayout* connection = add_group(column, either("接続", "Connection"), "group_connection");
  add_notes(connection);
  add_boxes(connection);
  if (full_) add_declination(add_group(column, either("偏角", "Declination"), "group_declination"));
  add_status(add_group(column, either("受信", "Reading"), "group_reading"));
  column->addStretch(1);
  for (QTimer** timer : {&Timer1_, &Timer3_, &Timer5_}) *timer = new QTimer(this);
  Timer1_->setObjectName("Timer1");
  Timer3_->setObjectName("Timer3");
  Timer5_->setObjectName("Timer5");
  Timer1_->setInterval(tick_every);
  Timer3_->setInterval(tick_every);
  Timer5_->setInterval(blink_every);
}

QVBoxLayout* Tiltvane_connect::add_group(QVBoxLayout* column, const QString& title, const char* name) {
  auto* group = new QGroupBox(title);
  group->setObjectName(name);
  column->addWidget(group);
  return new QVBoxLayout(group);
}

void Tiltvane_connect::add_notes(QVBoxLayout* column) {
  if (!full_) {
    column->addWidget(note(either("ケーブルを接続して下さい。", "Connect the cable."), "note_cable"));
    return;
  }
  column->addWidget(note(
      either("TiltvaneとパソコンをUSB-シリアル変換ケーブルで接続", "Connect Tiltvane and PC by a USB-serial cable."),
      "note_usb"));
  column->addWidget(note(either("Bluetooth対応のTiltvaneの場合はパソコンのBluetooth設定で機器接続を行ってください。",
                                "Connect Tiltvane and PC by Bluetooth."),
                         "note_bluetooth"));
}

void Tiltvane_connect::add_boxes(QVBoxLayout* column) {
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  platform::Files& files = ports_.files;
  Combo8_ = new Port_box(
      [&files, program = session_.settings.program_path] { return platform::serial_devices(files, program); });
  Combo8_->setObjectName("Combo8");
  Combo8_->setAccessibleName(either("接続COMポート番号", "COM port"));
  Combo8_->setToolTip(either("機器をつなぐと、番号の横に名前が表示されます。",
                             "The name of a device appears beside its number when it is plugged in."));
  Combo8_->set_number(boxes_.Combo8);
  form->addRow(either("接続COMポート番号(&P)", "COM &port"), Combo8_);

  Text15_ = new QLineEdit(to_toolkit(boxes_.Text15));
  Text15_->setObjectName("Text15");
  Text15_->setAccessibleName(either("読込みデータ数", "Records to read"));
  Text15_->setValidator(new QIntValidator(1, largest_count, Text15_));
  Text15_->setToolTip(either("読み込むデータの数、1から999。999ですべてを読み込みます。",
                             "How many records are read, 1 to 999; 999 reads all of them."));
  Text15_->setMaximumWidth(number_width);
  form->addRow(either("読込みデータ数(&N)", "&Records to read"), Text15_);
  column->addLayout(form);
  if (!full_) return;
  Check3_ =
      new QCheckBox(either("接続COMポート番号を収録時に自動で取得する。(&A)", "&Find the COM port at each reading"));
  Check3_->setObjectName("Check3");
  Check3_->setToolTip(either("ポート01から50までを順に調べます。1ポートに約2秒かかります。",
                             "Tries the ports from 01 to 50, about two seconds each."));
  Check3_->setChecked(boxes_.Check3 != 0);
  column->addWidget(Check3_);
}

void Tiltvane_connect::add_declination(QVBoxLayout* column) {
  Text1_ = new QLineEdit(to_toolkit(boxes_.Text1));
  Text1_->setObjectName("Text1");
  Text1_->setAccessibleName(either("偏角", "Declination"));
  Text1_->setMaximumWidth(number_width);
  Text1_->setValidator(new QRegularExpressionValidator(QRegularExpression("[-+]?[0-9]{0,3}(\\.[0-9]{0,6})?"), Text1_));
  text_box_watch(Text1_);
  text_box_hint(Text1_, japanese_,
                either("磁北を真北に直す角（度）。東偏が正、西偏が負です。",
                       "Degrees that turn magnetic north to true north; east is positive, west negative."));
  Command17_ = button(either("保存(&S)", "&Save"), "Command17",
                      either("この偏角を保存し、次回もこの値から始めます。",
                             "Saves this declination; the dialog begins with it the next time."));
  model_ = button({}, "model", {});
  auto* label = new QLabel(either("度、東が正(&D)", "&Degrees, east is positive"));
  label->setBuddy(Text1_);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(Text1_);
  row->addWidget(model_);
  row->addStretch(1);
  row->addWidget(Command17_);
  column->addLayout(row);
  show_model();
}

void Tiltvane_connect::add_status(QVBoxLayout* column) {
  status_ = new QLabel;
  status_->setObjectName("status");
  QFont large = status_->font();
  large.setPointSizeF(large.pointSizeF() * 1.3);
  large.setBold(true);
  status_->setFont(large);
  status_->setMinimumHeight(QFontMetrics(large).height() + 8);
  column->addWidget(status_);
  progress_ = new QProgressBar;
  progress_->setObjectName("progress");
  progress_->setTextVisible(false);
  QSizePolicy keeps_its_place = progress_->sizePolicy();
  keeps_its_place.setRetainSizeWhenHidden(true);
  progress_->setSizePolicy(keeps_its_place);
  column->addWidget(progress_);
  told_ = new QLabel;
  told_->setObjectName("told");
  told_->setMinimumHeight(told_->fontMetrics().height());
  column->addWidget(told_);

  start_ = new QPushButton(either("読込み実行(&R)", "Start readin&g"));
  start_->setObjectName("start");
  start_->setDefault(true);
  QSizePolicy stays = start_->sizePolicy();
  stays.setRetainSizeWhenHidden(true);
  start_->setSizePolicy(stays);
  Command50_ = button(either("中止(&T)", "S&top"), "Command50",
                      either("受信をやめてポートを閉じます。", "Ends the reading and closes the port."));
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(Command50_);
  row->addWidget(start_);
  column->addLayout(row);
}

void Tiltvane_connect::add_offer(QVBoxLayout* column) {
  offer_ = new QFrame;
  offer_->setObjectName("offer");
  offer_->setFrameShape(QFrame::StyledPanel);
  auto* row = new QHBoxLayout(offer_);
  offer_text_ = new QLabel;
  offer_text_->setObjectName("offer_text");
  offer_text_->setWordWrap(true);
  offer_read_ = button(either("読み込む(&B)", "Read it &back"), "read_again",
                       either("受信済みのデータから表を作ります。", "Makes the table of what had come."));
  row->addWidget(offer_text_, 1);
  row->addWidget(offer_read_);
  column->addWidget(offer_);
}

void Tiltvane_connect::connect_all() {
  connect(start_, &QPushButton::clicked, this, &Tiltvane_connect::start);
  connect(Command50_, &QPushButton::clicked, this, &Tiltvane_connect::stop);
  connect(offer_read_, &QPushButton::clicked, this, &Tiltvane_connect::read_again);
  connect(Timer1_, &QTimer::timeout, this, &Tiltvane_connect::tick);
  connect(Timer3_, &QTimer::timeout, this, &Tiltvane_connect::tick);
  connect(Timer5_, &QTimer::timeout, this, [this] {
    label_shown_ = !label_shown_;
    show_status();
  });
  connect(Combo8_, &QComboBox::currentIndexChanged, this, [this] { boxes_.Combo8 = Combo8_->number(); });
  connect(Text15_, &QLineEdit::textChanged, this, [this] { take_boxes(); });
  if (!full_) return;
  connect(Check3_, &QCheckBox::toggled, this, [this] { take_boxes(); });
  connect(Text1_, &QLineEdit::textChanged, this, [this] {
    take_boxes();
    emit declination_changed();
  });
  connect(Command17_, &QPushButton::clicked, this, &Tiltvane_connect::save_declination);
  connect(model_, &QPushButton::clicked, this, &Tiltvane_connect::use_model);
}

void Tiltvane_connect::take_boxes() {
  boxes_.Combo8 = Combo8_->number();
  boxes_.Text15 = from_toolkit(Text15_->text());
  start_->setEnabled(Text15_->hasAcceptableInput());
  if (!full_) return;
  boxes_.Check3 = Check3_->isChecked() ? 1 : 0;
  boxes_.Text1 = from_toolkit(Text1_->text());
}

// Both timers rest while a procedure works, since it may show a message, during which events go on. The label then
// tells how the talk stands by now.
void Tiltvane_connect::run(const std::function<bool()>& procedure) {
  Timer1_->stop();
  Timer3_->stop();
  QTimer::singleShot(0, this, &Tiltvane_connect::show_link);
  bool read = false;
  guarded(ports_.prompts, [&] { read = procedure(); });
  show_link();
  if (link_.timer == Link_timer::none) show_offer();
  if (!read) return;
  show_done();
  emit memory_read();
}

void Tiltvane_connect::start() {
  take_boxes();
  if (!start_->isEnabled()) return;
  run([this] {
    // The small dialog reads from the port that is set.
    if (full_)
      instruments::link_start(link_, boxes_, link_ports_);
    else
      instruments::GeoRead_start(link_, boxes_, link_ports_);
    return false;
  });
}

void Tiltvane_connect::tick() {
  run([this] {
    instruments::timer1_tick(link_, boxes_, link_ports_);
    return instruments::timer3_tick(link_, boxes_, link_ports_);
  });
}

void Tiltvane_connect::read_again() {
  take_boxes();
  run([this] { return instruments::read_again(link_, boxes_, link_ports_); });
}

void Tiltvane_connect::stop() {
  if (!is_running()) return;
  instruments::Command50(link_, serial_);
  show_link();
  show_offer();
}

void Tiltvane_connect::save_declination() {
  guarded(ports_.prompts,
          [this] { observations::henkaku_w(ports_.files, session_.settings.program_path, boxes_.Text1); });
}

void Tiltvane_connect::use_model() {
  Text1_->setText(to_toolkit(model_declination_));
}

// The model's declination at the middle of the sheet that is shown.
void Tiltvane_connect::show_model() {
  const maps::Canvas& canvas = session_.canvas;
  model_declination_.clear();
  QString reason = either("緯度経度のある地図を開くと、その場所の偏角を計算できます。",
                          "Open a map with latitude and longitude to have the declination of its place computed.");
  if (session_.sheet_shown() && canvas.is_geographic) {
    const double longitude = (double{canvas.geo_x0} + double{canvas.geo_x1}) / 2 / units_per_degree;
    const double latitude = (double{canvas.geo_y0} + double{canvas.geo_y1}) / 2 / units_per_degree;
    try {
      const double degrees = observations::declination(ports_.files, session_.settings.program_path,
                                                       session_.coefficients, latitude, longitude);
      model_declination_ = platform::format_number(degrees, "##0.0");
    } catch (const platform::Failure&) {
      reason = either("磁気モデルの係数ファイル igrf10.coef がありません。",
                      "There is no coefficient file igrf10.coef of the magnetic model.");
    }
  }
  const bool known = !model_declination_.empty();
  model_->setEnabled(known);
  model_->setText(
      known ? either("地図の位置の値 %1(&M)", "Use %1 of the &map's place").arg(to_toolkit(model_declination_))
            : either("地図の位置の値(&M)", "Use the &map's place"));
  model_->setToolTip(known ? either("表示中の地図の中央での国際標準磁場（2005年）の偏角を入力します。",
                                    "Takes the declination of the reference field (2005) at the middle of the map.")
                           : reason);
}

// Before anything was ever stored the map's place knows better than a declination of 0.
void Tiltvane_connect::take_model_at_first_use() {
  const std::string& program = session_.settings.program_path;
  for (const char* stored : {"henkaku.dat", "RSPORT.dat"})
    if (ports_.files.length(platform::join_path(program, stored)) > 0) return;
  if (!model_declination_.empty()) use_model();
}

void Tiltvane_connect::show_link() {
  const bool running = is_running();
  if (link_.timer == Link_timer::Timer1) Timer1_->start();
  if (link_.timer == Link_timer::Timer3) Timer3_->start();
  if (link_.status.blinks && !Timer5_->isActive()) Timer5_->start();
  Combo8_->set_number(boxes_.Combo8);
  Combo8_->setEnabled(!running);
  Text15_->setEnabled(!running);
  if (Check3_) Check3_->setEnabled(!running);
  if (running) offer_->hide();
  start_->setVisible(!running);
  Command50_->setEnabled(running);
  show_status();
  show_progress();
}

void Tiltvane_connect::show_status() {
  if (!link_.status.blinks) {
    Timer5_->stop();
    label_shown_ = true;
  }
  const bool dark = palette().window().color().lightness() < 128;
  QPalette colours = status_->palette();
  colours.setColor(QPalette::WindowText, QColor(colour_name(link_.status.colour, dark)));
  status_->setPalette(colours);
  status_->setText(label_shown_ ? either(link_.status.text.japanese, link_.status.text.english) : QString());
}

void Tiltvane_connect::show_progress() {
  progress_->setVisible(is_running());
  if (link_.timer == Link_timer::Timer1) {
    progress_->setRange(0, instruments::last_port);
    progress_->setValue(link_.port);
    told_->setText(either("ポート %1 を調べています。", "Trying port %1.").arg(link_.port, 2, 10, QChar('0')));
  } else if (link_.timer == Link_timer::Timer3) {
    // How many records a whole memory has is not known before its end.
    const int count = Text15_->text().toInt();
    progress_->setRange(0, count == largest_count ? 0 : count);
    progress_->setValue(std::min(count, static_cast<int>(link_.lines)));
    told_->setText(either("%1 行を受信しました。", "Lines received: %1.").arg(link_.lines));
  } else {
    told_->setText(either("Tiltvaneの電源を入れてから実行してください。", "Switch Tiltvane on before you start."));
  }
}

void Tiltvane_connect::show_offer() {
  const instruments::Broken_download broken =
      instruments::broken_download(ports_.files, session_.settings.program_path);
  QString text = either("途中で切れた受信があります（%1 件）。", "A download broke off. Records that had come: %1.")
                     .arg(broken.records);
  if (broken.cut) text += either("途切れた最後の行は除かれます。", " The unfinished last line is left out.");
  offer_text_->setText(text);
  offer_->setVisible(!broken.path.empty());
}

void Tiltvane_connect::show_done() {
  told_->setText(either("%1 件を読み込みました。", "Records read: %1.").arg(link_.record_count));
}

}  // namespace ui
