// The registered observations as the toolkit's views read them: the rows that a filter keeps, in the order of a column.
#pragma once

#include <QAbstractTableModel>

#include "core/session/session.h"
#include "ui/observation_list.h"

namespace ui {

class Observation_model : public QAbstractTableModel {
  Q_OBJECT

 public:
  // Shows what the registry held at the last registry_read(); nothing before the first.
  explicit Observation_model(const session::Session& session, QObject* parent = nullptr);

  // The registry was read anew. For each record of before (from index 0) its number now, 0 where it went.
  std::vector<int> registry_read();
  // The texts are made anew in the session's language.
  void Language_set();
  // The rows that hold all words and that `kept` keeps.
  void set_filter(const QString& words, Kept kept);
  void sort(int column, Qt::SortOrder order) override;

  int total() const { return static_cast<int>(list_.rows.size()); }
  int touroku_at(int row) const;  // record number of a row; 0 outside
  int row_of(int touroku) const;  // -1 when the filter leaves the record out
  // The number of the record of an identity, `touroku` itself where it fits; 0 when there is none.
  int found(const std::string& identity, int touroku) const;
  QString text_at(int row, int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void arrange();
  bool is_uncorrected(int touroku, int column) const;
  QString tool_tip(int touroku, int column) const;

  const session::Session& session_;
  Observation_list list_;
  std::vector<int> shown_;   // record numbers by row
  std::vector<int> row_of_;  // rows by record number - 1, -1 for none
  QString words_;
  Kept kept_ = Kept::all;
  int sort_column_ = column_record;
  bool descending_ = false;
};

// A text as wide as the texts of a column usually are.
const char* usual_text(int column, bool japanese);

}  // namespace ui
