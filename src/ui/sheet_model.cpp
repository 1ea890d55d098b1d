#include "ui/sheet_model.h"

#include "ui/toolkit_text.h"

namespace ui {

namespace {

QStringList texts_of(const std::vector<std::string>& list) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(list.size()));
  for (const std::string& text : list) texts.append(to_toolkit(text));
  return texts;
}

}  // namespace

Sheet_model::Sheet_model(const session::Sheet_list& sheets, QObject* parent)
    : QAbstractTableModel(parent), sheets_(sheets) {}

void Sheet_model::list_changed() {
  beginResetModel();
  names_ = texts_of(sheets_.List1);
  stems_ = texts_of(sheets_.List2);
  endResetModel();
}

int Sheet_model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

int Sheet_model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : 2;
}

QVariant Sheet_model::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  return index.column() == 0 ? names_[index.row()] : stems_[index.row()];
}

}  // namespace ui
