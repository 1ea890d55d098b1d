#include "ui/frame6.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>

#include "ui/colour_button.h"
#include "ui/mark_preview.h"
#include "ui/named.h"
#include "ui/toolkit_text.h"
#include "ui/wrap_button.h"
#include "ui/wrap_check.h"

namespace ui {

namespace {

using namespace observations;

// Logical pixels.
constexpr int mark_side = 72, symbol_side = 96;
constexpr int memo_height = 72;
constexpr int least_form_height = 96;

// A form that scrolls up and down alone, and is never narrower than its texts.
class Form_area : public QScrollArea {
 public:
  QSize minimumSizeHint() const override {
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), least_form_height};
  }
};

QLabel* heading(const char* name) {
  auto* label = named(new QLabel, name);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  label->setContentsMargins(0, 6, 0, 0);
  return label;
}

QHBoxLayout* row_in(QWidget* widget) {
  auto* row = new QHBoxLayout(widget);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  return row;
}

// Half of a scroll control: as high as half the box beside it.
class Arrow : public QToolButton {
 public:
  explicit Arrow(Qt::ArrowType type) {
    setArrowType(type);
    setAutoRepeat(true);
    setFocusPolicy(Qt::NoFocus);  // the arrow keys do the same in the box
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  }
  QSize sizeHint() const override { return {18, 11}; }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

QWidget* scroll_control() {
  auto* scroll = named(new QWidget, "VScroll2");
  auto* arrows = new QVBoxLayout(scroll);
  arrows->setContentsMargins(0, 0, 0, 0);
  arrows->setSpacing(0);
  arrows->addWidget(named(new Arrow(Qt::UpArrow), "VScroll2_up"));
  arrows->addWidget(named(new Arrow(Qt::DownArrow), "VScroll2_down"));
  return scroll;
}

}  // namespace

Frame6::Frame6(session::Session& session, session::Ports& ports, QWidget* parent)
    : QWidget(parent), session_(session), ports_(ports) {
  setObjectName("Frame6");
  lay_out();
  order_tabs();
  connect_all();
  Language_set();
  boxes_out();
}

void Frame6::lay_out() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 4, 4);
  column->setSpacing(4);
  title_ = named(new QLabel, "frame_title");
  title_->setWordWrap(true);
  title_->setTextFormat(Qt::PlainText);  // "<name>" is no tag
  column->addWidget(title_);
  area_ = named(new Form_area, "entry_area");
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setFocusPolicy(Qt::NoFocus);  // it scrolls to the box that has the keyboard
  area_->setWidget(build_form());
  column->addWidget(area_, 1);
  echo_box_ = build_echo();
  column->addWidget(echo_box_);
  column->addWidget(build_ends());
}

QWidget* Frame6::build_form() {
  form_ = named(new QWidget, "entry_form");
  auto* column = new QVBoxLayout(form_);
  column->setContentsMargins(2, 2, 2, 2);
  column->setSpacing(4);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setHorizontalSpacing(6);
  form->setVerticalSpacing(3);
  add_position(form);
  add_plane(form);
  column->addLayout(form);
  add_mark(column);
  add_memo(column);
  add_lines(column);
  column->addStretch(1);
  return form_;
}

QLineEdit* Frame6::text_row(QFormLayout* form, const char* label_name, int box, const char* name, QWidget* beside) {
  auto* label = named(new QLabel, label_name);
  auto* edit = named(new QLineEdit, name);
  edit->setMinimumWidth(100);
  // Within the box, at its end: shown while the text is marked.
  auto* inside = new QHBoxLayout(edit);
  inside->setContentsMargins(0, 0, 4, 0);
  auto* slip = new QLabel;
  slip->setObjectName(QString(name) + "_slip");
  slip->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(14, 14));
  slip->setCursor(Qt::ArrowCursor);
  slip->hide();
  inside->addStretch(1);
  inside->addWidget(slip);
  label->setBuddy(edit);
  texts_[static_cast<std::size_t>(box)] = edit;
  if (!beside) {
    form->addRow(label, edit);
    return edit;
  }
  auto* pair = new QWidget;
  auto* row = row_in(pair);
  row->addWidget(edit, 1);
  row->addWidget(beside);
  form->addRow(label, pair);
  return edit;
}

QComboBox* Frame6::combo_row(QFormLayout* form, const char* label_name, const char* name, bool editable) {
  auto* combo = named(new QComboBox, name);
  combo->setEditable(editable);
  combo->setInsertPolicy(QComboBox::NoInsert);
  if (editable) combo->setCompleter(nullptr);  // what is typed stays as it is typed
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(6);
  combo->setFocusPolicy(Qt::StrongFocus);
  combo->installEventFilter(this);
  auto* label = named(new QLabel, label_name);
  label->setBuddy(combo);
  form->addRow(label, combo);
  return combo;
}

void Frame6::add_position(QFormLayout* form) {
  text_row(form, "Label19_0", box_X, "Text14_0");
  text_row(form, "Label19_1", box_Y, "Text14_1");
  text_row(form, "Label19_2", box_Z, "Text14_2");
  pick_ = named(new Wrap_button, "pick_position");
  pick_->setCheckable(true);
  form->addRow(pick_);
  auto* move_hint = named(new QLabel, "move_hint");
  move_hint->setWordWrap(true);
  form->addRow(move_hint);
}

// In the order of the record's boxes: the tab key goes the same way.
void Frame6::add_plane(QFormLayout* form) {
  Combo7_ = combo_row(form, "Label19_3", "Combo7", true);
  Combo6_ = combo_row(form, "Label19_4", "Combo6", true);
  text_row(form, "Label19_6", box_soukou, "Text14_5");
  text_row(form, "Label19_7", box_keisha, "Text14_6");
  text_row(form, "Label60", box_touroku_no, "Text14_7");
  numbering_ = named(new QLabel, "numbering");
  numbering_->setWordWrap(true);
  form->addRow(numbering_);
  text_row(form, "Label29", box_measurement, "Text13", scroll_control())->installEventFilter(this);
  text_row(form, "Label19_5", box_sen_keisha, "Text14_3");
  text_row(form, "Label19_8", box_sen_houkou, "Text14_4");
  Label3_ = named(new QLineEdit, "Label3");
  Label3_->setReadOnly(true);
  Label3_->setFrame(false);
  Label3_->setMinimumWidth(100);
  QPalette plain;
  plain.setColor(QPalette::Base, Qt::transparent);  // it is read, not filled in
  Label3_->setPalette(plain);
  auto* picture = named(new QLabel, "label_picture");
  picture->setBuddy(Label3_);
  form->addRow(picture, Label3_);
}

void Frame6::add_mark(QVBoxLayout* column) {
  column->addWidget(heading("heading_mark"));
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setVerticalSpacing(3);
  Combo1_ = combo_row(form, "label_mark", "Combo1", false);
  Combo3_ = combo_row(form, "label_size", "Combo3", false);
  mark_colour_ = new Colour_button("colour_select", "Shape1");
  line_colour_ = new Colour_button("Command8", "Shape4");
  auto* label = named(new QLabel, "label_colour");
  label->setBuddy(mark_colour_->button());
  form->addRow(label, mark_colour_);
  auto* line_label = named(new QLabel, "label_line_colour");
  line_label->setBuddy(line_colour_->button());
  form->addRow(line_label, line_colour_);
  column->addLayout(form);
  auto* row = new QHBoxLayout;
  mark_preview_ = named(new Mark_preview(mark_side), "mark_preview");
  symbol_preview_ = named(new Mark_preview(symbol_side), "symbol_preview");
  row->addStretch(1);
  row->addWidget(mark_preview_, 0, Qt::AlignVCenter);
  row->addWidget(symbol_preview_);
  row->addStretch(1);
  column->addLayout(row);
  Check7_ = named(new Wrap_check, "Check7");
  Check9_ = named(new Wrap_check, "Check9");
  column->addWidget(Check7_);
  column->addWidget(Check9_);
}

void Frame6::add_memo(QVBoxLayout* column) {
  auto* label = heading("label_memo");
  column->addWidget(label);
  memo_ = named(new QPlainTextEdit, "memo");
  memo_->setFixedHeight(memo_height);
  memo_->setTabChangesFocus(true);
  label->setBuddy(memo_);
  column->addWidget(memo_);
  Check1_ = named(new Wrap_check, "Check1");
  column->addWidget(Check1_);
}

void Frame6::add_lines(QVBoxLayout* column) {
  column->addWidget(heading("heading_line"));
  auto* lines = new QHBoxLayout;
  lines->addWidget(command_button("Command6", "Command6"));
  lines->addWidget(command_button("Command31", "Command31"));
  column->addLayout(lines);
  line_count_ = named(new QLabel, "line_count");
  line_count_->setWordWrap(true);
  column->addWidget(line_count_);
  column->addWidget(heading("heading_more"));
  auto* grid = new QGridLayout;
  grid->setSpacing(4);
  grid->addWidget(command_button("Command23", "Command23"), 0, 0);
  grid->addWidget(command_button("picture_dialog", "Command8"), 0, 1);
  grid->addWidget(command_button("Command1", "Command1"), 1, 0);
  grid->addWidget(command_button("Command7", "Command7"), 1, 1);
  column->addLayout(grid);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  Combo2_ = combo_row(form, "label_surface", "Combo2", true);
  column->addLayout(form);
  column->addWidget(command_button("surface_add", "surface_add"));
}

QWidget* Frame6::build_ends() {
  auto* ends = named(new QWidget, "entry_ends");
  auto* grid = new QGridLayout(ends);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  grid->addWidget(command_button("entry_new", "mnu_sinki"), 0, 0);
  grid->addWidget(command_button("entry_delete", "mnu_del"), 0, 1);
  grid->addWidget(command_button("Command9", "Command9"), 1, 0);
  grid->addWidget(command_button("Command22", "Command22"), 1, 1);
  return ends;
}

QPushButton* Frame6::command_button(const char* object, const char* name) {
  auto* button = named(new Wrap_button, object);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, name] {
    emit command(name);
    enable();  // a line was begun or ended
    state_show();
    echo_out();
  });
  return button;
}

void Frame6::order_tabs() {
  const std::array<QWidget*, 32> order{texts_[box_X],
                                       texts_[box_Y],
                                       texts_[box_Z],
                                       pick_,
                                       Combo7_,
                                       Combo6_,
                                       texts_[box_soukou],
                                       texts_[box_keisha],
                                       texts_[box_touroku_no],
                                       texts_[box_measurement],
                                       texts_[box_sen_keisha],
                                       texts_[box_sen_houkou],
                                       Label3_,
                                       Combo1_,
                                       Combo3_,
                                       mark_colour_->button(),
                                       line_colour_->button(),
                                       Check7_,
                                       Check9_,
                                       memo_,
                                       Check1_,
                                       findChild<QWidget*>("Command6"),
                                       findChild<QWidget*>("Command31"),
                                       findChild<QWidget*>("Command23"),
                                       findChild<QWidget*>("picture_dialog"),
                                       findChild<QWidget*>("Command1"),
                                       findChild<QWidget*>("Command7"),
                                       Combo2_,
                                       findChild<QWidget*>("surface_add"),
                                       findChild<QWidget*>("entry_new"),
                                       findChild<QWidget*>("entry_delete"),
                                       findChild<QWidget*>("Command9")};
  for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
  setTabOrder(order.back(), findChild<QWidget*>("Command22"));
}

void Frame6::connect_all() {
  connect_texts();
  connect_choices();
  connect(pick_, &QPushButton::toggled, this, [this](bool on) {
    if (!filling_) session_.flags.point_mode = on ? 1 : 0;
  });
  for (const int by : {1, -1})
    connect(findChild<QToolButton*>(by > 0 ? "VScroll2_up" : "VScroll2_down"), &QToolButton::clicked, this,
            [this, by] { measurement_step(by); });
}

void Frame6::connect_texts() {
  for (std::size_t i = 0; i < texts_.size(); ++i)
    connect(texts_[i], &QLineEdit::textEdited, this, [this, i](const QString& text) {
      Entry_boxes& boxes = session_.entry.boxes;
      (i == box_measurement ? boxes.Text13 : boxes.Text14[i]) = from_toolkit(text);
      changed();
      if (i == box_X || i == box_Y) emit position_typed();
    });
  connect(memo_, &QPlainTextEdit::textChanged, this, [this] {
    if (filling_) return;
    session_.entry.boxes.memo = from_toolkit(memo_->toPlainText());
    changed();
  });
}

void Frame6::connect_choices() {
  const auto choice = [this](QComboBox* combo, std::string Entry_boxes::*member, bool of_record) {
    connect(combo, &QComboBox::currentTextChanged, this, [this, member, of_record](const QString& text) {
      if (filling_) return;
      session_.entry.boxes.*member = from_toolkit(text);
      of_record ? changed() : echo_out();
    });
  };
  choice(Combo1_, &Entry_boxes::Combo1, true);
  choice(Combo3_, &Entry_boxes::Combo3, true);
  choice(Combo6_, &Entry_boxes::Combo6, true);
  choice(Combo7_, &Entry_boxes::Combo7, true);
  choice(Combo2_, &Entry_boxes::Combo2, false);
  const auto tick = [this](QCheckBox* check, bool Entry_boxes::*member, bool of_record) {
    connect(check, &QCheckBox::toggled, this, [this, member, of_record](bool on) {
      if (filling_) return;
      session_.entry.boxes.*member = on;
      if (of_record) changed();
    });
  };
  tick(Check1_, &Entry_boxes::Check1, false);  // how the next record begins; no record holds it
  tick(Check7_, &Entry_boxes::Check7, true);
  tick(Check9_, &Entry_boxes::Check9, true);
  const auto colour = [this](Colour_button* button, observations::Colour Entry_boxes::*member) {
    connect(button, &Colour_button::chosen, this, [this, member](const QColor& picked) {
      session_.entry.boxes.*member = {double(picked.red()), double(picked.green()), double(picked.blue())};
      changed();
    });
  };
  colour(mark_colour_, &Entry_boxes::Shape1);
  colour(line_colour_, &Entry_boxes::Shape4);
}

}  // namespace ui
