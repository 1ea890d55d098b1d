// The list of measurements as the toolkit's views read it: a tick in front of each row, then the columns of its line.
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "instruments/measurement_files.h"

namespace ui {

class Measurement_model : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int columns = 21;
  static constexpr int sort_role = Qt::UserRole;  // numbers as numbers where the column has them

  explicit Measurement_model(instruments::Measurement_list& list, QObject* parent = nullptr);
  // The list was filled again.
  void list_changed();
  void set_japanese(bool japanese);
  // Ticks or unticks rows of the list; one change for all of them.
  void tick(const std::vector<int>& rows, bool ticked);
  int ticked() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  void ticks_changed();

 private:
  instruments::Measurement_list& list_;
  std::vector<QStringList> cells_;
  bool japanese_ = true;
};

}  // namespace ui
