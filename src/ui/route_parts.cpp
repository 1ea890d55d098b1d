#include "ui/route_parts.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "instruments/route_lists.h"
#include "ui/either.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

QPushButton* button(const char* name, const QString& caption, const QString& tip) {
  auto* made = new QPushButton(caption);
  made->setObjectName(name);
  made->setAutoDefault(false);
  made->setToolTip(tip);
  return made;
}

QListWidget* route_list(bool japanese) {
  auto* list = new QListWidget;
  list->setObjectName("List1");
  list->setAccessibleName(QString::fromUtf8(japanese ? "ルートのファイル" : "Route files"));
  list->setUniformItemSizes(true);
  list->setAlternatingRowColors(true);
  list->setSpacing(1);
  list->setMinimumSize(380, 200);
  list->setToolTip(QString::fromUtf8(japanese ? "チェックを付けたルートを地図に表示します。"
                                              : "The ticked routes are shown on the map."));
  return list;
}

QLabel* quiet_label(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void count_routes(const Route_parts& parts, bool japanese) {
  int ticked = 0;
  for (int row = 0; row < parts.List1->count(); ++row) ticked += parts.List1->item(row)->checkState() == Qt::Checked;
  parts.counted->setText(QString::fromUtf8(japanese ? "%1 / %2 件" : "%1 of %2").arg(ticked).arg(parts.List1->count()));
}

}  // namespace

Route_parts add_route_parts(QVBoxLayout* column, bool japanese, const char* pattern) {
  const Either either{japanese};
  Route_parts parts{};
  parts.List1 = route_list(japanese);
  column->addWidget(parts.List1, 1);
  parts.told = quiet_label("told");
  parts.told->setText(
      either("このフォルダにルートのファイル（%1）はありません。", "There are no route files (%1) in this folder.")
          .arg(pattern));
  column->addWidget(parts.told);

  parts.Command3 = button("Command3", either("全て選択(&A)", "Select &All"),
                          either("一覧のルートを全て選択します。", "Ticks every route of the list."));
  parts.none = button("none", either("選択解除(&N)", "Select &None"),
                      either("全てのルートの選択を解除します。", "Takes every tick off."));
  parts.counted = quiet_label("counted");
  auto* choosing = new QHBoxLayout;
  choosing->addWidget(parts.Command3);
  choosing->addWidget(parts.none);
  choosing->addStretch(1);
  choosing->addWidget(parts.counted);
  column->addLayout(choosing);

  parts.Command1 =
      button("Command1", "OK", either("選択したルートを地図に表示します。", "Shows the ticked routes on the map."));
  parts.Command1->setDefault(true);
  parts.Command2 =
      button("Command2", either("閉じる(&C)", "&Close"), either("変更せずに閉じます。", "Closes without a change."));
  auto* ending = new QHBoxLayout;
  ending->addStretch(1);
  ending->addWidget(parts.Command1);
  ending->addWidget(parts.Command2);
  column->addLayout(ending);
  return parts;
}

void show_routes(const Route_parts& parts, const std::vector<core::File_choice>& choices, bool japanese) {
  {
    const QSignalBlocker quiet(parts.List1);
    parts.List1->clear();
    for (const core::File_choice& choice : choices) {
      auto* item = new QListWidgetItem(to_toolkit(choice.name), parts.List1);
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
      item->setCheckState(choice.selected ? Qt::Checked : Qt::Unchecked);
    }
    if (parts.List1->count() > 0) parts.List1->setCurrentRow(0);
  }
  parts.told->setVisible(choices.empty());
  parts.Command3->setEnabled(!choices.empty());
  parts.none->setEnabled(!choices.empty());
  count_routes(parts, japanese);
}

std::vector<core::File_choice> routes_of(const Route_parts& parts) {
  std::vector<core::File_choice> choices;
  for (int row = 0; row < parts.List1->count(); ++row) {
    const QListWidgetItem* const item = parts.List1->item(row);
    choices.push_back({from_toolkit(item->text()), item->checkState() == Qt::Checked});
  }
  return choices;
}

void connect_routes(const Route_parts& parts, QDialog* dialog, bool japanese) {
  QObject::connect(parts.Command2, &QPushButton::clicked, dialog, &QDialog::reject);
  QObject::connect(parts.Command3, &QPushButton::clicked, dialog, [=] {
    instruments::Route_boxes boxes{{}, routes_of(parts)};
    instruments::Command3(boxes);
    show_routes(parts, boxes.List1, japanese);
  });
  QObject::connect(parts.none, &QPushButton::clicked, dialog, [=] {
    std::vector<core::File_choice> choices = routes_of(parts);
    for (core::File_choice& choice : choices) choice.selected = false;
    show_routes(parts, choices, japanese);
  });
  QObject::connect(parts.List1, &QListWidget::itemChanged, dialog, [=] { count_routes(parts, japanese); });
}

}  // namespace ui
