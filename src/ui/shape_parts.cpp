#include "ui/shape_parts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ui {

namespace {

constexpr int hint_width = 420;

constexpr const char* hint_japanese =
    "多くのGISソフトは<名前>.shxの値を受け付けず、<名前>.shpを開けません。"
    "GISで使うときはチェックを入れてください。公開仕様どおりの<名前>_gisを別に作成します。";
constexpr const char* hint_english =
    "Most GIS programs refuse the values in <name>.shx and don't open <name>.shp. Tick this for use in a GIS: "
    "<name>_gis is then made beside it, exactly in the published format.";

constexpr const char* tip_japanese =
    "閉じた多角形、座標系(.prj)、文字コード(.cpg)付き。緯度経度の図形は度で書き込みます。";
constexpr const char* tip_english =
    "With closed rings, the datum (.prj) and the code page (.cpg). A shape in latitude and longitude is written in "
    "degrees.";

}  // namespace

QCheckBox* add_second_set(QVBoxLayout* column, bool japanese) {
  auto* box = new QCheckBox(
      QString::fromUtf8(japanese ? "GIS用のファイルも作成する(&G)" : "Also make files for &GIS programs"));
  box->setObjectName("Check1");
  box->setToolTip(QString::fromUtf8(japanese ? tip_japanese : tip_english));
  auto* hint = new QLabel(QString::fromUtf8(japanese ? hint_japanese : hint_english));
  hint->setObjectName("hint");
  hint->setTextFormat(Qt::PlainText);  // "<name>" is no tag
  hint->setWordWrap(true);
  // A dialog asks a wrapping label for no more than one width: the narrowest is to leave room for the whole text.
  hint->ensurePolished();
  hint->setMinimumSize(hint_width, hint->heightForWidth(hint_width));
  column->addWidget(box);
  column->addWidget(hint);
  return box;
}

Shape_buttons add_shape_buttons(QVBoxLayout* column, bool japanese) {
  auto* ok = new QPushButton("OK");
  ok->setObjectName("OK");
  ok->setDefault(true);
  auto* close = new QPushButton(QString::fromUtf8(japanese ? "閉じる" : "Close"));
  close->setObjectName("close");
  close->setAutoDefault(false);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(ok);
  row->addWidget(close);
  column->addLayout(row);
  return {ok, close};
}

}  // namespace ui
