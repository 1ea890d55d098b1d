#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "core/choice_lists.h"
#include "ui/canvas_view.h"
#include "ui/frame6.h"
#include "ui/frm_main.h"
#include "ui/toolkit_text.h"
#include "ui/wrap_button.h"

namespace ui {

namespace {

// A tool frame that scrolls up and down on a low screen and is never narrower than its texts.
class Frame_area : public QScrollArea {
 public:
  QSize minimumSizeHint() const override {
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), 120};
  }
};

QWidget* scrolling(QWidget* frame) {
  auto* area = new Frame_area;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);  // it scrolls to the control that has the keyboard
  area->setWidget(frame);
  return area;
}

template <typename Widget>
Widget* named(Widget* widget, const char* name, bool ready) {
  widget->setObjectName(name);
  widget->setEnabled(ready);
  return widget;
}

// A row "label: box" of a form; the label gets its text with the language.
template <typename Widget>
Widget* form_row(QFormLayout* form, const char* label_name, Widget* box, const char* name) {
  auto* label = named(new QLabel, label_name, true);
  named(box, name, false);
  label->setBuddy(box);
  form->addRow(label, box);
  return box;
}

void fill(QComboBox* box, core::Choices choices, const char* chosen = nullptr) {
  box->clear();
  for (const char* choice : choices) box->addItem(QString::fromUtf8(choice));
  if (!chosen) return;
  // A default that the list writes otherwise ("1.0" for "1") needs a box that takes any text.
  box->setEditable(box->findText(chosen) < 0);
  box->setCurrentText(QString::fromUtf8(chosen));
}

}  // namespace

void Frm_main::build_tabs() {
  TabStrip1_ = new QTabWidget;
  TabStrip1_->setObjectName("TabStrip1");
  // These three captions are the same in both languages.
  Frame6_ = new Frame6(session_, ports_);
  TabStrip1_->addTab(Frame6_, "Position");
  TabStrip1_->addTab(scrolling(build_Frame4()), "File");
  TabStrip1_->addTab(scrolling(build_Frame5()), "View");
  TabStrip1_->setCurrentIndex(2);
}

// The registered files of the sheet that is drawn.
QWidget* Frm_main::build_Frame4() {
  auto* frame = named(new QWidget, "Frame4", true);
  auto* column = new QVBoxLayout(frame);
  column->addWidget(named(new QLabel, "Label1_0", true));
  shown_map_ = named(new QLabel, "shown_map", true);
  shown_map_->setWordWrap(true);
  shown_map_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(shown_map_);
  column->addWidget(named(new QLabel, "Label1_1", true));
  shown_folder_ = named(new QLabel, "shown_folder", true);
  shown_folder_->setWordWrap(true);
  shown_folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(shown_folder_);
  column->addWidget(named(new QLabel, "label_files", true));
  shown_files_ = named(new QListWidget, "shown_files", true);
  shown_files_->setMaximumHeight(140);
  column->addWidget(shown_files_);
  auto* table = named(new Wrap_button, "show_table", true);
  connect(table, &QAbstractButton::clicked, this, &Frm_main::open_table);
  column->addWidget(table);
  for (const bool edit : {false, true}) {
    auto* pictures = named(new Wrap_button, edit ? "Main_act_8" : "Main_act_7", true);
    connect(pictures, &QAbstractButton::clicked, this, [this, edit] { open_pictures(edit); });
    column->addWidget(pictures);
  }
  column->addStretch();
  return frame;
}

QWidget* Frm_main::build_Frame5() {
  auto* frame = named(new QWidget, "Frame5", true);
  auto* column = new QVBoxLayout(frame);
  const auto view_box = [&](const char* name, bool& shown) {
    auto* box = named(new QCheckBox, name, true);
    box->setChecked(shown);
    connect(box, &QCheckBox::toggled, this, [this, &shown](bool ticked) {
      shown = ticked;
      show(session::Redraw::all);
    });
    column->addWidget(box);
  };
  view_box("Check3", session_.view.Check3);
  view_box("Check5", session_.view.Check5);
  view_box("Check2", session_.view.Check2);
  view_box("Check6", session_.view.Check6);
  view_box("Check8", session_.view.Check8);
  auto* size = new QFormLayout;
  form_row(size, "label_text_size", new QComboBox, "Text1");
  form_row(size, "label_interval", new QComboBox, "Combo8");
  column->addLayout(size);
  column->addWidget(named(new Wrap_button, "Command5", false));
  column->addWidget(named(new Wrap_button, "Command38", false));
  column->addStretch();
  return frame;
}

// Save and Close belong to the entry tab alone.
void Frm_main::show_tab(int index) {
  for (const char* name : {"Command9", "Command22"})
    if (auto* button = findChild<QWidget*>(name)) button->setVisible(index == 0);
}

void Frm_main::fill_lists() {
  Frame6_->lists_fill();
  fill(findChild<QComboBox*>("Combo8"), core::intervals(), core::interval_default);
  auto* size = findChild<QComboBox*>("Text1");
  size->clear();
  for (const char* text : {"6", "8", "10", "12", "14"}) size->addItem(text);
  size->setCurrentText("8");
}

void Frm_main::show_project() {
  const session::Sheet_list& sheets = session_.sheets;
  const bool chosen = session_.sheet_shown() && sheets.selected >= 0;
  shown_map_->setText(chosen ? to_toolkit(sheets.List1[static_cast<std::size_t>(sheets.selected)]) : QString("-"));
  shown_folder_->setText(to_toolkit(session_.settings.project_path));
  shown_files_->clear();
  for (const core::File_choice& file : session_.boxes.File11)
    if (file.selected) shown_files_->addItem(to_toolkit(file.name));
}

}  // namespace ui
