#include "ui/gps_state.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>

#include "core/session/position_text.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

using instruments::Gps_light;

constexpr int light_size = 12;  // logical pixels

// Told apart by more than the colour: a light is a ring, a disc, or a disc with a mark in it.
struct Look {
  Gps_light light;
  const char* japanese;
  const char* english;
  QRgb colour;
  bool filled;
  char mark;
};
constexpr Look looks[] = {
    {Gps_light::closed, "ポートは閉じています", "Port closed", 0xff808890, false, 0},
    {Gps_light::open, "受信待ち", "Port open, silent", 0xff2b6cb0, false, 0},
    {Gps_light::bytes, "受信中", "Receiving", 0xff2b6cb0, true, 0},
    {Gps_light::no_fix, "測位中", "Searching for satellites", 0xffc77700, false, 0},
    {Gps_light::fix, "測位済み", "Position found", 0xff1e8449, true, 0},
    {Gps_light::doubtful, "位置が疑わしい", "Position doubtful", 0xffc77700, true, '?'},
    {Gps_light::lost, "10秒以上 測位なし", "Lost for over 10 s", 0xffb03020, true, '!'},
};

const Look& look_of(Gps_light light) {
  for (const Look& look : looks)
    if (look.light == light) return look;
  return looks[0];
}

QPixmap light_picture(const Look& look, qreal scale) {
  QPixmap picture(QSize(light_size, light_size) * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = QColor::fromRgba(look.colour);
  painter.setPen(QPen(colour, 2));
  painter.setBrush(look.filled ? QBrush(colour) : QBrush(Qt::NoBrush));
  painter.drawEllipse(QRectF(1.5, 1.5, light_size - 3, light_size - 3));
  if (look.mark == 0) return picture;
  QFont bold = painter.font();
  bold.setPixelSize(light_size - 3);
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, 0, light_size, light_size), Qt::AlignCenter, QString(QChar(look.mark)));
  return picture;
}

}  // namespace

QString light_text(Gps_light light, bool japanese) {
  const Look& look = look_of(light);
  return QString::fromUtf8(japanese ? look.japanese : look.english);
}

Gps_state::Gps_state(QWidget* parent) : QWidget(parent), light_(new QLabel), Label7_(new QLabel), meaning_(new QLabel) {
  setObjectName("gps_state");
  light_->setObjectName("gps_light");
  Label7_->setObjectName("Label7");
  meaning_->setObjectName("gps_meaning");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 0, 4, 0);
  row->setSpacing(6);
  for (QLabel* label : {light_, Label7_, meaning_}) {
    label->setTextFormat(Qt::PlainText);
    row->addWidget(label);
  }
  tell();
}

void Gps_state::use_language(bool japanese) {
  japanese_ = japanese;
  tell();
}

void Gps_state::show(const instruments::Gps& gps) {
  const QString label = to_toolkit(gps.Label7);
  QString position;
  if (gps.has_position)
    position =
        to_toolkit(session::angle_text(gps.latitude, 'N', 'S') + "  " + session::angle_text(gps.longitude, 'E', 'W'));
  if (gps.light == shown_ && label == Label7_->text() && position == position_) return;
  shown_ = gps.light;
  position_ = position;
  Label7_->setText(label);
  tell();
}

void Gps_state::tell() {
  const QString meaning = light_text(shown_, japanese_);
  light_->setPixmap(light_picture(look_of(shown_), devicePixelRatioF()));
  light_->setAccessibleName(meaning);
  Label7_->setVisible(!Label7_->text().isEmpty());
  meaning_->setText(meaning);
  setToolTip(position_.isEmpty() ? meaning : meaning + "\n" + position_);
  setAccessibleName(QString::fromUtf8(japanese_ ? "GPSの状態: " : "GPS state: ") + meaning);
  setAccessibleDescription(position_);
}

}  // namespace ui
