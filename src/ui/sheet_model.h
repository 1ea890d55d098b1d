// The sheet list as the toolkit's views read it: column 0 the shown name, column 1 the stem.
#pragma once

#include <QAbstractTableModel>

#include "core/session/session.h"

namespace ui {

class Sheet_model : public QAbstractTableModel {
  Q_OBJECT

 public:
  // Shows what `sheets` held at the last list_changed().
  explicit Sheet_model(const session::Sheet_list& sheets, QObject* parent = nullptr);
  // The list was read again.
  void list_changed();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const session::Sheet_list& sheets_;
  QStringList names_, stems_;
};

}  // namespace ui
