#include "ui/frame2.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>

#include "core/choice_lists.h"
#include "ui/folder_box.h"
#include "ui/frame2_captions.h"
#include "ui/named.h"
#include "ui/text_box.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

QLabel* label_of(QWidget* box, const QString& name) {
  auto* label = named(new QLabel, name + "_label");
  label->setBuddy(box);
  return label;
}

void add_row(QFormLayout* form, QWidget* box, const QString& name, QWidget* beside = nullptr) {
  QWidget* field = box;
  if (beside) {
    field = new QWidget;
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(box, 1);
    row->addWidget(beside);
  }
  form->addRow(label_of(box, name), field);
}

QLineEdit* number_box(const QString& name) {
  auto* box = named(new QLineEdit, name);
  box->setAlignment(Qt::AlignRight);
  box->setMaximumWidth(140);
  box->setMinimumWidth(80);
  return box;
}

QPushButton* button(const QString& name) {
  auto* made = named(new QPushButton, name);
  made->setAutoDefault(false);
  return made;
}

QComboBox* choice_box(const QString& name, core::Choices choices) {
  auto* box = named(new QComboBox, name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  for (const char* choice : choices) box->addItem(QString::fromUtf8(choice));
  return box;
}

// A frame of options of which one holds.
QGroupBox* option_frame(const QString& frame, const QStringList& options) {
  auto* group = named(new QGroupBox, frame);
  auto* column = new QVBoxLayout(group);
  for (const QString& option : options) column->addWidget(named(new QRadioButton, option));
  column->addStretch(1);
  return group;
}

QScrollArea* scrolled(QWidget* page) {
  auto* area = new QScrollArea;
  area->setWidget(page);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);  // it scrolls to the box that has the keyboard
  return area;
}

QVBoxLayout* column_in(QWidget* page) {
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(14, 12, 14, 12);
  column->setSpacing(12);
  return column;
}

QFormLayout* form_in(QWidget* frame) {
  auto* form = new QFormLayout(frame);
  form->setHorizontalSpacing(12);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  return form;
}

}  // namespace

Frame2_dialog::Frame2_dialog(core::Settings& settings, core::Settings_boxes& boxes, platform::Files& files,
                             platform::Prompts& prompts, QWidget* parent)
    : QDialog(parent), settings_(settings), boxes_(boxes), files_(files), prompts_(prompts) {
  setObjectName("Frame2");
  lay_out();
  connect_all();
  Language_set();
  boxes_out();
}

void Frame2_dialog::lay_out() {
  auto* tabs = named(new QTabWidget, "tabs");
  for (QWidget* page : {project_page(), map_page(), entry_page()}) tabs->addTab(scrolled(page), {});
  auto* save_button = button("Command10");
  save_button->setDefault(true);
  save_button->setShortcut(QKeySequence::Save);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(save_button);
  buttons->addWidget(button("Command11"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs, 1);
  column->addLayout(buttons);
  for (auto* box : findChildren<QLineEdit*>())
    if (!box->isReadOnly()) text_box_watch(box);
  resize(740, 580);
}

QWidget* Frame2_dialog::project_page() {
  auto* page = new QWidget;
  auto* column = column_in(page);
  column->addWidget(project_group());
  column->addWidget(registry_group(), 1);
  return page;
}

QGroupBox* Frame2_dialog::project_group() {
  auto* frame = named(new QGroupBox, "Frame8");
  auto* form = form_in(frame);
  auto* project = named(new Folder_box("Dir4", nullptr), "Dir4_box");
  auto* stored = named(new QLineEdit, "Label11");
  stored->setReadOnly(true);
  stored->setFrame(false);
  stored->setFocusPolicy(Qt::ClickFocus);  // to be read and copied, passed over by the Tab key
  QPalette plain;
  plain.setColor(QPalette::Base, Qt::transparent);
  stored->setPalette(plain);
  form->addRow(label_of(project, "Dir4"), project);
  form->addRow(label_of(stored, "Label11"), stored);
  add_row(form, named(new QLineEdit, "Text2"), "Text2", button("Command14"));
  return frame;
}

QGroupBox* Frame2_dialog::registry_group() {
  auto* frame = named(new QGroupBox, "Frame17");
  auto* column = new QVBoxLayout(frame);
  auto* list = named(new QListWidget, "File11");
  list->setMinimumHeight(110);
  list->setUniformItemSizes(true);
  list->setStyleSheet("QListWidget::item { padding: 3px; }");
  auto* note = named(new QLabel, "Label30");
  note->setWordWrap(true);
  auto* name = named(new QLineEdit, "Text4");
  auto* row = new QHBoxLayout;
  row->addWidget(label_of(name, "Text4"));
  row->addWidget(name, 1);
  row->addWidget(named(new QLabel, "Text4_extension"));
  row->addWidget(button("Command44"));
  row->addSpacing(16);
  row->addWidget(button("Command45"));
  column->addWidget(list, 1);
  column->addWidget(note);
  column->addLayout(row);
  return frame;
}

QWidget* Frame2_dialog::map_page() {
  auto* page = new QWidget;
  auto* column = column_in(page);
  auto* pair = new QHBoxLayout;
  pair->addWidget(option_frame("Frame15", {"Option6", "Option7"}), 1);
  pair->addWidget(option_frame("number_frame", {"Option8", "Option9"}), 1);
  column->addWidget(sheet_group());
  column->addLayout(pair);
  column->addWidget(cut_group());
  column->addStretch(1);
  return page;
}

QGroupBox* Frame2_dialog::sheet_group() {
  auto* frame = named(new QGroupBox, "sheet_frame");
  auto* form = form_in(frame);
  auto* options = new QHBoxLayout;
  for (const char* name : {"Option5_0", "Option5_1"}) options->addWidget(named(new QRadioButton, name));
  options->addStretch(1);
  auto* folder = named(new Folder_box("Dir10", nullptr), "Dir10_box");
  form->addRow(options);
  form->addRow(label_of(folder, "Dir10"), folder);
  return frame;
}

QGroupBox* Frame2_dialog::cut_group() {
  struct Cell {
    const char* name;
    int row, column;
    const char* unit;
  };
  static constexpr Cell cells[] = {{"Text5", 0, 0, "m"}, {"Text6", 0, 1, "m"}, {"Text7", 1, 0, "m"},
                                   {"Text8", 1, 1, "m"}, {"Text9", 2, 0, ""},  {"Text10", 2, 1, ""}};
  auto* frame = named(new QGroupBox, "cut_frame");
  auto* grid = new QGridLayout(frame);
  for (const Cell& cell : cells) {
    auto* box = number_box(cell.name);
    grid->addWidget(label_of(box, cell.name), cell.row, cell.column * 4);
    grid->addWidget(box, cell.row, cell.column * 4 + 1);
    grid->addWidget(new QLabel(cell.unit), cell.row, cell.column * 4 + 2);
  }
  grid->setHorizontalSpacing(12);
  grid->setColumnMinimumWidth(3, 24);
  grid->setColumnStretch(7, 1);
  return frame;
}

QWidget* Frame2_dialog::entry_page() {
  auto* page = new QWidget;
  auto* column = column_in(page);
  auto* pair = new QHBoxLayout;
  pair->addWidget(option_frame("numbering_frame", {"Option4_0", "Option4_1", "Option4_2"}), 1);
  pair->addWidget(gps_group(), 1);
  column->addLayout(pair);
  auto* opener = button("Command24");
  auto* row = new QHBoxLayout;
  row->addWidget(opener);
  row->addStretch(1);
  column->addLayout(row);
  column->addWidget(frame12_group());
  column->addStretch(1);
  return page;
}

QGroupBox* Frame2_dialog::gps_group() {
  auto* frame = named(new QGroupBox, "gps_frame");
  auto* form = form_in(frame);
  add_row(form, choice_box("Combo4", core::com_ports()), "Combo4");
  add_row(form, choice_box("Combo5", core::port_speeds()), "Combo5");
  return frame;
}

QGroupBox* Frame2_dialog::frame12_group() {
  auto* frame = named(new QGroupBox, "Frame12");
  auto* form = form_in(frame);
  auto* folder = named(new Folder_box("Dir3", nullptr), "Dir3_box");
  form->addRow(label_of(folder, "Dir3"), folder);
  add_row(form, choice_box("File4", {}), "File4");
  for (int i = 0; i < 5; ++i) {
    const QString name = QString("Text3_%1").arg(i);
    auto* cell = named(new QLineEdit, name);
    cell->setMaximumWidth(180);
    add_row(form, cell, name);
  }
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(button("Command20"));
  form->addRow(row);
  frame->hide();
  return frame;
}

void Frame2_dialog::connect_all() {
  const auto pressed = [this](const char* name, void (Frame2_dialog::*action)()) {
    connect(findChild<QPushButton*>(name), &QPushButton::clicked, this, action);
  };
  pressed("Command10", &Frame2_dialog::save);
  pressed("Command11", &Frame2_dialog::cancel);
  pressed("Command14", &Frame2_dialog::project_make);
  pressed("Command44", &Frame2_dialog::registry_make);
  pressed("Command45", &Frame2_dialog::registries_delete);
  connect(findChild<QPushButton*>("Command24"), &QPushButton::clicked, this, [this] { frame12_show(true); });
  connect(findChild<QPushButton*>("Command20"), &QPushButton::clicked, this, [this] { frame12_show(false); });
  for (int i = 0; i < 2; ++i)
    connect(findChild<QRadioButton*>(QString("Option5_%1").arg(i)), &QRadioButton::clicked, this,
            [this, i] { sheet_folder_chosen(i); });
  for (auto* box : findChildren<Folder_box*>())
    box->start_folder = [this](const QString& text) { return to_toolkit(files_.native_path(from_toolkit(text))); };
  connect(findChild<Folder_box*>("Dir4_box"), &Folder_box::chosen, this, &Frame2_dialog::project_chosen);
  connect(findChild<Folder_box*>("Dir3_box"), &Folder_box::chosen, this, &Frame2_dialog::frame_files_fill);
}

}  // namespace ui
