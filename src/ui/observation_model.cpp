#include "ui/observation_model.h"

#include <QColor>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>
#include <cmath>

#include "core/language.h"
#include "observations/marks.h"
#include "platform/numbers.h"
#include "ui/either.h"
#include "ui/toolkit_text.h"
#include "ui/warning_colour.h"

namespace ui {

namespace {

using observations::Correction;
using observations::Record;

struct Column_text {
  const char* japanese;
  const char* english;
  bool number;        // stands on the right
  const char* usual;  // as wide as its texts usually are
  const char* japanese_hint;
  const char* english_hint;
};

// clang-format off
constexpr std::array<Column_text, list_columns> column_texts{{
    {"番号",     "Record",           true,  "15000",
     "登録ファイルの中の順番",
     "Place in the registration file"},
    {"登録番号", "Registration no.", false, "081115-001-",
     "登録番号",
     "Registration number"},
    {"計測番号", "Measurement no.",  true,  "0000",
     "走向傾斜計測番号",
     "Measurement number of the clinometer"},
    {"計測対象", "Object",           false, "地層境界面-",
     "計測対象",
     "Measured object"},
    {"地層名",   "Stratum",          false, "砂岩泥岩互層",
     "地層名",
     "Name of the stratum"},
    {"X",        "X",                true,  "E 138°51'44.84\"-",
     "経度、または図葉の左下からの距離(m)",
     "Longitude, or metres from the sheet's corner"},
    {"Y",        "Y",                true,  "N 38°51'44.84\"-",
     "緯度、または図葉の左下からの距離(m)",
     "Latitude, or metres from the sheet's corner"},
    {"Z",        "Z",                true,  "1234.5",
     "標高(m)",
     "Elevation in metres"},
    {"走向",     "Strike",           false, "N88.8W-",
     "入力された走向",
     "Strike as it was entered"},
    {"傾斜",     "Dip",              false, "88.8W",
     "入力された傾斜",
     "Dip as it was entered"},
    {"真の走向", "True strike",      false, "N88.8W 188.8° 未補正-",
     "偏角を加えた走向と方位角。未補正: 偏角が不明。補正済: 入力値が真北。?: 読めない文字がある",
     "Strike after declination and its azimuth. uncorrected: no declination is known. already true: as entered. ?: not read as it stands"},
    {"線傾斜",   "Plunge",           false, "88.8W",
     "線構造の傾斜",
     "Plunge of the lineation"},
    {"線方向",   "Trend",            false, "N88.8W",
     "線構造の方向",
     "Trend of the lineation"},
    {"マーク",   "Mark",             false, "filled circle",
     "マーク",
     "Mark"},
    {"大きさ",   "Size",             false, "■ 10-",
     "マークの大きさと色",
     "Size and colour of the mark"},
    {"頂点数",   "Vertices",         true,  "138",
     "線・範囲の頂点の数",
     "Vertices of a line or an enclosure"},
    {"計測時刻", "Time",             false, "2008/11/15 09:30:00-",
     "クリノメータの計測時刻",
     "Time of the measurement by the clinometer"},
    {"画像",     "Image",            false, "RIMG0001.JPG-",
     "画像ファイル名",
     "Picture or sheet file"},
    {"境界",     "Boundary",         false, "境界",
     "境界に使用する",
     "Used as a boundary"},
    {"偏角",     "Declination",      false, "補正済",
     "偏角補正済みデータ(偏角補正を行わない。)",
     "Already corrected for declination"},
}};
// clang-format on

const Column_text& text_of(int column) {
  return column_texts[static_cast<std::size_t>(column)];
}

int alignment_of(int column) {
  return int(text_of(column).number ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

int component(double value) {
  return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, 0.0, 255.0));
}

// The colour in which the record is drawn.
QColor colour_of(const Record& record) {
  const bool shape = observations::is_line(record.mark) || observations::is_area(record.mark);
  if (shape) return {component(record.R2), component(record.G2), component(record.B2)};
  return {component(record.R), component(record.G), component(record.B)};
}

QIcon swatch(const QColor& colour) {
  constexpr int side = 48;  // drawn large, so that it is sharp at every scale factor
  QPixmap picture(side, side);
  picture.fill(colour);
  QPainter painter(&picture);
  painter.setPen(QPen(QColor(0x60, 0x60, 0x60), 6));
  painter.drawRect(picture.rect());
  return {picture};
}

}  // namespace

const char* usual_text(int column, bool japanese) {
  if (column == column_true_strike && !japanese) return "N88.8W 188.8° uncorrected-";
  return text_of(column).usual;
}

Observation_model::Observation_model(const session::Session& session, QObject* parent)
    : QAbstractTableModel(parent), session_(session) {}

std::vector<int> Observation_model::registry_read() {
  beginResetModel();
  Observation_list list =
      observation_list(session_.registry, session_.drawn_records, core::is_japanese(session_.settings.language), list_);
  std::vector<int> numbers = followed(list_, list);
  list_ = std::move(list);
  arrange();
  endResetModel();
  return numbers;
}

void Observation_model::Language_set() {
  emit headerDataChanged(Qt::Horizontal, 0, list_columns - 1);
}

void Observation_model::set_filter(const QString& words, Kept kept) {
  beginResetModel();
  words_ = words;
  kept_ = kept;
  arrange();
  endResetModel();
}

void Observation_model::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= list_columns) return;
  beginResetModel();
  sort_column_ = column;
  descending_ = order == Qt::DescendingOrder;
  arrange();
  endResetModel();
}

void Observation_model::arrange() {
  shown_ = filtered(list_, from_toolkit(words_), kept_);
  sort_records(list_, sort_column_, descending_, shown_);
  row_of_.assign(list_.rows.size(), -1);
  for (std::size_t row = 0; row < shown_.size(); ++row)
    row_of_[static_cast<std::size_t>(shown_[row] - 1)] = static_cast<int>(row);
}

int Observation_model::touroku_at(int row) const {
  return row < 0 || row >= rowCount() ? 0 : shown_[static_cast<std::size_t>(row)];
}

int Observation_model::row_of(int touroku) const {
  return touroku < 1 || touroku > total() ? -1 : row_of_[static_cast<std::size_t>(touroku - 1)];
}

int Observation_model::found(const std::string& identity, int touroku) const {
  if (touroku >= 1 && touroku <= total() && list_.rows[static_cast<std::size_t>(touroku - 1)].identity == identity)
    return touroku;
  const auto is_it = [&](const Listed& listed) { return listed.identity == identity; };
  const auto at = std::find_if(list_.rows.begin(), list_.rows.end(), is_it);
  return at == list_.rows.end() ? 0 : static_cast<int>(at - list_.rows.begin()) + 1;
}

QString Observation_model::text_at(int row, int column) const {
  return to_toolkit(cell_text(list_, touroku_at(row), column));
}

int Observation_model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int Observation_model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : list_columns;
}

QVariant Observation_model::data(const QModelIndex& index, int role) const {
  const int touroku = index.isValid() ? touroku_at(index.row()) : 0;
  if (touroku == 0) return {};
  const int column = index.column();
  switch (role) {
    case Qt::DisplayRole:
      return text_at(index.row(), column);
    case Qt::ToolTipRole:
      return tool_tip(touroku, column);
    case Qt::TextAlignmentRole:
      return alignment_of(column);
    case Qt::ForegroundRole:
      if (is_uncorrected(touroku, column)) return warning_colour(QGuiApplication::palette());
      return {};
    case Qt::DecorationRole:
      if (column == column_size) return swatch(colour_of(listed(touroku).record));
      return {};
    default:
      return {};
  }
}

QVariant Observation_model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= list_columns) return {};
  const Either either{core::is_japanese(session_.settings.language)};
  const Column_text& text = text_of(section);
  if (role == Qt::DisplayRole) return either(text.japanese, text.english);
  if (role == Qt::ToolTipRole) return either(text.japanese_hint, text.english_hint);
  if (role == Qt::TextAlignmentRole) return alignment_of(section);
  return {};
}

bool Observation_model::is_uncorrected(int touroku, int column) const {
  return column == column_true_strike && listed(touroku).correction == Correction::unknown;
}

// The stored value where the cell shows another form, the whole text otherwise, for a column that is too narrow for it.
QString Observation_model::tool_tip(int touroku, int column) const {
  const Record& record = listed(touroku).record;
  const Either either{list_.japanese};
  const auto stored = [either](double value) {
    return either("登録値: ", "Stored: ") + to_toolkit(platform::format_number(value, "######0.#0"));
  };
  if (column == column_X) return stored(record.X);
  if (column == column_Y) return stored(record.Y);
  if (column == column_corrected && !record.decl_flag2.empty())
    return either("計測器に偏角が設定されていました。", "A declination was set in the instrument.");
  if (column == column_true_strike && !listed(touroku).true_strike.empty()) {
    switch (listed(touroku).correction) {
      case Correction::applied:
        return either("加えた偏角: ", "Declination added: ") +
               to_toolkit(platform::format_number(listed(touroku).added, "##0.0")) + "°";
      case Correction::not_taken:
        return either("補正済みのデータなので、偏角は加えません。", "Already corrected: no declination is added.");
      default:
        return either("偏角が分からないため、未補正です。", "Uncorrected, since no declination is known.");
    }
  }
  return to_toolkit(cell_text(list_, touroku, column));
}

}  // namespace ui
