// How the panel's texts will be read, shown beside them, and the marks on boxes whose text is read in another way than
// it looks or can't be stored.
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QStyle>
#include <QVariant>

#include <algorithm>

#include "observations/marks.h"
#include "platform/code_page_932.h"
#include "ui/frame6.h"
#include "ui/mark_preview.h"
#include "ui/named.h"
#include "ui/toolkit_text.h"
#include "ui/warning_colour.h"

namespace ui {

using namespace observations;

namespace {

constexpr double label_height = 22;  // canvas units: the map's labels at their usual size
constexpr int notes_height = 72;     // logical pixels
constexpr const char* bad_frame = "2px solid #c62828";
constexpr const char* slip_frame = "2px solid #c77700";

struct Cell {
  const char* name;
  int row, column;
};
constexpr Cell cells[] = {{"head_raw", 0, 1},
                          {"head_declination", 0, 2},
                          {"head_corrected", 0, 3},
                          {"head_strike", 1, 0},
                          {"echo_raw", 1, 1},
                          {"echo_declination", 1, 2},
                          {"echo_corrected", 1, 3},
                          {"head_dip", 2, 0},
                          {"echo_dip", 2, 1},
                          {"echo_dip_corrected", 2, 3},
                          {"head_side", 3, 0},
                          {"echo_side", 3, 1},
                          {"echo_side_corrected", 3, 3},
                          {"head_text", 4, 0},
                          {"echo_text", 4, 1},
                          {"echo_text_corrected", 4, 3},
                          {"head_lineation", 5, 0},
                          {"echo_lineation", 5, 1},
                          {"echo_lineation_declination", 5, 2},
                          {"echo_lineation_corrected", 5, 3},
                          {"head_lineation_dip", 6, 0},
                          {"echo_lineation_dip", 6, 1}};
// Sentences that scroll in a few lines of their own where they are many.
class Notes_area : public QScrollArea {
 public:
  QSize sizeHint() const override {
    const int width = std::max(1, viewport()->width());
    return {0, std::min(notes_height, widget()->heightForWidth(width) + 2)};
  }
  QSize minimumSizeHint() const override { return {0, 18}; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) updateGeometry();
  }
};

// Sets the frame and the tool tip of a box; without a frame its own hint is the tool tip.
void box_mark(QWidget* box, const char* frame, const QString& told) {
  const QString style =
      frame ? QString("%1 { border: %2; border-radius: 3px; padding: 1px; }").arg(box->metaObject()->className(), frame)
            : QString();
  if (box->styleSheet() != style) box->setStyleSheet(style);
  box->setToolTip(frame ? told : box->property("hint").toString());
  box->setAccessibleDescription(frame ? told : QString());
  if (auto* icon = box->findChild<QLabel*>(box->objectName() + "_slip")) {
    icon->setVisible(frame);
    icon->setToolTip(told);
    static_cast<QLineEdit*>(box)->setTextMargins(0, 0, frame ? icon->sizeHint().width() + 2 : 0, 0);
  }
}

// The characters that keep a text from the file: those without a code, and in a column of the record the comma. A text
// that came from the file goes back as it is.
QString not_stored(const QString& text, const std::string& as_read, bool is_column) {
  const std::string typed = from_toolkit(text);
  if (typed == as_read) return {};
  QString found = to_toolkit(platform::characters_without_code(typed));
  if (is_column && text.contains(',')) found += ',';
  return found;
}

}  // namespace

// Rows of what is read, the declination, and what comes of it; the sentences below.
QWidget* Frame6::build_echo() {
  auto* box = named(new QFrame, "echo");
  box->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  QFont small = font();
  small.setPointSizeF(std::max(7.0, small.pointSizeF() - 1));
  box->setFont(small);
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(4, 3, 4, 3);
  column->setSpacing(2);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(1);
  for (const Cell& cell : cells) {
    auto* label = named(new QLabel, cell.name);
    if (QString(cell.name).startsWith("head_")) label->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(label, cell.row, cell.column);
  }
  for (int i = 1; i < 4; ++i) grid->setColumnStretch(i, 1);
  column->addLayout(grid);
  auto* model = named(new QLabel, "echo_model");
  model->setWordWrap(true);
  column->addWidget(model);
  column->addWidget(build_notes());
  return box;
}

QWidget* Frame6::build_notes() {
  auto* told = named(new QWidget, "echo_told");
  auto* row = new QHBoxLayout(told);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  auto* icon = named(new QLabel, "echo_icon");
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(16, 16));
  row->addWidget(icon, 0, Qt::AlignTop);
  auto* notes = named(new QLabel, "echo_notes");
  notes->setWordWrap(true);
  notes->setTextFormat(Qt::PlainText);
  notes->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  notes_area_ = named(new Notes_area, "notes_area");
  notes_area_->setWidgetResizable(true);
  notes_area_->setFrameShape(QFrame::NoFrame);
  notes_area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  notes_area_->setFocusPolicy(Qt::NoFocus);
  notes_area_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  notes_area_->setWidget(notes);
  row->addWidget(notes_area_, 1);
  return told;
}

void Frame6::echo_out() {
  if (!is_open()) {
    boxes_mark({});  // what the boxes still show is nobody's text to mend
    return;
  }
  const Entry_echo echo =
      entry_echo(session_.entry.boxes, session_.coefficients, session_.canvas, session_.settings.language);
  cells_out(echo);
  sentences_out(echo, boxes_mark(echo));
  previews_out();
}

void Frame6::cells_out(const Entry_echo& echo) {
  const auto cell = [this](const char* name, const std::string& text) {
    findChild<QLabel*>(name)->setText(to_toolkit(text));
  };
  cell("echo_raw", echo.raw);
  cell("echo_dip", echo.raw_dip);
  cell("echo_side", echo.raw_side);
  cell("echo_text", echo.raw_text);
  cell("echo_declination", echo.declination);
  cell("echo_corrected", echo.corrected);
  cell("echo_dip_corrected", echo.corrected_dip);
  cell("echo_side_corrected", echo.corrected_side);
  cell("echo_text_corrected", echo.corrected_text);
  cell("echo_lineation", echo.lineation);
  cell("echo_lineation_declination", echo.lineation.empty() ? "" : echo.declination);
  cell("echo_lineation_corrected", echo.lineation_corrected);
  cell("echo_lineation_dip", echo.lineation_dip);
  cell("echo_model", echo.model);
  for (const char* name : {"head_lineation", "echo_lineation", "echo_lineation_declination", "echo_lineation_corrected",
                           "head_lineation_dip", "echo_lineation_dip"})
    findChild<QLabel*>(name)->setVisible(!echo.lineation.empty() || !echo.lineation_dip.empty());
  const bool uncorrected = echo.correction == Correction::unknown;
  const QString style = uncorrected ? "QLabel { color: " + warning_colour(palette()).name() + "; }" : QString();
  for (const char* name :
       {"head_corrected", "echo_corrected", "echo_side_corrected", "echo_text_corrected", "echo_lineation_corrected",
        "echo_lineation_declination", "echo_declination", "echo_model"}) {
    auto* label = findChild<QLabel*>(name);
    if (label->styleSheet() != style) label->setStyleSheet(style);
  }
  findChild<QLabel*>("head_corrected")
      ->setText(uncorrected ? either("未補正", "Uncorrected") : either("真方位", "True"));
}

void Frame6::sentences_out(const Entry_echo& echo, const QStringList& not_storable) {
  QStringList sentences = not_storable;
  for (const std::string& loss : echo.losses) sentences.append(to_toolkit(loss));
  const QString undrawn = line_missing();
  if (!undrawn.isEmpty()) sentences.append(undrawn);
  const bool lost = !sentences.isEmpty();
  for (const Echo_slip& slip : echo.slips) sentences.append(to_toolkit(slip.sentence));
  for (const std::string& note : echo.notes) sentences.append(to_toolkit(note));
  auto* notes = findChild<QLabel*>("echo_notes");
  notes->setText(sentences.join('\n'));
  notes->setToolTip(sentences.join('\n'));
  findChild<QWidget*>("echo_icon")->setVisible(lost || !echo.slips.empty());
  findChild<QWidget*>("echo_told")->setVisible(!sentences.isEmpty());
  notes_area_->updateGeometry();
}

// What becomes of a line or an enclosure that is saved before it was drawn.
QString Frame6::line_missing() const {
  const std::string& mark = session_.entry.boxes.Combo1;
  if (session_.flags.line_mode > 0 || vertices_stored() > 0) return {};
  if (is_line(mark))
    return either("線がまだ描かれていません。描くまで保存できません。",
                  "No line is drawn yet. It can't be saved before that.");
  if (is_area(mark))
    return either("囲みが描かれていません。このまま保存すると図に表示されません。",
                  "No enclosure is drawn. Saved like this, the map shows nothing.");
  return {};
}

// Gives a sentence for each box whose text can't be stored.
QStringList Frame6::boxes_mark(const Entry_echo& echo) {
  const Entry_boxes& now = session_.entry.boxes;
  QStringList sentences;
  const auto mark = [&](QWidget* box, const std::string& text, const std::string& as_read, bool is_column, int number) {
    const QString lost = not_stored(to_toolkit(text), as_read, is_column);
    if (!lost.isEmpty()) {
      const QString told = either("保存できない文字: ", "Can't be stored: ") + lost;
      sentences.append(box->accessibleName() + " - " + told);
      return box_mark(box, bad_frame, told);
    }
    const auto slip = std::find_if(echo.slips.begin(), echo.slips.end(),
                                   [number](const Echo_slip& found) { return found.box == number; });
    const bool slipped = slip != echo.slips.end();
    box_mark(box, slipped ? slip_frame : nullptr, slipped ? to_toolkit(slip->sentence) : QString());
  };
  for (std::size_t i = 0; i < now.Text14.size(); ++i)
    mark(texts_[i], now.Text14[i], as_read_.Text14[i], true, static_cast<int>(i));
  mark(texts_[box_measurement], now.Text13, as_read_.Text13, true, box_measurement);
  constexpr int no_slip = -1;
  mark(Combo6_->lineEdit(), now.Combo6, as_read_.Combo6, true, no_slip);
  mark(Combo7_->lineEdit(), now.Combo7, as_read_.Combo7, true, no_slip);
  mark(Combo2_->lineEdit(), now.Combo2, as_read_.Combo2, false, no_slip);
  mark(memo_, now.memo, as_read_.memo, false, no_slip);
  return sentences;
}

void Frame6::previews_out() {
  mark_preview_->show_painted([boxes = session_.entry.boxes](drawing::Surface& surface, drawing::Point at) {
    mark_sample_out(surface, at, boxes);
  });
  const Symbol symbol = entry_symbol(session_.entry.boxes, session_.coefficients, session_.canvas);
  symbol_preview_->show_painted(
      [symbol](drawing::Surface& surface, drawing::Point at) { symbol_out(surface, at, symbol, 1, label_height); });
}

}  // namespace ui
