#include "ui/measurement_model.h"

#include <algorithm>
#include <array>

#include "platform/numbers.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

struct Column {
  const char* japanese;
  const char* english;
  bool number;
};

// clang-format off
constexpr std::array<Column, Measurement_model::columns> heads{{
    {"番号",           "No.",            true},
    {"モード",         "Mode",           false},
    {"走向",           "Strike",         false},
    {"傾斜",           "Dip",            false},
    {"ロール角",       "Roll",           true},
    {"線構造方位",     "Lineation",      false},
    {"プランジ",       "Plunge",         true},
    {"日時",           "Date and time",  false},
    {"記号",           "Mark",           false},
    {"偏角表示",       "Shown decl.",    false},
    {"器械の偏角",     "Set decl.",      true},
    {"真北走向",       "True strike",    false},
    {"真北傾斜",       "True dip",       false},
    {"ロール角",       "Roll",           true},
    {"真北線構造",     "True lineation", false},
    {"真北プランジ",   "True plunge",    true},
    {"計算偏角",       "Declination",    true},
    {"緯度 ddmm.mmmm", "Latitude ddmm.mmmm",   true},
    {"N/S",            "N/S",            false},
    {"経度 dddmm.mmmm", "Longitude dddmm.mmmm", true},
    {"E/W",            "E/W",            false},
}};
// clang-format on

const Column& head(int section) {
  return heads[static_cast<std::size_t>(section)];
}

// The columns that the table shows; further ones are dropped.
QStringList cells_of(const std::string& line) {
  QStringList cells = to_toolkit(line).split(',');
  while (cells.size() < Measurement_model::columns) cells.append(QString());
  cells.resize(Measurement_model::columns);
  return cells;
}

}  // namespace

Measurement_model::Measurement_model(instruments::Measurement_list& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list) {}

void Measurement_model::list_changed() {
  beginResetModel();
  cells_.clear();
  cells_.reserve(list_.rows.size());
  for (const instruments::Measurement_row& row : list_.rows) cells_.push_back(cells_of(row.line));
  endResetModel();
  emit ticks_changed();
}

void Measurement_model::set_japanese(bool japanese) {
  japanese_ = japanese;
  emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
}

void Measurement_model::tick(const std::vector<int>& rows, bool ticked) {
  if (rows.empty()) return;
  for (const int row : rows) list_.rows[static_cast<std::size_t>(row)].ticked = ticked;
  const auto [first, last] = std::minmax_element(rows.begin(), rows.end());
  emit dataChanged(index(*first, 0), index(*last, 0), {Qt::CheckStateRole});
  emit ticks_changed();
}

int Measurement_model::ticked() const {
  return static_cast<int>(std::count_if(list_.rows.begin(), list_.rows.end(),
                                        [](const instruments::Measurement_row& row) { return row.ticked; }));
}

int Measurement_model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

int Measurement_model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant Measurement_model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const QString& cell = cells_[static_cast<std::size_t>(index.row())][index.column()];
  const bool number = head(index.column()).number;
  switch (role) {
    case Qt::DisplayRole:
      return cell;
    case sort_role:
      return number ? QVariant(platform::val(from_toolkit(cell))) : QVariant(cell);
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::CheckStateRole:
      if (index.column() != 0) return {};
      return list_.rows[static_cast<std::size_t>(index.row())].ticked ? Qt::Checked : Qt::Unchecked;
    default:
      return {};
  }
}

bool Measurement_model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || index.column() != 0 || role != Qt::CheckStateRole) return false;
  tick({index.row()}, value.toInt() == Qt::Checked);
  return true;
}

QVariant Measurement_model::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columns) return {};
  return QString::fromUtf8(japanese_ ? head(section).japanese : head(section).english);
}

Qt::ItemFlags Measurement_model::flags(const QModelIndex& index) const {
  const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return index.column() == 0 ? plain | Qt::ItemIsUserCheckable : plain;
}

}  // namespace ui
